#include "platform/posix/ProgramSearch.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>

namespace orvanta {

bool isExecutableFile(const std::string& hostPath) {
    struct stat info {};
    return ::stat(hostPath.c_str(), &info) == 0 && S_ISREG(info.st_mode) &&
           ::access(hostPath.c_str(), X_OK) == 0;
}

std::string findProgramOnPath(const std::string& name, const std::string& searchPath) {
    if (name.empty() || name.find('/') != std::string::npos) return {};
    std::size_t start = 0;
    while (start <= searchPath.size()) {
        auto end = searchPath.find(':', start);
        if (end == std::string::npos) end = searchPath.size();
        const std::string folder = searchPath.substr(start, end - start);
        const std::string candidate = (folder.empty() ? "." : folder) + "/" + name;
        if (isExecutableFile(candidate)) return candidate;
        start = end + 1;
    }
    return {};
}

std::string runningProgramFolder() {
    char buffer[4096];
    const ssize_t length = ::readlink("/proc/self/exe", buffer, sizeof buffer - 1);
    if (length <= 0) return ".";
    const std::string self(buffer, static_cast<std::size_t>(length));
    const auto cut = self.rfind('/');
    return cut == 0 ? "/" : self.substr(0, cut);
}

std::string environmentSearchPath() {
    const char* path = std::getenv("PATH");
    return path != nullptr ? path : "";
}

}  // namespace orvanta
