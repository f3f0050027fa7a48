#include "setup/NumberWords.h"

#include <cmath>
#include <cstdio>

namespace orvanta {

std::string roundedNumberText(double value, int decimals) {
    char text[64];
    std::snprintf(text, sizeof text, "%.*f", decimals, value);
    std::string result = text;
    if (result.find('.') == std::string::npos) return result;
    while (result.back() == '0') result.pop_back();
    if (result.back() == '.') result.pop_back();
    if (result == "-0") result = "0";
    return result;
}

}  // namespace orvanta
