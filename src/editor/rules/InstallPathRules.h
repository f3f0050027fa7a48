#pragma once
// The rules behind the install path box: the preview of the resulting location, and whether the
// uninstaller may wipe the installation folder.
// Plain strings in, plain answers out, so the window only moves the values.

#include <optional>
#include <string>

namespace orvanta {

// The default location: the installer's Program Files folder.
inline constexpr const char* kDefaultLocation = "<>";

// The preview for `installPath`; nothing when the text names no known root, and the preview
// keeps its last value. `programFiles` ends with a backslash.
std::optional<std::string> installPathPreview(bool authorFolder, const std::string& installPath,
                                              const std::string& programFiles, const std::string& author,
                                              const std::string& appName);

// The "Clean it all!" box as the install path leaves it.
struct CleanAllState {
    int value = 0;
    bool enabled = false;
};
CleanAllState cleanAllState(const std::string& installPath);

}  // namespace orvanta
