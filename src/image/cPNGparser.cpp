#include "image/cPNGparser.h"

#include <algorithm>
#include <cstring>

#include "image/Inflate.h"
#include "image/PngUnfilter.h"
#include "image/RasterBytes.h"
#include "image/ZlibLibrary.h"

namespace orvanta {

namespace {

constexpr std::uint8_t kSignature[8] = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'};

bool isType(std::span<const std::uint8_t> type, const char* name) {
    return std::memcmp(type.data(), name, 4) == 0;
}

}  // namespace

bool cPNGparser::LoadStream(std::span<const std::uint8_t> bytes, c32bppDIB& surface) {
    if (bytes.size() < sizeof kSignature || std::memcmp(bytes.data(), kSignature, sizeof kSignature) != 0)
        return false;
    surface.DestroyDIB();
    failure_.clear();
    if (!load(bytes, surface)) surface.DestroyDIB();
    return true;
}

bool cPNGparser::load(std::span<const std::uint8_t> bytes, c32bppDIB& surface) {
    // The host's codec is not asked first: this decoder is exact and the same on every host.
    const std::unique_ptr<ZlibLibrary> zlib = ZlibLibrary::find();
    if (!walkChunks(bytes, zlib.get())) return false;
    if (compressed_.empty()) return fail("The file holds no image data (IDAT).");
    std::vector<std::uint8_t> unpacked;
    if (!unpack(zlib.get(), unpacked)) return fail("The image data could not be unpacked.");
    makePalette();
    return decode(unpacked, surface) || fail("The image data is damaged.");
}

bool cPNGparser::fail(std::string why) {
    failure_ = std::move(why);
    return false;
}

bool cPNGparser::walkChunks(std::span<const std::uint8_t> bytes, ZlibLibrary* zlib) {
    compressed_.reserve(bytes.size() / 2);
    std::uint64_t at = sizeof kSignature;
    while (at < bytes.size()) {
        const auto cut = [this] { return fail("The file ends inside a chunk."); };
        if (!inside(bytes, at, 12)) return cut();
        const std::uint64_t length = be32(bytes, static_cast<std::size_t>(at));
        if (!inside(bytes, at, length + 12)) return cut();
        const auto typeAt = static_cast<std::size_t>(at + 4);
        const std::span<const std::uint8_t> type = bytes.subspan(typeAt, 4);
        const std::span<const std::uint8_t> data =
            bytes.subspan(typeAt + 4, static_cast<std::size_t>(length));
        at += length + 12;
        if (isType(type, "IEND")) break;
        if (length == 0) continue;
        const bool known =
            isType(type, "IHDR") || isType(type, "PLTE") || isType(type, "tRNS") || isType(type, "IDAT");
        if (!known) continue;
        // Only with zlib is there a CRC to check against.
        const std::string name(type.begin(), type.end());
        if (zlib != nullptr &&
            zlib->crc32(0, bytes.subspan(typeAt, data.size() + 4)) != be32(bytes, typeAt + 4 + data.size()))
            return fail("The checksum of the " + name + " chunk is wrong.");
        if (isType(type, "IHDR") && !readHeader(data)) return fail("The image header (IHDR) is invalid.");
        if (isType(type, "PLTE") && !readPalette(data)) return fail("The palette (PLTE) is invalid.");
        if (isType(type, "tRNS")) readTransparency(data);
        if (isType(type, "IDAT")) compressed_.insert(compressed_.end(), data.begin(), data.end());
    }
    return haveHeader_ || fail("The file has no image header (IHDR).");
}

bool cPNGparser::readHeader(std::span<const std::uint8_t> data) {
    if (data.size() < 13) return false;
    const auto width = static_cast<std::int32_t>(be32(data, 0)),
               height = static_cast<std::int32_t>(be32(data, 4));
    const std::uint8_t depth = data[8], colorType = data[9];
    if (width < 1 || height < 1 || data[10] != 0 || data[11] != 0 || data[12] >= 2) return false;
    if (depth != 1 && depth != 2 && depth != 4 && depth != 8 && depth != 16) return false;
    if (colorType != 0 && colorType != 2 && colorType != 3 && colorType != 4 && colorType != 6) return false;
    if (!pngSizeFits(width, height)) return false;
    header_ = {width, height, depth, colorType, data[12]};
    haveHeader_ = true;
    unpackedSize_ = pngUnpackedSize(header_);
    return true;
}

bool cPNGparser::readPalette(std::span<const std::uint8_t> data) {
    if (header_.colorType == 0 || header_.colorType == 4) return true;
    if (data.size() % 3 != 0) return false;
    palette_.assign(data.begin(),
                    data.begin() + static_cast<std::ptrdiff_t>(std::min<std::size_t>(data.size(), 768)));
    return true;
}

void cPNGparser::readTransparency(std::span<const std::uint8_t> data) {
    if (header_.colorType == 4 || header_.colorType == 6) return;
    transparency_.assign(data.begin(), data.end());
    haveTransparency_ = true;
}

bool cPNGparser::unpack(ZlibLibrary* zlib, std::vector<std::uint8_t>& unpacked) {
    if (!haveHeader_ || unpackedSize_ == 0 || unpackedSize_ > SIZE_MAX) return false;
    unpacked.assign(static_cast<std::size_t>(unpackedSize_), 0);
    std::size_t written = 0;
    bool done = zlib != nullptr && zlib->uncompress(unpacked, written, compressed_) == 0;
    if (!done) {
        std::fill(unpacked.begin(), unpacked.end(), std::uint8_t{0});
        done = inflateStream(compressed_, unpacked, written) == kInflateOk;
    }
    std::vector<std::uint8_t>().swap(compressed_);
    return done;
}

// The palette of types 0 and 3 when none came, and the transparency of each type.
void cPNGparser::makePalette() {
    colours_ = {};
    const std::uint8_t type = header_.colorType;
    std::copy(palette_.begin(), palette_.end(), colours_.palette.begin());
    if (type == 0) {
        const std::uint32_t entries = header_.bitDepth < 8 ? 1u << header_.bitDepth : 256;
        const std::uint32_t step = 255 / (entries - 1);
        for (std::uint32_t i = 0; i < entries; ++i)
            std::fill_n(&colours_.palette[i * 3], 3, static_cast<std::uint8_t>(i * step));
    } else if (type == 3 && palette_.empty() && header_.bitDepth == 1) {
        std::fill_n(&colours_.palette[3], 3, std::uint8_t{255});
    }
    if (!haveTransparency_) return;
    // 16-bit samples are compared by their high bytes, smaller ones by the low byte of tRNS.
    const std::size_t byte = header_.bitDepth == 16 ? 0 : 1;
    if (type == 0 && transparency_.size() >= 2) {
        colours_.transparent = transparency_[byte];
    } else if (type == 2 && transparency_.size() >= 6) {
        colours_.transparent =
            transparency_[byte] << 16 | transparency_[byte + 2] << 8 | transparency_[byte + 4];
    } else if (type == 3) {
        colours_.paletteAlpha.fill(255);
        std::copy_n(transparency_.begin(), std::min<std::size_t>(transparency_.size(), 256),
                    colours_.paletteAlpha.begin());
        colours_.paletteHasAlpha = true;
        colours_.transparent = 0;
    }
}

bool cPNGparser::decode(std::vector<std::uint8_t>& unpacked, c32bppDIB& surface) {
    if (!surface.InitializeDIB(header_.width, header_.height)) return false;
    std::size_t at = 0;
    for (std::uint32_t pass = firstPass(header_); pass <= lastPass(header_); ++pass) {
        const PngPass& p = kPngPasses[pass];
        const std::uint64_t columns = passCount(static_cast<std::uint64_t>(header_.width), p.xStart, p.xStep);
        const std::uint64_t rows = passCount(static_cast<std::uint64_t>(header_.height), p.yStart, p.yStep);
        if (columns == 0 || rows == 0) continue;
        const auto rowBytes = static_cast<std::size_t>(header_.rowBytes(columns));
        std::uint8_t* data = unpacked.data() + at;
        if (!unfilterRows(data, static_cast<std::size_t>(rows), rowBytes, header_.filterDistance()))
            return false;
        writePngPass(header_, colours_, data, p, columns, rows, surface);
        at += static_cast<std::size_t>(rows) * (rowBytes + 1);
    }
    surface.setAlpha(header_.colorType >= 4 || colours_.transparent != -1);
    surface.setImageType(kImagePng);
    return true;
}

}  // namespace orvanta
