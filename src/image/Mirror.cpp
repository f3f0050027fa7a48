#include <cstring>

#include "image/RasterBytes.h"
#include "image/RenderPixels.h"

namespace orvanta {

bool PixelBlock::allocate(std::int64_t blockWidth, std::int64_t blockHeight) {
    if (!surfaceFits(blockWidth, blockHeight)) return false;
    width = static_cast<std::int32_t>(blockWidth);
    height = static_cast<std::int32_t>(blockHeight);
    pixels.assign(static_cast<std::size_t>(blockWidth * blockHeight * 4), 0);
    return true;
}

bool rectInside(PixelView view, SourceRect rect) {
    return !view.empty() && rect.x >= 0 && rect.y >= 0 && rect.width > 0 && rect.height > 0 &&
           rect.x <= view.width - rect.width && rect.y <= view.height - rect.height;
}

bool copyPixels(PixelView source, SourceRect rect, PixelBlock& out) {
    if (!rectInside(source, rect) || !out.allocate(rect.width, rect.height)) return false;
    const std::size_t rowBytes = static_cast<std::size_t>(rect.width) * 4;
    for (std::int32_t y = 0; y < rect.height; ++y)
        std::memcpy(out.pixels.data() + pixelOffset(out.view(), 0, y),
                    source.pixels + pixelOffset(source, rect.x, rect.y + y), rowBytes);
    return true;
}

bool mirrorPixels(PixelView source, SourceRect rect, std::int32_t signedWidth, std::int32_t signedHeight,
                  PixelBlock& out) {
    const bool reverseColumns = signedWidth <= 0;
    const bool reverseRows = signedHeight < 0;
    if (!reverseColumns && !reverseRows) return false;
    if (!rectInside(source, rect) || !out.allocate(rect.width, rect.height)) return false;
    const std::size_t rowBytes = static_cast<std::size_t>(rect.width) * 4;
    for (std::int32_t y = 0; y < rect.height; ++y) {
        const std::int32_t fromRow = reverseRows ? rect.height - 1 - y : y;
        const std::uint8_t* from = source.pixels + pixelOffset(source, rect.x, rect.y + fromRow);
        std::uint8_t* to = out.pixels.data() + pixelOffset(out.view(), 0, y);
        if (!reverseColumns) {
            std::memcpy(to, from, rowBytes);
            continue;
        }
        for (std::int32_t x = 0; x < rect.width; ++x)
            std::memcpy(to + static_cast<std::size_t>(rect.width - 1 - x) * 4,
                        from + static_cast<std::size_t>(x) * 4, 4);
    }
    return true;
}

}  // namespace orvanta
