#pragma once
// The entry routine: proves the delivered files are there, fixes the process-wide values, makes
// sure the settings keys exist, finds the archivers, then hands over to the project index or,
// given a project marker on the command line, straight to the loader.

#include <functional>
#include <string>

#include "core/Dialogs.h"
#include "platform/Host.h"

namespace orvanta {

// What the windows (which come later than this routine) do when Main hands over.
struct MainHandOver {
    std::function<void()> showStart;
    std::function<void(const std::string& projectFolder)> loadProject;
};

enum class MainOutcome {
    SupportFileMissing,  // the critical box was shown; the process is to end
    StartShown,
    ProjectLoaded,
};

// A marker that cannot be read is left to the caller as a RuntimeError, which ends the process.
MainOutcome Main(Host& host, Dialogs& dialogs, const MainHandOver& handOver);

// The folder of a project, from its marker path and the name on the marker's first line.
std::string projectFolderFromMarker(const std::string& markerPath, const std::string& projectName);

}  // namespace orvanta
