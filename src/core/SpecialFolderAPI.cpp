#include "core/SpecialFolderAPI.h"

namespace orvanta {

std::string specialFolder(Host& host, int csidl) {
    std::string path = host.specialFolder(csidl);
    if (path.empty()) return {};
    // The shell fills a buffer of 255 characters, ended at its first NUL.
    if (path.size() > 255) path.resize(255);
    if (const auto nul = path.find('\0'); nul != std::string::npos) path.resize(nul);
    return path + "\\";
}

}  // namespace orvanta
