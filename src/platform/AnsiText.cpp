#include "platform/AnsiText.h"

#include <array>
#include <cstdint>

namespace orvanta {

namespace {

// Code points of bytes 0x80 to 0x9F; the five bytes Windows leaves undefined map to the C1
// control of the same number, as MultiByteToWideChar does.
constexpr std::array<char32_t, 32> kHighControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

char32_t codePointOf(unsigned char byte) {
    if (byte >= 0x80 && byte < 0xA0) return kHighControls[byte - 0x80u];
    return byte;
}

char byteFor(char32_t codePoint) {
    if (codePoint < 0x80 || (codePoint >= 0xA0 && codePoint <= 0xFF)) return static_cast<char>(codePoint);
    for (std::size_t i = 0; i < kHighControls.size(); ++i)
        if (kHighControls[i] == codePoint) return static_cast<char>(0x80 + i);
    return '?';
}

void appendUtf8(std::string& out, char32_t c) {
    if (c < 0x80) {
        out += static_cast<char>(c);
    } else if (c < 0x800) {
        out += static_cast<char>(0xC0 | (c >> 6));
        out += static_cast<char>(0x80 | (c & 0x3F));
    } else {
        out += static_cast<char>(0xE0 | (c >> 12));
        out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (c & 0x3F));
    }
}

// Decodes one UTF-8 sequence at `i`; a malformed one counts as one unknown character.
char32_t decodeUtf8(std::string_view text, std::size_t& i) {
    const auto lead = static_cast<unsigned char>(text[i]);
    std::size_t length = lead < 0x80           ? 1
                         : (lead >> 5) == 0x6  ? 2
                         : (lead >> 4) == 0xE  ? 3
                         : (lead >> 3) == 0x1E ? 4
                                               : 0;
    if (length == 0 || i + length > text.size()) {
        ++i;
        return 0xFFFD;
    }
    char32_t c = length == 1 ? lead : static_cast<char32_t>(lead & (0x7Fu >> length));
    for (std::size_t k = 1; k < length; ++k) {
        const auto next = static_cast<unsigned char>(text[i + k]);
        if ((next & 0xC0) != 0x80) {
            ++i;
            return 0xFFFD;
        }
        c = (c << 6) | (next & 0x3F);
    }
    i += length;
    return c;
}

}  // namespace

std::string utf8ToWindows1252(std::string_view utf8) {
    std::string out;
    out.reserve(utf8.size());
    for (std::size_t i = 0; i < utf8.size();) out += byteFor(decodeUtf8(utf8, i));
    return out;
}

std::string windows1252ToUtf8(std::string_view ansi) {
    std::string out;
    out.reserve(ansi.size());
    for (char c : ansi) appendUtf8(out, codePointOf(static_cast<unsigned char>(c)));
    return out;
}

}  // namespace orvanta
