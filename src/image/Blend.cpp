#include <algorithm>

#include "image/RenderPixels.h"
#include "image/c32bppDIB.h"

namespace orvanta {

namespace {

struct Clipped {
    std::int32_t sourceX = 0, sourceY = 0, destX = 0, destY = 0, width = 0, height = 0;
};

// Cuts the drawn rectangle to a target of the given size; a negative destination moves the source
// start and shortens the run.
bool clipToTarget(const BlendRequest& request, std::int32_t targetWidth, std::int32_t targetHeight,
                  Clipped& out) {
    std::int64_t sx = request.rect.x, sy = request.rect.y, dx = request.destX, dy = request.destY;
    std::int64_t w = request.rect.width, h = request.rect.height;
    if (dx < 0) sx -= dx, w += dx, dx = 0;
    if (dy < 0) sy -= dy, h += dy, dy = 0;
    w = std::min<std::int64_t>(w, targetWidth - dx);
    h = std::min<std::int64_t>(h, targetHeight - dy);
    if (w <= 0 || h <= 0) return false;
    out = {static_cast<std::int32_t>(sx), static_cast<std::int32_t>(sy), static_cast<std::int32_t>(dx),
           static_cast<std::int32_t>(dy), static_cast<std::int32_t>(w),  static_cast<std::int32_t>(h)};
    return true;
}

std::uint32_t grayOf(const std::uint8_t* p, const GrayWeights& weights) {
    const double value = p[2] * weights.red + p[1] * weights.green + p[0] * weights.blue;
    return static_cast<std::uint32_t>(value) & 0xFF;
}

// The eight cases: with or without the target's alpha, gray or colour, full or partial constant alpha.
template <bool kWithAlpha, bool kGray, bool kFull>
void blendRow(const std::uint8_t* from, std::uint8_t* to, std::int32_t count, std::uint32_t g,
              const GrayWeights& weights) {
    for (std::int32_t n = 0; n < count; ++n, from += 4, to += 4) {
        const std::uint32_t a = from[3];
        if (a == 0) continue;
        std::uint32_t colour[3] = {from[0], from[1], from[2]};
        if constexpr (kGray) colour[0] = colour[1] = colour[2] = grayOf(from, weights);
        if constexpr (kFull) {
            if (a == 255) {
                for (int c = 0; c < 3; ++c) to[c] = static_cast<std::uint8_t>(colour[c]);
                if constexpr (kWithAlpha) to[3] = 255;
                continue;
            }
            for (int c = 0; c < 3; ++c)
                to[c] = static_cast<std::uint8_t>((255 - a) * to[c] / 255 + colour[c]);
            if constexpr (kWithAlpha) to[3] = static_cast<std::uint8_t>((255 - a) * to[3] / 255 + a);
        } else {
            const std::uint32_t scaled = a * g / 255;
            for (int c = 0; c < 3; ++c)
                to[c] = static_cast<std::uint8_t>(((255 - scaled) * to[c] + colour[c] * g) / 255);
            if constexpr (kWithAlpha)
                to[3] = static_cast<std::uint8_t>(((255 - scaled) * to[3] + a * g) / 255);
        }
    }
}

using RowBlender = void (*)(const std::uint8_t*, std::uint8_t*, std::int32_t, std::uint32_t,
                            const GrayWeights&);

template <bool kWithAlpha>
RowBlender chooseBlender(const BlendRequest& request) {
    const bool full = request.constantAlpha >= 255;
    if (request.grayScale) return full ? blendRow<kWithAlpha, true, true> : blendRow<kWithAlpha, true, false>;
    return full ? blendRow<kWithAlpha, false, true> : blendRow<kWithAlpha, false, false>;
}

}  // namespace

bool blendIntoSurface(const BlendRequest& request, c32bppDIB& target) {
    Clipped area;
    if (!rectInside(request.source, request.rect) || target.BitsPointer() == nullptr ||
        !clipToTarget(request, target.Width(), target.Height(), area))
        return false;
    const PixelView targetView{target.BitsPointer(), target.Width(), target.Height()};
    const RowBlender blend = chooseBlender<true>(request);
    for (std::int32_t row = 0; row < area.height; ++row) {
        const std::uint8_t* from =
            request.source.pixels + pixelOffset(request.source, area.sourceX, area.sourceY + row);
        std::uint8_t* to = target.BitsPointer() + pixelOffset(targetView, area.destX, area.destY + row);
        blend(from, to, area.width, request.constantAlpha, request.gray);
    }
    return true;
}

bool blendIntoContext(const BlendRequest& request, DrawingContext& target) {
    Clipped area;
    if (!rectInside(request.source, request.rect) ||
        !clipToTarget(request, target.contextWidth(), target.contextHeight(), area))
        return false;
    std::vector<std::uint8_t> pixels;
    const std::size_t size = static_cast<std::size_t>(area.width) * static_cast<std::size_t>(area.height) * 4;
    if (!target.readArea(area.destX, area.destY, area.width, area.height, pixels) || pixels.size() != size)
        return false;
    const PixelView areaView{pixels.data(), area.width, area.height};
    const RowBlender blend = chooseBlender<false>(request);
    for (std::int32_t row = 0; row < area.height; ++row) {
        const std::uint8_t* from =
            request.source.pixels + pixelOffset(request.source, area.sourceX, area.sourceY + row);
        blend(from, pixels.data() + pixelOffset(areaView, 0, row), area.width, request.constantAlpha,
              request.gray);
    }
    return target.writeArea(area.destX, area.destY, area.width, area.height, pixels);
}

}  // namespace orvanta
