#pragma once
// Numbers in project files: written with a blank before and after (" 1 "), read with the blanks
// ignored. Package flags are written bare ("1"); a flag reader takes both forms.

#include <optional>
#include <string>
#include <string_view>

namespace orvanta {

// " 1 "; a negative number has its sign where the leading blank would be ("-1 ").
std::string numberLine(int value);

// A decimal number with optional sign, fraction and exponent, surrounded by blanks, or nothing.
std::optional<double> parseNumber(std::string_view text);

// The two conversions of number lines, both limited to the 16-bit range a check box takes:
// the integer part (rounded down) and the direct conversion (rounded half to even).
std::optional<int> integerPartOf(std::string_view text);
std::optional<int> convertedNumber(std::string_view text);

// "0"/"1" or " 0 "/" 1 ": any number that converts, as a flag.
std::optional<int> parseFlag(std::string_view text);

}  // namespace orvanta
