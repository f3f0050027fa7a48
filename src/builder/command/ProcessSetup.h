#pragma once
// Sets up the process of a build without windows as the program's entry routine does (workspace,
// settings key, archivers), then fixes the archiver the command line asks for.

#include <string>

#include "builder/BuildSetup.h"
#include "builder/command/BuildOptions.h"
#include "core/Dialogs.h"
#include "platform/Host.h"

namespace orvanta {

struct ProcessSetup {
    BuildSetup build;
    std::string error;  // why the build cannot begin; empty when `build` is ready
};

// The host must have been made with an empty command line, so the entry routine hands over to a
// project index that a build without windows does not show.
ProcessSetup setUpProcess(Host& host, Dialogs& dialogs, const BuildOptions& options);

}  // namespace orvanta
