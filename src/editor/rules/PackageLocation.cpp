#include "editor/rules/PackageLocation.h"

#include <algorithm>

namespace orvanta {

namespace {

constexpr std::string_view kDefaultToken = kLocationTokens[0];

// The tokens of system folders, without the default location's "<>\".
constexpr std::array<std::string_view, 6> kSystemFolderTokens = {
    "Program Files\\",
    "Allusers ApplicationData\\",
    "User Local ApplicationData\\",
    "User ApplicationData (Roaming)\\",
    "User MyDocuments\\",
    "Themes\\",
};

bool holds(std::string_view text, std::string_view part) {
    return text.find(part) != std::string_view::npos;
}

}  // namespace

bool hasLocationStructure(std::string_view location) {
    if (location.substr(std::min<std::size_t>(1, location.size()), 2) == ":\\") return true;
    return std::any_of(kLocationTokens.begin(), kLocationTokens.end(),
                       [&](std::string_view token) { return location.starts_with(token); });
}

bool isRootLocation(std::string_view location) {
    return std::find(kLocationTokens.begin(), kLocationTokens.end(), location) != kLocationTokens.end();
}

RemoveByDefaultBox removeByDefaultFor(std::string_view location) {
    if (holds(location, kDefaultToken)) return {true, true};
    if (isRootLocation(location)) return {false, false};
    const bool underSystemFolder =
        std::any_of(kSystemFolderTokens.begin(), kSystemFolderTokens.end(),
                    [&](std::string_view token) { return holds(location, token); });
    return {underSystemFolder, underSystemFolder};
}

bool clearsRemoveByDefaultOnSave(std::string_view location) {
    return location == "User Local ApplicationData\\" || location == "Themes\\" ||
           location == "User ApplicationData (Roaming)\\" || location == "User MyDocuments\\";
}

}  // namespace orvanta
