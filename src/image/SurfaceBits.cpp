#include <algorithm>
#include <cstring>

#include "image/c32bppDIB.h"

namespace orvanta {

namespace {

struct BitsLayout {
    std::int32_t x = 0, y = 0, width = 0, height = 0;
    std::size_t bytesPerPixel = 4;
    std::size_t rowBytes = 0;
};

BitsLayout layoutFor(std::int32_t width, std::int32_t height, bool as32bpp, bool asWordAligned) {
    BitsLayout layout;
    layout.width = width;
    layout.height = height;
    layout.bytesPerPixel = as32bpp ? 4 : 3;
    layout.rowBytes = static_cast<std::size_t>(width) * layout.bytesPerPixel;
    if (!as32bpp && asWordAligned) layout.rowBytes = (layout.rowBytes + 3) & ~std::size_t{3};
    return layout;
}

void copyOut(const std::uint8_t* from, std::uint8_t* to, std::size_t bytesPerPixel, bool straight) {
    std::uint32_t blue = from[0], green = from[1], red = from[2];
    const std::uint32_t alpha = from[3];
    if (straight && alpha != 0 && alpha != 255) {
        blue = blue * 255 / alpha;
        green = green * 255 / alpha;
        red = red * 255 / alpha;
    }
    to[0] = static_cast<std::uint8_t>(blue);
    to[1] = static_cast<std::uint8_t>(green);
    to[2] = static_cast<std::uint8_t>(red);
    if (bytesPerPixel == 4) to[3] = static_cast<std::uint8_t>(alpha);
}

// Stores one pixel so that the surface stays premultiplied whatever the caller hands in.
void copyIn(const std::uint8_t* from, std::uint8_t* to, std::size_t bytesPerPixel, bool premultiplied) {
    const std::uint32_t alpha = bytesPerPixel == 4 ? from[3] : 255;
    for (std::size_t c = 0; c < 3; ++c) {
        std::uint32_t value = from[c];
        if (!premultiplied && alpha != 255) value = value * alpha / 255;
        to[c] = static_cast<std::uint8_t>(std::min(value, alpha));
    }
    to[3] = static_cast<std::uint8_t>(alpha);
}

}  // namespace

bool c32bppDIB::GetDIBbits(std::vector<std::uint8_t>& outStream, bool as32bpp, bool asWordAligned,
                           bool asBottomUp, bool asPreMultiplied, std::int32_t dstX, std::int32_t dstY,
                           std::int32_t dstWidth, std::int32_t dstHeight) const {
    outStream.clear();
    const std::int32_t x = std::max(dstX, 0), y = std::max(dstY, 0);
    if (pixels_.empty() || x >= width_ || y >= height_) return false;
    const std::int32_t width = dstWidth <= 0 ? width_ - x : std::min(dstWidth, width_ - x);
    const std::int32_t height = dstHeight <= 0 ? height_ - y : std::min(dstHeight, height_ - y);
    const BitsLayout layout = layoutFor(width, height, as32bpp, asWordAligned);
    outStream.assign(layout.rowBytes * static_cast<std::size_t>(height), 0);
    const std::size_t stride = static_cast<std::size_t>(width_) * 4;
    if (as32bpp && asBottomUp && asPreMultiplied && x == 0 && width == width_) {
        // The whole width, as it stands: one block from the rectangle's lowest row up.
        std::memcpy(outStream.data(),
                    pixels_.data() + static_cast<std::size_t>(height_ - y - height) * stride,
                    outStream.size());
        return true;
    }
    for (std::int32_t row = 0; row < height; ++row) {
        const std::int32_t fromTop = asBottomUp ? y + height - 1 - row : y + row;
        const std::uint8_t* from = pixels_.data() + static_cast<std::size_t>(height_ - 1 - fromTop) * stride +
                                   static_cast<std::size_t>(x) * 4;
        std::uint8_t* to = outStream.data() + static_cast<std::size_t>(row) * layout.rowBytes;
        for (std::int32_t column = 0; column < width; ++column, from += 4, to += layout.bytesPerPixel)
            copyOut(from, to, layout.bytesPerPixel, !asPreMultiplied);
    }
    return true;
}

bool c32bppDIB::SetDIBbits(std::span<const std::uint8_t> inStream, bool is32bpp, bool isWordAligned,
                           bool isBottomUp, bool asPreMultiplied) {
    if (pixels_.empty()) return false;
    const BitsLayout layout = layoutFor(width_, height_, is32bpp, isWordAligned);
    if (inStream.size() != layout.rowBytes * static_cast<std::size_t>(height_)) return false;
    const std::size_t stride = static_cast<std::size_t>(width_) * 4;
    bool translucent = false;
    for (std::int32_t row = 0; row < height_; ++row) {
        const std::int32_t memoryRow = isBottomUp ? row : height_ - 1 - row;
        const std::uint8_t* from = inStream.data() + static_cast<std::size_t>(row) * layout.rowBytes;
        std::uint8_t* to = pixels_.data() + static_cast<std::size_t>(memoryRow) * stride;
        for (std::int32_t column = 0; column < width_; ++column, from += layout.bytesPerPixel, to += 4) {
            copyIn(from, to, layout.bytesPerPixel, asPreMultiplied);
            translucent = translucent || to[3] != 255;
        }
    }
    alpha_ = translucent;
    return true;
}

}  // namespace orvanta
