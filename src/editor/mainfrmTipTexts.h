#pragma once
// The text each control writes to the tip line when the pointer moves over it.

#include <string_view>
#include <utility>
#include <vector>

namespace orvanta {

// Pairs of control name and tip text.
const std::vector<std::pair<std::string_view, std::string_view>>& mainfrmTipTexts();

}  // namespace orvanta
