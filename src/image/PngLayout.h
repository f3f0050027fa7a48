#pragma once
// The shape of PNG data: the header's fields, the seven Adam7 passes (and pass 0, a picture without
// interlace), and the sizes that follow from them.

#include <array>
#include <cstdint>

namespace orvanta {

struct PngHeader {
    std::int32_t width = 0;
    std::int32_t height = 0;
    std::uint8_t bitDepth = 0;
    std::uint8_t colorType = 0;
    std::uint8_t interlace = 0;

    std::uint32_t channels() const;
    std::uint32_t bitsPerPixel() const { return channels() * bitDepth; }
    // Bytes between two pixels for the filters: whole bytes of a pixel, at least 1.
    std::uint32_t filterDistance() const { return bitsPerPixel() < 8 ? 1 : bitsPerPixel() / 8; }
    std::uint64_t rowBytes(std::uint64_t columns) const { return (columns * bitsPerPixel() + 7) / 8; }
};

struct PngPass {
    std::uint32_t xStart, yStart, xStep, yStep;
};

// Pass 0 stands for a picture without interlace; passes 1 to 7 are those of Adam7.
inline constexpr std::array<PngPass, 8> kPngPasses = {{{0, 0, 1, 1},
                                                       {0, 0, 8, 8},
                                                       {4, 0, 8, 8},
                                                       {0, 4, 4, 8},
                                                       {2, 0, 4, 4},
                                                       {0, 2, 2, 4},
                                                       {1, 0, 2, 2},
                                                       {0, 1, 1, 2}}};

// Columns (or rows) of a pass over `size` pixels: those at start, start + step, ... below size.
inline std::uint64_t passCount(std::uint64_t size, std::uint32_t start, std::uint32_t step) {
    return size / step + (size % step > start ? 1 : 0);
}

// The first and last pass of the picture's interlace method.
inline std::uint32_t firstPass(const PngHeader& header) {
    return header.interlace == 0 ? 0 : 1;
}
inline std::uint32_t lastPass(const PngHeader& header) {
    return header.interlace == 0 ? 0 : 7;
}

// Bytes of unpacked data: for each pass, its rows times (row bytes plus the filter byte).
std::uint64_t pngUnpackedSize(const PngHeader& header);

// The size bound: width times 32, and that times height, must not pass 2^31.
bool pngSizeFits(std::int64_t width, std::int64_t height);

}  // namespace orvanta
