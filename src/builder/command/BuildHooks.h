#pragma once
// The command line's extra steps of a build: signing and reproducible times.

#include <string>

#include "builder/BuildSetup.h"
#include "builder/command/BuildOptions.h"
#include "platform/Host.h"

namespace orvanta {

// Sets `setup`'s hooks for what `options` ask. Reads the time of the project's last save now,
// before the build saves again. An error text when a setting is unusable; empty otherwise.
std::string addBuildHooks(Host& host, const BuildOptions& options, const std::string& workingFolder,
                          BuildSetup& setup);

}  // namespace orvanta
