#include <algorithm>

#include "image/RenderPixels.h"
#include "image/c32bppDIB.h"

namespace orvanta {

namespace {

// Sums of the source's alpha over every rectangle from the origin, one row and column of zeros
// in front, so that any window's total is four look-ups.
std::vector<std::uint32_t> alphaSums(PixelView source) {
    const std::size_t stride = static_cast<std::size_t>(source.width) + 1;
    std::vector<std::uint32_t> sums(stride * (static_cast<std::size_t>(source.height) + 1), 0);
    for (std::int32_t y = 0; y < source.height; ++y) {
        std::uint32_t rowTotal = 0;
        const std::uint8_t* row =
            source.pixels + static_cast<std::size_t>(y) * static_cast<std::size_t>(source.width) * 4;
        for (std::int32_t x = 0; x < source.width; ++x) {
            rowTotal += row[static_cast<std::size_t>(x) * 4 + 3];
            const std::size_t at =
                (static_cast<std::size_t>(y) + 1) * stride + static_cast<std::size_t>(x) + 1;
            sums[at] = sums[at - stride] + rowTotal;
        }
    }
    return sums;
}

void paintShadow(PixelView source, std::int32_t k, std::uint32_t color, c32bppDIB& shadow) {
    const std::vector<std::uint32_t> sums = alphaSums(source);
    const std::size_t stride = static_cast<std::size_t>(source.width) + 1;
    const auto total = [&](std::int32_t x, std::int32_t y) {
        return sums[static_cast<std::size_t>(y) * stride + static_cast<std::size_t>(x)];
    };
    const std::uint32_t area = static_cast<std::uint32_t>((k + 1) * (k + 1));
    const std::uint32_t red = color & 0xFF, green = (color >> 8) & 0xFF, blue = (color >> 16) & 0xFF;
    std::uint8_t* to = shadow.BitsPointer();
    for (std::int32_t y = 0; y < shadow.Height(); ++y) {
        const std::int32_t y0 = std::max(y - k, 0), y1 = std::min(y + 1, source.height);
        for (std::int32_t x = 0; x < shadow.Width(); ++x, to += 4) {
            const std::int32_t x0 = std::max(x - k, 0), x1 = std::min(x + 1, source.width);
            if (x0 >= x1 || y0 >= y1) continue;
            const std::uint32_t a = (total(x1, y1) - total(x0, y1) - total(x1, y0) + total(x0, y0)) / area;
            if (a == 0) continue;
            to[0] = static_cast<std::uint8_t>(blue * a / 255);
            to[1] = static_cast<std::uint8_t>(green * a / 255);
            to[2] = static_cast<std::uint8_t>(red * a / 255);
            to[3] = static_cast<std::uint8_t>(a);
        }
    }
}

}  // namespace

// The shadow's alpha is a box average over (2 * depth + 1) squared pixels, so it spreads `depth`
// pixels beyond the image on every side.
std::unique_ptr<c32bppDIB> c32bppDIB::CreateDropShadow(std::int32_t blurDepth, std::uint32_t color) const {
    if (pixels_.empty()) return nullptr;
    const std::int32_t k = 2 * std::clamp(blurDepth, 0, 10);
    auto shadow = std::make_unique<c32bppDIB>();
    shadow->setGdiToken(gdiToken_);
    if (!shadow->InitializeDIB(width_ + k, height_ + k)) return nullptr;
    paintShadow({pixels_.data(), width_, height_}, k, color, *shadow);
    shadow->setAlpha(true);
    return shadow;
}

bool c32bppDIB::RenderDropShadow_JIT(DrawingContext* destinationDC, std::int32_t destX, std::int32_t destY,
                                     std::int32_t blurDepth, std::uint32_t color, std::int32_t opacity,
                                     c32bppDIB* destHostDIB) const {
    const std::unique_ptr<c32bppDIB> shadow = CreateDropShadow(blurDepth, color);
    if (!shadow) return false;
    return shadow->Render(destinationDC, destX, destY, 0, 0, 0, 0, 0, 0, opacity, true, true, destHostDIB);
}

}  // namespace orvanta
