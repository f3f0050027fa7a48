#include "image/DibHeader.h"

#include <limits>

#include "image/RasterBytes.h"

namespace orvanta {

namespace {

constexpr std::size_t kCoreHeaderSize = 12;
constexpr std::size_t kInfoHeaderSize = 40;
constexpr std::size_t kMasksInHeaderSize = 52;
constexpr std::size_t kAlphaMaskInHeaderSize = 56;

bool readCoreHeader(ByteRun info, DibHeader& header) {
    if (!inside(info, 0, kCoreHeaderSize)) return false;
    header.width = static_cast<std::int32_t>(le16(info, 4));
    header.height = static_cast<std::int32_t>(le16(info, 6));
    header.bitCount = le16(info, 10);
    header.compression = kBiRgb;
    return true;
}

bool readInfoHeader(ByteRun info, std::size_t headerSize, DibHeader& header, std::uint32_t& colorsUsed) {
    if (headerSize < kInfoHeaderSize || !inside(info, 0, headerSize)) return false;
    header.width = static_cast<std::int32_t>(le32(info, 4));
    header.height = static_cast<std::int32_t>(le32(info, 8));
    header.bitCount = le16(info, 14);
    header.compression = le32(info, 16);
    colorsUsed = le32(info, 32);
    return true;
}

bool isBitfields(std::uint32_t compression) {
    return compression == kBiBitfields || compression == kBiAlphaBitfields;
}

bool validCombination(const DibHeader& header) {
    if (header.width <= 0 || header.height == 0 || header.height == std::numeric_limits<std::int32_t>::min())
        return false;
    const std::uint32_t bits = header.bitCount;
    switch (header.compression) {
        case kBiRgb:
            return bits == 1 || bits == 2 || bits == 4 || bits == 8 || bits == 16 || bits == 24 || bits == 32;
        case kBiRle8:
            return bits == 8 && !header.topDown();
        case kBiRle4:
            return bits == 4 && !header.topDown();
        case kBiBitfields:
        case kBiAlphaBitfields:
            return bits == 16 || bits == 32;
        default:
            return false;
    }
}

// Masks of an uncompressed 16-bit (5-5-5) or 32-bit file; other files give theirs after the header
// or, in the longer headers, inside it (the alpha mask from 56 bytes on).
bool readMasks(ByteRun info, std::size_t headerSize, DibHeader& header, std::size_t& at) {
    if (header.bitCount == 16) header.masks = {0x7C00, 0x03E0, 0x001F, 0};
    if (header.bitCount == 32) header.masks = {0xFF0000, 0xFF00, 0xFF, 0xFF000000};
    if (!isBitfields(header.compression)) return true;
    std::size_t count = header.compression == kBiAlphaBitfields ? 4 : 3;
    std::size_t from = at;
    if (headerSize >= kMasksInHeaderSize) {
        from = kInfoHeaderSize;
        count = headerSize >= kAlphaMaskInHeaderSize ? 4 : 3;
    } else {
        if (!inside(info, at, count * 4)) return false;
        at += count * 4;
    }
    header.masks[3] = 0;
    for (std::size_t i = 0; i < count; ++i) header.masks[i] = le32(info, from + i * 4);
    return true;
}

bool readPalette(ByteRun info, std::size_t& at, std::size_t entrySize, std::uint32_t colorsUsed,
                 DibHeader& header) {
    if (header.bitCount > 8) return true;
    const std::uint32_t full = 1u << header.bitCount;
    const std::uint32_t entries = colorsUsed == 0 ? full : (colorsUsed < 256 ? colorsUsed : 256);
    if (!inside(info, at, std::uint64_t{entries} * entrySize)) return false;
    for (std::uint32_t i = 0; i < entries; ++i, at += entrySize)
        header.palette[i] = le16(info, at) | static_cast<std::uint32_t>(info[at + 2]) << 16;
    return true;
}

}  // namespace

bool readDibHeader(std::span<const std::uint8_t> info, DibHeader& header) {
    header = DibHeader{};
    if (!inside(info, 0, 4)) return false;
    const std::uint32_t headerSize = le32(info, 0);
    std::uint32_t colorsUsed = 0;
    const bool core = headerSize == kCoreHeaderSize;
    if (core ? !readCoreHeader(info, header) : !readInfoHeader(info, headerSize, header, colorsUsed))
        return false;
    if (!validCombination(header)) return false;
    std::size_t at = headerSize;
    if (!readMasks(info, headerSize, header, at)) return false;
    if (!readPalette(info, at, core ? 3 : 4, colorsUsed, header)) return false;
    header.headerEnd = at;
    for (std::uint32_t i = 0; i < 256; ++i) header.palette[i] |= 0xFF000000u;
    return true;
}

std::uint64_t dibRowBytes(std::uint32_t bitCount, std::int32_t width) {
    return ((std::uint64_t{bitCount} * static_cast<std::uint64_t>(width) + 31) & ~std::uint64_t{31}) / 8;
}

}  // namespace orvanta
