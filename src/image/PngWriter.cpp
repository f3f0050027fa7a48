#include <cstdlib>
#include <cstring>

#include "image/PngLayout.h"
#include "image/ZlibLibrary.h"
#include "image/cPNGwriter.h"

namespace orvanta {

namespace {

using Bytes = std::vector<std::uint8_t>;

constexpr std::size_t kLongText = 1024;

void putBe32(Bytes& out, std::uint32_t value) {
    for (int shift = 24; shift >= 0; shift -= 8) out.push_back(static_cast<std::uint8_t>(value >> shift));
}

void putChunk(Bytes& png, ZlibLibrary& zlib, const char* type, const Bytes& data) {
    putBe32(png, static_cast<std::uint32_t>(data.size()));
    const std::size_t start = png.size();
    png.insert(png.end(), type, type + 4);
    png.insert(png.end(), data.begin(), data.end());
    putBe32(png, zlib.crc32(0, std::span<const std::uint8_t>(png).subspan(start)));
}

// The picture's least colour type: 0 when opaque and gray, 2 when opaque, else 6.
std::uint8_t colourTypeOf(const c32bppDIB& surface) {
    const std::uint8_t* p = surface.BitsPointer();
    const std::size_t count =
        static_cast<std::size_t>(surface.Width()) * static_cast<std::size_t>(surface.Height());
    bool gray = true;
    for (std::size_t i = 0; i < count; ++i, p += 4) {
        if (p[3] != 255) return 6;
        gray = gray && p[0] == p[1] && p[1] == p[2];
    }
    return gray ? 0 : 2;
}

// One picture row as PNG samples, colours restored from their premultiplied form.
void rowSamples(const c32bppDIB& surface, std::uint8_t colorType, std::uint64_t y, const PngPass& pass,
                std::uint64_t columns, std::uint8_t* out) {
    const auto width = static_cast<std::uint64_t>(surface.Width());
    const std::uint8_t* row =
        surface.BitsPointer() + (static_cast<std::uint64_t>(surface.Height()) - 1 - y) * width * 4;
    for (std::uint64_t i = 0; i < columns; ++i) {
        const std::uint8_t* p = row + (pass.xStart + i * pass.xStep) * 4;
        const std::uint32_t a = p[3];
        std::uint32_t r = p[2], g = p[1], b = p[0];
        if (a != 0 && a != 255) {
            r = r * 255 / a;
            g = g * 255 / a;
            b = b * 255 / a;
        }
        if (colorType == 0) {
            *out++ = static_cast<std::uint8_t>(r);
            continue;
        }
        *out++ = static_cast<std::uint8_t>(r);
        *out++ = static_cast<std::uint8_t>(g);
        *out++ = static_cast<std::uint8_t>(b);
        if (colorType == 6) *out++ = static_cast<std::uint8_t>(a);
    }
}

std::uint8_t paeth(int left, int above, int upperLeft) {
    const int p = left + above - upperLeft;
    const int pa = std::abs(p - left), pb = std::abs(p - above), pc = std::abs(p - upperLeft);
    if (pa <= pb && pa <= pc) return static_cast<std::uint8_t>(left);
    return static_cast<std::uint8_t>(pb <= pc ? above : upperLeft);
}

void applyFilter(std::uint32_t type, const Bytes& row, const Bytes& above, std::size_t distance,
                 std::uint8_t* out) {
    for (std::size_t i = 0; i < row.size(); ++i) {
        const int left = i >= distance ? row[i - distance] : 0, up = above[i],
                  upperLeft = i >= distance ? above[i - distance] : 0;
        int predicted = 0;
        if (type == 1) predicted = left;
        if (type == 2) predicted = up;
        if (type == 3) predicted = (left + up) / 2;
        if (type == 4) predicted = paeth(left, up, upperLeft);
        out[i] = static_cast<std::uint8_t>(row[i] - predicted);
    }
}

// The filter type with the smallest sum of the filtered bytes taken as signed values.
std::uint32_t bestFilter(const Bytes& row, const Bytes& above, std::size_t distance, Bytes& scratch) {
    std::uint32_t best = 0;
    std::uint64_t bestSum = UINT64_MAX;
    for (std::uint32_t type = 0; type <= 4; ++type) {
        applyFilter(type, row, above, distance, scratch.data());
        std::uint64_t sum = 0;
        for (const std::uint8_t byte : scratch)
            sum += static_cast<std::uint64_t>(std::abs(static_cast<std::int8_t>(byte)));
        if (sum < bestSum) best = type, bestSum = sum;
    }
    return best;
}

Bytes filteredData(const c32bppDIB& surface, const PngHeader& header, std::int32_t filter) {
    Bytes data;
    const std::size_t distance = header.filterDistance();
    for (std::uint32_t pass = firstPass(header); pass <= lastPass(header); ++pass) {
        const PngPass& p = kPngPasses[pass];
        const std::uint64_t columns = passCount(static_cast<std::uint64_t>(header.width), p.xStart, p.xStep);
        const std::uint64_t rows = passCount(static_cast<std::uint64_t>(header.height), p.yStart, p.yStep);
        if (columns == 0 || rows == 0) continue;
        const auto rowBytes = static_cast<std::size_t>(header.rowBytes(columns));
        Bytes row(rowBytes), above(rowBytes, 0), scratch(rowBytes);
        for (std::uint64_t r = 0; r < rows; ++r) {
            rowSamples(surface, header.colorType, p.yStart + r * p.yStep, p, columns, row.data());
            // Gray goes unfiltered; the others search unless one filter type was chosen.
            std::uint32_t type = 0;
            if (header.colorType != 0)
                type = filter >= 0 && filter <= 4 ? static_cast<std::uint32_t>(filter)
                                                  : bestFilter(row, above, distance, scratch);
            data.push_back(static_cast<std::uint8_t>(type));
            const std::size_t at = data.size();
            data.resize(at + rowBytes);
            applyFilter(type, row, above, distance, data.data() + at);
            above.swap(row);
        }
    }
    return data;
}

Bytes headerChunk(const PngHeader& header) {
    Bytes ihdr;
    putBe32(ihdr, static_cast<std::uint32_t>(header.width));
    putBe32(ihdr, static_cast<std::uint32_t>(header.height));
    ihdr.insert(ihdr.end(), {header.bitDepth, header.colorType, 0, 0, header.interlace});
    return ihdr;
}

// A colour 0x00BBGGRR in the 16-bit samples of the colour type (gray takes the red byte).
Bytes colourSamples(std::uint32_t colour, std::uint8_t colorType) {
    const auto r = static_cast<std::uint8_t>(colour), g = static_cast<std::uint8_t>(colour >> 8),
               b = static_cast<std::uint8_t>(colour >> 16);
    if (colorType == 0) return {0, r};
    return {0, r, 0, g, 0, b};
}

void putText(Bytes& png, ZlibLibrary& zlib, const PngTextEntry& entry) {
    Bytes data(entry.keyword.begin(), entry.keyword.end());
    data.push_back(0);
    Bytes packed;
    const std::span<const std::uint8_t> text(reinterpret_cast<const std::uint8_t*>(entry.text.data()),
                                             entry.text.size());
    if (entry.text.size() > kLongText && zlib.compress(packed, text, 9) && packed.size() + 1 < text.size()) {
        data.push_back(0);  // compression method
        data.insert(data.end(), packed.begin(), packed.end());
        putChunk(png, zlib, "zTXt", data);
        return;
    }
    data.insert(data.end(), text.begin(), text.end());
    putChunk(png, zlib, "tEXt", data);
}

}  // namespace

bool cPNGwriter::SaveToStream(const c32bppDIB& surface, std::vector<std::uint8_t>& receiver) {
    receiver.clear();
    const std::unique_ptr<ZlibLibrary> zlib = ZlibLibrary::find();
    if (surface.Handle() == 0 || zlib == nullptr) return false;
    const std::int32_t filterChoice = filter < 0 || filter > 6 ? kPngFilterDefault : filter;
    const PngHeader header{surface.Width(), surface.Height(), 8, colourTypeOf(surface),
                           static_cast<std::uint8_t>(interlace ? 1 : 0)};
    Bytes idat;
    if (!zlib->compress(idat, filteredData(surface, header, filterChoice), 9)) return false;
    Bytes png = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'};
    putChunk(png, *zlib, "IHDR", headerChunk(header));
    for (const auto& entry : texts_)
        if (entry.beforeData) putText(png, *zlib, entry);
    if (background) putChunk(png, *zlib, "bKGD", colourSamples(*background, header.colorType));
    if (transparentColor && header.colorType != 6)
        putChunk(png, *zlib, "tRNS", colourSamples(*transparentColor, header.colorType));
    putChunk(png, *zlib, "IDAT", idat);
    if (time) {
        putChunk(png, *zlib, "tIME",
                 {static_cast<std::uint8_t>(time->year >> 8), static_cast<std::uint8_t>(time->year),
                  time->month, time->day, time->hour, time->minute, time->second});
    }
    for (const auto& entry : texts_)
        if (!entry.beforeData) putText(png, *zlib, entry);
    putChunk(png, *zlib, "IEND", {});
    receiver = std::move(png);
    return true;
}

}  // namespace orvanta
