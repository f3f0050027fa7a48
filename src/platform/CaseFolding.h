#pragma once
// The one case folding of the system's ANSI text, the same under every locale. It knows the
// letters of Windows-1252 (ASCII and the accented letters above 0x7F): that is the code page of
// POSIX hosts, where our own code matches file names as Windows would; on Windows the file system
// and the registry fold names themselves, and what we compare there are ASCII words.

#include <cstddef>
#include <string>
#include <string_view>

namespace orvanta {

char lowerCase(char c);
char upperCase(char c);
std::string toLowerCase(std::string_view text);
std::string toUpperCase(std::string_view text);

bool equalsIgnoringCase(std::string_view a, std::string_view b);
// Negative, zero or positive, ordering by the lower-case bytes.
int compareIgnoringCase(std::string_view a, std::string_view b);
// Where `part` first stands in `text`, or npos.
std::size_t findIgnoringCase(std::string_view text, std::string_view part);
bool containsIgnoringCase(std::string_view text, std::string_view part);
bool startsWithIgnoringCase(std::string_view text, std::string_view start);
bool endsWithIgnoringCase(std::string_view text, std::string_view end);

}  // namespace orvanta
