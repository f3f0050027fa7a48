#pragma once
// Text boxes that show a grey hint while empty. The hint stands for "empty": it is never stored,
// and a stored empty value comes back as the hint.

#include <array>
#include <string>
#include <string_view>

#include "project/EditorControls.h"
#include "project/ProjectFields.h"

namespace orvanta {

struct Placeholder {
    ControlName box;
    std::string_view text;
    ControlName companion;  // the check box that follows the box; empty name for none
};

inline constexpr std::array<Placeholder, 6> kPlaceholders = {{
    {ctrl::supportLink, "Support link", ctrl::Check15},
    {ctrl::helpLink, "Help link", ctrl::Check31},
    {ctrl::updateInfoLink, "Update info link", ctrl::Check32},
    {ctrl::startupArguments, "Arguments", {}},
    {ctrl::shortcutArguments, "Shortcuts arguments", {}},
    {ctrl::shortcutTooltip, "Shortcuts tooltip", {}},
}};

// The entry for a box, or nothing when the box has no placeholder.
const Placeholder* placeholderOf(ControlName box);

// What the box stores: its text, or an empty line while it holds exactly its placeholder.
std::string storedText(const ProjectFields& fields, ControlName box);

}  // namespace orvanta
