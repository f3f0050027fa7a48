#include "image/IconBitmap.h"

#include "image/DibHeader.h"
#include "image/DibPixels.h"
#include "image/RasterBytes.h"

namespace orvanta {

namespace {

bool readIconHeader(ByteRun data, DibHeader& header) {
    if (!readDibHeader(data, header)) return false;
    if (header.compression != kBiRgb && header.compression != kBiBitfields) return false;
    if (header.height < 2) return false;
    header.height /= 2;
    return surfaceFits(header.width, header.height);
}

// Mask rows run bottom-up like the pixels, one bit a pixel, padded to 4 bytes. A mask cut short by
// the end of the data is ignored.
bool applyAndMask(ByteRun mask, c32bppDIB& surface) {
    const auto width = static_cast<std::size_t>(surface.Width());
    const auto rows = static_cast<std::size_t>(surface.Height());
    const auto rowBytes = static_cast<std::size_t>(dibRowBytes(1, surface.Width()));
    if (mask.size() / rowBytes < rows) return false;
    bool anyTransparent = false;
    for (std::size_t y = 0; y < rows; ++y) {
        std::uint8_t* out = surface.BitsPointer() + y * width * 4;
        for (std::size_t x = 0; x < width; ++x, out += 4) {
            if (((mask[y * rowBytes + x / 8] >> (7 - x % 8)) & 1) == 0) continue;
            out[0] = out[1] = out[2] = out[3] = 0;
            anyTransparent = true;
        }
    }
    return anyTransparent;
}

void finishWithAlpha(bool cursor, c32bppDIB& surface) {
    std::int32_t type = surface.ImageType();
    const std::size_t bytes =
        static_cast<std::size_t>(surface.scanWidth()) * static_cast<std::size_t>(surface.Height());
    surface.setAlpha(validateAlpha({surface.BitsPointer(), bytes}, true, type));
    surface.setImageType(cursor ? kImageCursor32 : kImageIcon32);
}

}  // namespace

bool loadIconBitmap(std::span<const std::uint8_t> data, bool cursor, c32bppDIB& surface) {
    DibHeader header;
    if (!readIconHeader(data, header)) return false;
    const ByteRun pixels = data.subspan(header.headerEnd);
    const std::uint64_t pixelBytes =
        dibRowBytes(header.bitCount, header.width) * static_cast<std::uint64_t>(header.height);
    if (pixels.size() < pixelBytes || !surface.InitializeDIB(header.width, header.height)) return false;
    if (!decodeDibPixels(header, pixels, surface)) {
        surface.DestroyDIB();
        return false;
    }
    if (header.bitCount == 32) {
        finishWithAlpha(cursor, surface);
        return true;
    }
    surface.setAlpha(applyAndMask(pixels.subspan(static_cast<std::size_t>(pixelBytes)), surface));
    surface.setImageType(cursor ? kImageCursor : kImageIcon);
    return true;
}

}  // namespace orvanta
