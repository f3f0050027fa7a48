#pragma once
// The build without windows: the working set loaded into controls held in memory, the checks of
// the "Package it!" button, then the build with the command line's extra steps.

#include <string>

#include "builder/command/BuildOptions.h"
#include "builder/command/ConsoleOutput.h"
#include "core/Dialogs.h"
#include "platform/Host.h"

namespace orvanta {

struct HeadlessResult {
    int exitCode = 0;
    std::string package;  // the final package's host path when built
};

HeadlessResult runHeadlessBuild(Host& host, Dialogs& dialogs, ConsoleOutput& messages,
                                const BuildOptions& options);

}  // namespace orvanta
