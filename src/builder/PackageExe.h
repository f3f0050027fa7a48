#pragma once
// The build: saves the project, stages what the installer needs into the working folder, writes
// the two batch files that drive the archiver, runs them, and names the package as the user chose.

#include <string>

#include "builder/BuildProgress.h"
#include "builder/BuildSetup.h"
#include "project/EditorContext.h"

namespace orvanta {

struct BuildResult {
    bool built = false;
    std::string package;     // the final package's path when built
    std::string failedStep;  // the caption of the step that stopped the build
    std::string reason;      // what went wrong there, naming the file concerned
};

// `filesFolder` is appended to the working folder to name the application files ("\files").
// A step that fails stops the build there: the user is told which step and which file, the
// progress window closes, and the project stays as the save left it.
BuildResult packageexe(EditorContext& context, const BuildSetup& setup, BuildProgress& progress,
                       const std::string& filesFolder);

}  // namespace orvanta
