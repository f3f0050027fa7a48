#pragma once
// The bitmap information header of BMP files and icon entries, with the colour masks and the colour
// table that follow it.

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

namespace orvanta {

inline constexpr std::uint32_t kBiRgb = 0;
inline constexpr std::uint32_t kBiRle8 = 1;
inline constexpr std::uint32_t kBiRle4 = 2;
inline constexpr std::uint32_t kBiBitfields = 3;
inline constexpr std::uint32_t kBiAlphaBitfields = 6;

struct DibHeader {
    std::int32_t width = 0;
    std::int32_t height = 0;  // as stored: negative for rows top-down, doubled in an icon
    std::uint32_t bitCount = 0;
    std::uint32_t compression = kBiRgb;
    std::array<std::uint32_t, 4> masks{};  // red, green, blue, alpha
    // Entries as pixel words: blue, green, red, 255; entries the file does not give are black.
    std::array<std::uint32_t, 256> palette{};
    std::size_t headerEnd = 0;  // offset of the byte after the header, masks and colour table

    std::int32_t rows() const { return height < 0 ? -height : height; }
    bool topDown() const { return height < 0; }
};

// Reads the header at the start of `info`. False for a header or combination the decoders do not
// handle, or a table that runs past the end.
bool readDibHeader(std::span<const std::uint8_t> info, DibHeader& header);

// Bytes a row of pixels takes in the file: rows are padded to a multiple of 4 bytes.
std::uint64_t dibRowBytes(std::uint32_t bitCount, std::int32_t width);

}  // namespace orvanta
