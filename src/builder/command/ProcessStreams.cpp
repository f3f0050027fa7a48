#include "builder/command/ProcessStreams.h"

#include <fcntl.h>
#include <unistd.h>

namespace orvanta {

std::FILE* setAsideStandardOutput(bool archiverOutputShown) {
    std::fflush(stdout);
    const int copy = dup(fileno(stdout));
    std::FILE* packagePath = copy < 0 ? nullptr : fdopen(copy, "w");
    if (!packagePath) return stdout;
    // Where there is no /dev/null (Windows) the archivers run in hidden windows anyway.
    const int silent = archiverOutputShown ? -1 : open("/dev/null", O_WRONLY);
    dup2(silent >= 0 ? silent : fileno(stderr), fileno(stdout));
    if (silent >= 0) close(silent);
    return packagePath;
}

}  // namespace orvanta
