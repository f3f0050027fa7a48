#include "image/DibPixels.h"

#include <bit>
#include <cstring>

#include "image/RasterBytes.h"

namespace orvanta {

namespace {

struct Channel {
    std::uint32_t mask = 0;
    int shift = 0;
    std::uint64_t maximum = 0;
};

Channel channelOf(std::uint32_t mask) {
    if (mask == 0) return {};
    const int shift = std::countr_zero(mask);
    return {mask, shift, mask >> shift};
}

// Widens a masked field of any width to 0..255.
std::uint8_t scaled(std::uint32_t value, const Channel& channel) {
    if (channel.maximum == 0) return 0;
    return static_cast<std::uint8_t>(((value & channel.mask) >> channel.shift) * 255 / channel.maximum);
}

void putWord(std::uint8_t* out, std::uint32_t word) {
    out[0] = static_cast<std::uint8_t>(word);
    out[1] = static_cast<std::uint8_t>(word >> 8);
    out[2] = static_cast<std::uint8_t>(word >> 16);
    out[3] = static_cast<std::uint8_t>(word >> 24);
}

// 1, 2, 4 and 8 bits: the leftmost pixel sits in the high bits of its byte.
void indexedRow(const std::uint8_t* in, const DibHeader& header, std::uint8_t* out, std::size_t width) {
    const std::uint32_t bits = header.bitCount;
    const std::uint32_t mask = (1u << bits) - 1;
    for (std::size_t x = 0; x < width; ++x, out += 4) {
        const std::size_t bit = x * bits;
        const auto shift = static_cast<std::uint32_t>(8 - bits - bit % 8);
        putWord(out, header.palette[(in[bit / 8] >> shift) & mask]);
    }
}

void maskedRow(const std::uint8_t* in, const DibHeader& header, std::uint8_t* out, std::size_t width) {
    const Channel red = channelOf(header.masks[0]), green = channelOf(header.masks[1]);
    const Channel blue = channelOf(header.masks[2]), alpha = channelOf(header.masks[3]);
    const bool wide = header.bitCount == 32;
    for (std::size_t x = 0; x < width; ++x, out += 4) {
        const std::uint32_t value = wide ? le32({in, 4}, 0) : le16({in, 2}, 0);
        in += wide ? 4 : 2;
        out[0] = scaled(value, blue);
        out[1] = scaled(value, green);
        out[2] = scaled(value, red);
        out[3] = wide ? scaled(value, alpha) : 255;
    }
}

void bgrRow(const std::uint8_t* in, std::uint8_t* out, std::size_t width) {
    for (std::size_t x = 0; x < width; ++x, in += 3, out += 4) {
        out[0] = in[0];
        out[1] = in[1];
        out[2] = in[2];
        out[3] = 255;
    }
}

void decodeRow(const DibHeader& header, const std::uint8_t* in, std::uint8_t* out, std::size_t width) {
    if (header.bitCount <= 8)
        indexedRow(in, header, out, width);
    else if (header.bitCount == 24)
        bgrRow(in, out, width);
    else if (header.bitCount == 32 && header.compression == kBiRgb)
        std::memcpy(out, in, width * 4);
    else
        maskedRow(in, header, out, width);
}

}  // namespace

bool decodeDibPixels(const DibHeader& header, std::span<const std::uint8_t> pixels, c32bppDIB& surface) {
    const std::uint64_t rowBytes = dibRowBytes(header.bitCount, header.width);
    const auto rows = static_cast<std::uint64_t>(header.rows());
    if (rowBytes == 0 || pixels.size() / rowBytes < rows) return false;
    if (surface.Width() != header.width || surface.Height() != header.rows()) return false;
    const auto width = static_cast<std::size_t>(header.width);
    for (std::uint64_t row = 0; row < rows; ++row) {
        // Rows bottom-up in the file map straight onto the surface's rows.
        const std::uint64_t memoryRow = header.topDown() ? rows - 1 - row : row;
        decodeRow(header, pixels.data() + row * rowBytes, surface.BitsPointer() + memoryRow * width * 4,
                  width);
    }
    return true;
}

}  // namespace orvanta
