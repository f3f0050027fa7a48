#include "editor/rules/InstallPathRules.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "platform/CaseFolding.h"

namespace orvanta {

namespace {

constexpr std::string_view kMyDocuments = "User MyDocuments\\";
constexpr std::string_view kRoaming = "User ApplicationData (Roaming)\\";
constexpr std::string_view kThemes = "Themes\\";
constexpr std::string_view kProgramFiles = "Program Files\\";
constexpr std::string_view kAllUsers = "Allusers ApplicationData\\";
constexpr std::string_view kLocal = "User Local ApplicationData\\";

constexpr std::array<std::string_view, 6> kRoots = {kLocal,   kProgramFiles, kAllUsers,
                                                    kRoaming, kMyDocuments,  kThemes};
// Without the author folder the all-users root gets no preview: the preview stays as it was.
constexpr std::array<std::string_view, 5> kRootsWithoutAuthor = {kMyDocuments, kRoaming, kThemes,
                                                                 kProgramFiles, kLocal};

template <std::size_t N>
bool containsAnyIgnoringCase(const std::string& text, const std::array<std::string_view, N>& roots) {
    return std::any_of(roots.begin(), roots.end(),
                       [&](std::string_view root) { return containsIgnoringCase(text, root); });
}

}  // namespace

std::optional<std::string> installPathPreview(bool authorFolder, const std::string& installPath,
                                              const std::string& programFiles, const std::string& author,
                                              const std::string& appName) {
    const std::string leaf = authorFolder ? author + "\\" + appName : appName;
    if (installPath == kDefaultLocation) return programFiles + leaf;
    const bool known = authorFolder ? containsAnyIgnoringCase(installPath, kRoots)
                                    : containsAnyIgnoringCase(installPath, kRootsWithoutAuthor);
    if (!known) return std::nullopt;
    return installPath + leaf;
}

CleanAllState cleanAllState(const std::string& installPath) {
    if (installPath.find(kDefaultLocation) != std::string::npos) return {1, true};
    bool containsRoot = false;
    for (std::string_view root : kRoots) {
        if (installPath.find(root) == std::string::npos) continue;
        // A bare system root must never be wiped by the uninstaller.
        if (installPath.size() == root.size()) return {0, false};
        containsRoot = true;
    }
    return {0, containsRoot};
}

}  // namespace orvanta
