#pragma once
// Writes a surface as PNG bytes with zlib (crc32 and compress2 at level 9, or compress): no zlib,
// no PNG. The colour type is 6, or 2 or 0 when every pixel is opaque (and gray). The owner's
// choices (interlace, filter, background, transparent colour,
// time stamp, text entries) are kept between saves.

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "image/c32bppDIB.h"

namespace orvanta {

struct PngTextEntry {
    std::string keyword;
    std::string text;
    bool beforeData = true;
};

struct PngTime {
    std::uint16_t year = 2000;
    std::uint8_t month = 1, day = 1, hour = 0, minute = 0, second = 0;
};

// Filter settings: 0 to 4 one filter type for every row, 5 the type with the smallest sum for
// each row; 6 (the default, and what a value outside 0..6 becomes) the same as 5.
inline constexpr std::int32_t kPngFilterAdaptive = 5;
inline constexpr std::int32_t kPngFilterDefault = 6;

class cPNGwriter {
public:
    bool interlace = false;
    std::int32_t filter = kPngFilterDefault;
    std::optional<std::uint32_t> background;        // 0x00BBGGRR
    std::optional<std::uint32_t> transparentColor;  // 0x00BBGGRR, written as tRNS for an opaque picture
    std::optional<PngTime> time;

    // The bit of a standard keyword (case ignored), or -1 for any other word.
    static std::int32_t keywordBit(const std::string& keyword);
    // Adds an entry after preparing keyword and text; false when the keyword is invalid.
    bool AddText(const std::string& keyword, const std::string& text, bool beforeData = true);
    const std::vector<PngTextEntry>& texts() const { return texts_; }

    // True with the PNG in `receiver`; false, with it empty, without an image or without zlib.
    bool SaveToStream(const c32bppDIB& surface, std::vector<std::uint8_t>& receiver);

private:
    std::vector<PngTextEntry> texts_;
};

// Keyword rules: at most 79 characters, trimmed, double spaces folded, no-break space made plain;
// empty when a character below 32 or from 127 to 160 remains.
std::string preparePngKeyword(const std::string& keyword);
// Text rules: cut to 32,700 characters, CR LF and lone CR made LF; empty when a control character
// other than tab and LF remains.
std::string preparePngText(const std::string& text);

}  // namespace orvanta
