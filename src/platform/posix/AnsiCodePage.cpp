// The ANSI code page of POSIX hosts is Windows-1252, as the host reports it.
#include "platform/AnsiText.h"

namespace orvanta {

std::string ansiToUtf8(std::string_view ansi) {
    return windows1252ToUtf8(ansi);
}

std::string utf8ToAnsi(std::string_view utf8) {
    return utf8ToWindows1252(utf8);
}

}  // namespace orvanta
