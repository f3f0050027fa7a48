#pragma once
// PNG files made for the tests with zlib directly: any colour type, depth and interlace, rows
// filtered with every filter type in turn, and chunks that can be spoilt on purpose.

#include <zlib.h>

#include <cstdint>
#include <random>
#include <string>
#include <vector>

#include "image/PngLayout.h"

namespace orvanta::testing {

using Bytes = std::vector<std::uint8_t>;

inline void putBe32(Bytes& out, std::uint32_t value) {
    for (int shift = 24; shift >= 0; shift -= 8) out.push_back(static_cast<std::uint8_t>(value >> shift));
}

inline void putChunk(Bytes& png, const std::string& type, const Bytes& data, bool spoilCrc = false) {
    putBe32(png, static_cast<std::uint32_t>(data.size()));
    const std::size_t start = png.size();
    png.insert(png.end(), type.begin(), type.end());
    png.insert(png.end(), data.begin(), data.end());
    const auto crc =
        static_cast<std::uint32_t>(crc32(0, png.data() + start, static_cast<uInt>(png.size() - start)));
    putBe32(png, spoilCrc ? ~crc : crc);
}

struct PngRecipe {
    PngHeader header;
    Bytes palette;       // PLTE data, written when not empty
    Bytes transparency;  // tRNS data, written when not empty
    unsigned seed = 1;
    bool spoilIdatCrc = false;
    std::vector<std::pair<std::string, Bytes>> extraChunks;  // written before IDAT
};

// Random samples for every pass; 16-bit samples have equal bytes, so that comparing high bytes
// and whole samples agree. Rows are filtered with types 0 to 4 in turn (the bytes are random, so
// any filter gives valid data).
inline Bytes pngRawData(const PngHeader& header, unsigned seed) {
    std::mt19937 random(seed);
    Bytes raw;
    std::uint32_t filter = 0;
    for (std::uint32_t pass = firstPass(header); pass <= lastPass(header); ++pass) {
        const PngPass& p = kPngPasses[pass];
        const std::uint64_t columns = passCount(static_cast<std::uint64_t>(header.width), p.xStart, p.xStep);
        const std::uint64_t rows = passCount(static_cast<std::uint64_t>(header.height), p.yStart, p.yStep);
        if (columns == 0 || rows == 0) continue;
        for (std::uint64_t r = 0; r < rows; ++r) {
            raw.push_back(static_cast<std::uint8_t>(filter++ % 5));
            const std::uint64_t bytes = header.rowBytes(columns);
            for (std::uint64_t i = 0; i < bytes; ++i) {
                if (header.bitDepth == 16 && i % 2 == 1) {
                    raw.push_back(raw.back());
                } else {
                    // Few values, so that tRNS matches some pixels.
                    raw.push_back(static_cast<std::uint8_t>(random() % 4 == 0 ? 0x11 : random()));
                }
            }
        }
    }
    return raw;
}

inline Bytes pngIdat(const Bytes& raw) {
    Bytes packed(compressBound(static_cast<uLong>(raw.size())));
    uLongf size = static_cast<uLongf>(packed.size());
    compress2(packed.data(), &size, raw.data(), static_cast<uLong>(raw.size()), 6);
    packed.resize(size);
    return packed;
}

inline Bytes makePng(const PngRecipe& recipe, const Bytes& idat) {
    Bytes png = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'};
    Bytes ihdr;
    putBe32(ihdr, static_cast<std::uint32_t>(recipe.header.width));
    putBe32(ihdr, static_cast<std::uint32_t>(recipe.header.height));
    ihdr.insert(ihdr.end(), {recipe.header.bitDepth, recipe.header.colorType, 0, 0, recipe.header.interlace});
    putChunk(png, "IHDR", ihdr);
    if (!recipe.palette.empty()) putChunk(png, "PLTE", recipe.palette);
    if (!recipe.transparency.empty()) putChunk(png, "tRNS", recipe.transparency);
    for (const auto& [type, data] : recipe.extraChunks) putChunk(png, type, data);
    // Two IDAT chunks, to show that they are joined.
    const std::size_t half = idat.size() / 2;
    putChunk(png, "IDAT", Bytes(idat.begin(), idat.begin() + static_cast<std::ptrdiff_t>(half)));
    putChunk(png, "IDAT", Bytes(idat.begin() + static_cast<std::ptrdiff_t>(half), idat.end()),
             recipe.spoilIdatCrc);
    putChunk(png, "IEND", {});
    return png;
}

inline Bytes makePng(const PngRecipe& recipe) {
    return makePng(recipe, pngIdat(pngRawData(recipe.header, recipe.seed)));
}

// A palette of `entries` random colours.
inline Bytes randomPalette(std::size_t entries, unsigned seed) {
    std::mt19937 random(seed);
    Bytes palette(entries * 3);
    for (auto& byte : palette) byte = static_cast<std::uint8_t>(random());
    return palette;
}

}  // namespace orvanta::testing
