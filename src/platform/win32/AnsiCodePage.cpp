// The system's own ANSI code page, through UTF-16 as Windows converts it.
#include <windows.h>

#include "platform/AnsiText.h"
#include "platform/win32/WideText.h"

namespace orvanta {

namespace {

std::wstring toUtf16(std::string_view text, unsigned codePage) {
    if (text.empty()) return {};
    const int size = static_cast<int>(text.size());
    const int length = MultiByteToWideChar(codePage, 0, text.data(), size, nullptr, 0);
    std::wstring wide(static_cast<std::size_t>(length), L'\0');
    MultiByteToWideChar(codePage, 0, text.data(), size, wide.data(), length);
    return wide;
}

// No best fit: a character the code page lacks becomes "?", never a look-alike letter.
std::string fromUtf16(const std::wstring& wide, UINT codePage) {
    if (wide.empty()) return {};
    const DWORD flags = codePage == CP_UTF8 ? 0 : WC_NO_BEST_FIT_CHARS;
    const char* unknown = codePage == CP_UTF8 ? nullptr : "?";
    const int size = static_cast<int>(wide.size());
    const int length = WideCharToMultiByte(codePage, flags, wide.data(), size, nullptr, 0, unknown, nullptr);
    std::string text(static_cast<std::size_t>(length), '\0');
    WideCharToMultiByte(codePage, flags, wide.data(), size, text.data(), length, unknown, nullptr);
    return text;
}

}  // namespace

std::wstring ansiToUtf16(std::string_view ansi) {
    return toUtf16(ansi, CP_ACP);
}

std::string ansiToUtf8(std::string_view ansi) {
    return fromUtf16(toUtf16(ansi, CP_ACP), CP_UTF8);
}

std::string utf8ToAnsi(std::string_view utf8) {
    return fromUtf16(toUtf16(utf8, CP_UTF8), CP_ACP);
}

}  // namespace orvanta
