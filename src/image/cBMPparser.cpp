#include "image/cBMPparser.h"

#include "image/DibHeader.h"
#include "image/DibPixels.h"
#include "image/DibRle.h"
#include "image/RasterBytes.h"

namespace orvanta {

namespace {

constexpr std::size_t kFileHeaderSize = 14;
constexpr std::uint32_t kSignature = 19778;  // "BM"

bool decodeInto(const DibHeader& header, ByteRun pixels, c32bppDIB& surface) {
    if (!surfaceFits(header.width, header.rows())) return false;
    // Uncompressed rows must all be present before the surface is made.
    const bool runLength = header.compression == kBiRle8 || header.compression == kBiRle4;
    if (!runLength && pixels.size() / dibRowBytes(header.bitCount, header.width) <
                          static_cast<std::uint64_t>(header.rows()))
        return false;
    if (!surface.InitializeDIB(header.width, header.rows())) return false;
    return runLength ? decodeDibRle(header, pixels, surface) : decodeDibPixels(header, pixels, surface);
}

void finishAlpha(const DibHeader& header, c32bppDIB& surface) {
    if (header.bitCount != 32) {
        surface.setAlpha(false);
        surface.setImageType(kImageBitmap);
        return;
    }
    std::int32_t type = surface.ImageType();
    const std::size_t bytes =
        static_cast<std::size_t>(surface.scanWidth()) * static_cast<std::size_t>(surface.Height());
    surface.setAlpha(validateAlpha({surface.BitsPointer(), bytes}, true, type));
    surface.setImageType(type);
}

}  // namespace

bool cBMPparser::LoadStream(std::span<const std::uint8_t> bytes, c32bppDIB& surface) {
    if (bytes.size() < kFileHeaderSize || le16(bytes, 0) != kSignature) return false;
    surface.DestroyDIB();
    DibHeader header;
    if (!readDibHeader(bytes.subspan(kFileHeaderSize), header)) return false;
    // Some writers leave the pixel offset 0; the pixels then follow the colour table.
    std::uint64_t offset = le32(bytes, 10);
    if (offset == 0) offset = kFileHeaderSize + header.headerEnd;
    if (offset >= bytes.size()) return false;
    if (!decodeInto(header, bytes.subspan(static_cast<std::size_t>(offset)), surface)) {
        surface.DestroyDIB();
        return false;
    }
    finishAlpha(header, surface);
    return true;
}

}  // namespace orvanta
