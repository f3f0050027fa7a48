#pragma once
// Command lines as Windows programs split them: blanks separate arguments, double quotes group
// them, a backslash run before a quote is halved, and a missing closing quote ends at the line's end.

#include <string>
#include <string_view>
#include <vector>

namespace orvanta {

std::vector<std::string> splitCommandLine(std::string_view commandLine);
// Quotes an argument when it needs it, so that splitCommandLine gives it back unchanged.
std::string quoteArgument(std::string_view argument);

}  // namespace orvanta
