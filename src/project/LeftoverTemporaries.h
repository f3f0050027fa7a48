#pragma once
// A write that was killed halfway leaves its temporary file beside the target: "<name>.~ovtmp-XXXXXX"
// from the POSIX host, "ovtXXXX.tmp" from the Windows one. The loader and the saver remove them
// from the folders the saver writes, so that they never pile up or reach a list or a package.

#include <string>
#include <vector>

#include "platform/Host.h"

namespace orvanta {

bool isLeftoverTemporary(const std::string& name);

// The project root and the working set, each with its "\settingsset". "\files" is left alone:
// it holds the user's own files and may be filling while a copy runs.
void removeLeftoverTemporaries(Host& host, const std::string& projectRoot, const std::string& workingSet);

}  // namespace orvanta
