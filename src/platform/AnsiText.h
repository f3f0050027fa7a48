#pragma once
// Conversion between UTF-8 (host file names, terminals, Qt) and the Windows-1252 ANSI code page
// that the system's strings hold on POSIX hosts. A character outside the code page becomes "?".

#include <string>
#include <string_view>

namespace orvanta {

std::string utf8ToWindows1252(std::string_view utf8);
std::string windows1252ToUtf8(std::string_view ansi);

}  // namespace orvanta
