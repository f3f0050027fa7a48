#include "project/LeftoverTemporaries.h"

#include <cctype>

#include "platform/CaseFolding.h"
#include "platform/WindowsPath.h"
#include "project/ProjectPaths.h"

namespace orvanta {

namespace {

bool isHexDigits(const std::string& text) {
    for (const char c : text)
        if (std::isxdigit(static_cast<unsigned char>(c)) == 0) return false;
    return !text.empty();
}

void removeFrom(Host& host, const std::string& folder) {
    for (const auto& entry : host.listDirectory(inFolder(folder, "*"), false))
        if (isLeftoverTemporary(entry.name)) host.deleteFile(inFolder(folder, entry.name));
}

}  // namespace

bool isLeftoverTemporary(const std::string& name) {
    if (name.find(".~ovtmp-") != std::string::npos) return true;
    const std::string lower = toLowerCase(name);
    return lower.size() > 7 && lower.starts_with("ovt") && lower.ends_with(".tmp") &&
           isHexDigits(lower.substr(3, lower.size() - 7));
}

void removeLeftoverTemporaries(Host& host, const std::string& projectRoot, const std::string& workingSet) {
    for (const auto& folder : {projectRoot, workingSet}) {
        removeFrom(host, folder);
        removeFrom(host, inFolder(folder, projectfolder::kSettingsSet));
    }
}

}  // namespace orvanta
