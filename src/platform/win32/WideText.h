#pragma once
// The system's ANSI text as the wide strings of the Windows calls that have no ANSI form.

#include <string>
#include <string_view>

namespace orvanta {

std::wstring ansiToUtf16(std::string_view ansi);

}  // namespace orvanta
