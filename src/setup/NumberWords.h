#pragma once
// Numbers as the wizard's labels print them: rounded, with no trailing zeros and no blank.

#include <string>

namespace orvanta {

std::string roundedNumberText(double value, int decimals);

}  // namespace orvanta
