#include "image/PngPixels.h"

#include <cstring>
#include <vector>

namespace orvanta {

namespace {

// c * a / 255, truncated, for c and a up to 255.
inline std::uint32_t premultiplied(std::uint32_t c, std::uint32_t a) {
    return (c * a * 0x8081u) >> 23;
}

// A sample as it counts: a 16-bit sample by its high byte, a small one as it stands.
inline std::uint32_t sampleAt(const std::uint8_t* row, std::uint64_t index, std::uint32_t depth) {
    if (depth == 8) return row[index];
    if (depth == 16) return row[index * 2];
    const std::uint64_t bit = index * depth;
    return (row[bit >> 3] >> (8 - depth - (bit & 7))) & ((1u << depth) - 1);
}

// A sample widened to 8 bits: a depth below 8 scales like the gray ramp.
inline std::uint8_t widened(std::uint32_t sample, std::uint32_t depth) {
    if (depth >= 8) return static_cast<std::uint8_t>(sample);
    return static_cast<std::uint8_t>(sample * (255 / ((1u << depth) - 1)));
}

void toRgba(const PngHeader& header, const PngColours& colours, const std::uint8_t* row,
            std::uint64_t columns, std::uint8_t* out) {
    const std::uint32_t depth = header.bitDepth;
    const std::int32_t transparent = colours.transparent;
    for (std::uint64_t x = 0; x < columns; ++x, out += 4) {
        switch (header.colorType) {
            case 0: {
                const std::uint32_t s = sampleAt(row, x, depth);
                const std::uint8_t gray = depth < 8 ? colours.palette[s * 3] : static_cast<std::uint8_t>(s);
                out[0] = out[1] = out[2] = gray;
                out[3] = static_cast<std::int32_t>(s) == transparent ? 0 : 255;
                break;
            }
            case 2: {
                const std::uint32_t r = sampleAt(row, x * 3, depth), g = sampleAt(row, x * 3 + 1, depth),
                                    b = sampleAt(row, x * 3 + 2, depth);
                out[0] = widened(r, depth);
                out[1] = widened(g, depth);
                out[2] = widened(b, depth);
                out[3] = static_cast<std::int32_t>(r << 16 | g << 8 | b) == transparent ? 0 : 255;
                break;
            }
            case 3: {
                const std::uint32_t index = sampleAt(row, x, depth);
                std::memcpy(out, &colours.palette[index * 3], 3);
                out[3] = colours.paletteHasAlpha ? colours.paletteAlpha[index] : 255;
                break;
            }
            case 4:
                out[0] = out[1] = out[2] = widened(sampleAt(row, x * 2, depth), depth);
                out[3] = widened(sampleAt(row, x * 2 + 1, depth), depth);
                break;
            default:
                for (std::uint32_t c = 0; c < 4; ++c)
                    out[c] = widened(sampleAt(row, x * 4 + c, depth), depth);
                break;
        }
    }
}

// Straight RGBA into premultiplied BGRA words, `step` pixels apart; alpha 0 leaves the zero pixel.
void storeRow(const std::uint8_t* rgba, std::uint64_t columns, std::uint8_t* target, std::size_t step) {
    for (std::uint64_t x = 0; x < columns; ++x, rgba += 4, target += step * 4) {
        const std::uint32_t a = rgba[3];
        if (a == 0) continue;
        std::uint32_t r = rgba[0], g = rgba[1], b = rgba[2];
        if (a != 255) {
            r = premultiplied(r, a);
            g = premultiplied(g, a);
            b = premultiplied(b, a);
        }
        const std::uint32_t word = b | g << 8 | r << 16 | a << 24;
        std::memcpy(target, &word, 4);
    }
}

}  // namespace

void writePngPass(const PngHeader& header, const PngColours& colours, const std::uint8_t* data,
                  const PngPass& pass, std::uint64_t columns, std::uint64_t rows, c32bppDIB& surface) {
    const std::uint64_t rowBytes = header.rowBytes(columns);
    const auto width = static_cast<std::size_t>(surface.Width());
    const auto height = static_cast<std::uint64_t>(surface.Height());
    std::vector<std::uint8_t> rgba(static_cast<std::size_t>(columns) * 4);
    // Straight 8-bit RGBA rows need no conversion.
    const bool direct = header.colorType == 6 && header.bitDepth == 8;
    for (std::uint64_t r = 0; r < rows; ++r) {
        const std::uint8_t* row = data + r * (rowBytes + 1) + 1;
        const std::uint64_t y = pass.yStart + r * pass.yStep;
        std::uint8_t* target = surface.BitsPointer() + ((height - 1 - y) * width + pass.xStart) * 4;
        if (!direct) toRgba(header, colours, row, columns, rgba.data());
        storeRow(direct ? row : rgba.data(), columns, target, pass.xStep);
    }
}

}  // namespace orvanta
