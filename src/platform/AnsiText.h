#pragma once
// Conversion between UTF-8 (host file names, terminals, Qt) and the ANSI code page that the
// system's strings hold. A character outside the code page becomes "?".

#include <string>
#include <string_view>

namespace orvanta {

std::string utf8ToWindows1252(std::string_view utf8);
std::string windows1252ToUtf8(std::string_view ansi);

// In the code page of this host: Windows-1252 on POSIX hosts, the system's own on Windows.
std::string ansiToUtf8(std::string_view ansi);
std::string utf8ToAnsi(std::string_view utf8);

}  // namespace orvanta
