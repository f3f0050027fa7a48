#pragma once
// "executables.cfg" and "msi.cfg": the loader reads at most 51 lines of each and keeps nothing.
// Their line format is not fixed yet, so there is no writer; one added later keeps to 51 lines.

#include <string>

#include "platform/Host.h"

namespace orvanta {

// Reads the first 51 lines and drops them; false if the file cannot be opened.
bool skimInstallerList(Host& host, const std::string& path);

}  // namespace orvanta
