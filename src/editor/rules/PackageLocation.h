#pragma once
// Where a package installs: a path with a drive letter ("x:\mylocation") or a location token with
// a folder below it ("Themes\Dark"). The rules the packages manager applies to that text.

#include <array>
#include <string_view>

namespace orvanta {

// The tokens in the order the location box lists them.
inline constexpr std::array<std::string_view, 7> kLocationTokens = {
    "<>\\",
    "Program Files\\",
    "Themes\\",
    "User Local ApplicationData\\",
    "User ApplicationData (Roaming)\\",
    "Allusers ApplicationData\\",
    "User MyDocuments\\",
};

inline constexpr std::string_view kLocationStructureMessage =
    "If you're not using the provided default paths use this structure 'x:\\mylocation'";
inline constexpr std::string_view kRootLocationMessage =
    "Root folders not allowed or wrong folder location! Change your package folder location.";
// Saving tests both rules at once and says both.
inline constexpr std::string_view kLocationMessage =
    "Root folders not allowed or wrong folder location! Change your package folder location. If you're "
    "not using the provided default paths use this structure 'x:\\mylocation'";

// ":\" as the second and third characters, or a token at the start. A bare "C:\" passes.
bool hasLocationStructure(std::string_view location);
// A token and nothing else, which would install into the root of a system folder.
bool isRootLocation(std::string_view location);

// The "Remove by default" box as the location sets it: a package under a system folder may be
// removed with the application, one at a drive path or in a bare root may not.
struct RemoveByDefaultBox {
    bool ticked = false;
    bool enabled = false;
};
RemoveByDefaultBox removeByDefaultFor(std::string_view location);

// The per-user roots whose packages a save never marks for removal.
bool clearsRemoveByDefaultOnSave(std::string_view location);

}  // namespace orvanta
