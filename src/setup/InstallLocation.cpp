#include "setup/InstallLocation.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "core/SpecialFolderAPI.h"
#include "editor/rules/InstallPathRules.h"
#include "platform/CaseFolding.h"

namespace orvanta {

namespace {

struct RootFolder {
    std::string_view word;
    int csidl;
    std::string_view below;  // a folder below the special folder
};

constexpr std::array<RootFolder, 6> kRootFolders = {{
    {"Program Files\\", kFolderProgramFiles, ""},
    {"User MyDocuments\\", kFolderDocuments, ""},
    {"User ApplicationData (Roaming)\\", kFolderRoamingAppData, ""},
    {"User Local ApplicationData\\", kFolderLocalAppData, ""},
    {"Allusers ApplicationData\\", kFolderCommonAppData, ""},
    {"Themes\\", kFolderResources, "Themes\\"},
}};

bool startsWithIgnoringCase(const std::string& text, std::string_view start) {
    return text.size() >= start.size() &&
           equalsIgnoringCase(std::string_view(text).substr(0, start.size()), start);
}

constexpr std::size_t kMostPathCharacters = 999;

}  // namespace

std::string proposedInstallPath(Host& host, const WizardSettings& settings) {
    const bool withAuthor = flagOn(settings.authorFolder);
    const std::string& path = settings.installPath;
    if (path == kDefaultLocation) {
        const std::string programFiles = specialFolder(host, kFolderProgramFiles);
        return withAuthor ? programFiles + settings.appAuthor + "\\" + settings.appName
                          : programFiles + settings.appName;
    }
    for (const RootFolder& root : kRootFolders) {
        if (!startsWithIgnoringCase(path, root.word)) continue;
        const std::string folder = specialFolder(host, root.csidl) + std::string(root.below);
        const std::string leaf = withAuthor ? settings.appAuthor + "\\" + settings.appName : settings.appName;
        return folder + path.substr(root.word.size()) + leaf;
    }
    const std::string drive = specialFolder(host, kFolderSystem32Bit).substr(0, 3);
    return drive + (path.size() > 3 ? path.substr(3, kMostPathCharacters) : std::string());
}

bool installPathAccepted(const std::string& path) {
    if (path.size() < 3 || path[1] != ':' || path[2] != '\\') return false;
    return path[0] >= 'C' && path[0] <= 'K';
}

bool minimumWindowsMet(const std::string& minimum, const std::string& system) {
    constexpr std::array<std::string_view, 4> kOrder = {"Windows 2000", "Windows XP", "Windows Vista",
                                                        "Windows 7"};
    const auto required = std::find(kOrder.begin(), kOrder.end(), minimum);
    if (required == kOrder.end()) return true;
    const auto found = std::find(kOrder.begin(), kOrder.end(), system);
    return found != kOrder.end() && found >= required;
}

}  // namespace orvanta
