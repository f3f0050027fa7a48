#pragma once
// The build without windows: the working set loaded into controls held in memory, the checks of
// the "Package it!" button, then the build with the command line's extra steps.

#include <functional>
#include <string>

#include "builder/command/BuildOptions.h"
#include "builder/command/ConsoleOutput.h"
#include "core/Dialogs.h"
#include "platform/Host.h"

namespace orvanta {

// Writes the wizard's screens of a loaded project into a folder (a host path); the message of
// what went wrong, or empty. Only a build of the program with windows has one.
struct WizardProject;
using ScreensWriter = std::function<std::string(Host&, Dialogs&, const WizardProject&, const std::string&)>;

struct HeadlessResult {
    int exitCode = 0;
    std::string package;  // the final package's host path when built
};

HeadlessResult runHeadlessBuild(Host& host, Dialogs& dialogs, ConsoleOutput& messages,
                                const BuildOptions& options, const ScreensWriter& screens = {});

}  // namespace orvanta
