#pragma once
// Standard output of the headless build. The archivers inherit the process's own; the package's
// path goes to a copy made first, so that it stands alone there and the archivers' own output can
// be silenced. Standard error stays shared: the build's messages and the archivers' warnings.

#include <cstdio>

namespace orvanta {

// The stream for the package's path. With `archiverOutputShown` what the archivers print on
// standard output goes to standard error; otherwise nowhere, where the system has a null device.
std::FILE* setAsideStandardOutput(bool archiverOutputShown);

}  // namespace orvanta
