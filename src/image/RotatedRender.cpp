#include <cmath>
#include <cstring>

#include "image/RotatedRender.h"
#include "image/c32bppDIB.h"

namespace orvanta {

namespace {

// Whole degrees only, rounded to even as the platform turns a float into an integer.
double radiansOf(float angle) {
    const double degrees = std::nearbyint(static_cast<double>(angle));
    if (!std::isfinite(degrees)) return 0.0;
    return -std::atan(1.0) * 4.0 * std::fmod(degrees, 360.0) / 180.0;
}

// The source rectangle as a block of its own, mirrored by the destination's signs, lightness applied.
bool prepareSource(const RotationRequest& request, PixelBlock& out) {
    const bool mirror = request.destWidth <= 0 || request.destHeight < 0;
    const bool made = mirror ? mirrorPixels(request.source, request.rect, request.destWidth > 0 ? 1 : 0,
                                            request.destHeight < 0 ? -1 : 0, out)
                             : copyPixels(request.source, request.rect, out);
    if (made && request.lightness != 0) applyLightness(out.pixels, request.lightness);
    return made;
}

void turnInto(PixelView source, double radians, double xRatio, double yRatio, bool bilinear,
              c32bppDIB& square) {
    const double cosX = std::cos(radians) / xRatio, sinX = std::sin(radians) / xRatio;
    const double cosY = std::cos(radians) / yRatio, sinY = std::sin(radians) / yRatio;
    const std::int32_t side = square.Width();
    const std::int32_t centreX = source.width / 2, centreY = source.height / 2;
    const std::int32_t padX = (side - source.width) / 2, padY = (side - source.height) / 2;
    std::uint8_t* to = square.BitsPointer();
    for (std::int32_t y = -padY; y < side - padY; ++y) {
        double sx = (-padX - centreX) * cosX + (y - centreY) * sinX + centreX;
        double sy = (y - centreY) * cosY - (-padX - centreX) * sinY + centreY;
        for (std::int32_t column = 0; column < side; ++column, to += 4, sx += cosX, sy -= sinY) {
            if (!(sx >= 0 && sy >= 0 && sx < source.width && sy < source.height)) continue;
            if (bilinear) {
                bilinearSample(source, sy, sx, source.width, to);
                continue;
            }
            const std::size_t at = (static_cast<std::size_t>(sy) * static_cast<std::size_t>(source.width) +
                                    static_cast<std::size_t>(sx)) *
                                   4;
            std::memcpy(to, source.pixels + at, 4);
        }
    }
}

}  // namespace

bool renderRotated(const RotationRequest& request, DrawingContext* destinationDC, c32bppDIB* destHostDIB) {
    std::int64_t destX = request.destX, destY = request.destY;
    std::int64_t width = request.destWidth, height = request.destHeight;
    if (width < 0) destX += width, width = -width;
    if (height < 0) destY += height, height = -height;
    PixelBlock source;
    if (width == 0 || height == 0 || !prepareSource(request, source)) return false;
    const double side = std::floor(std::sqrt(static_cast<double>(width) * static_cast<double>(width) +
                                             static_cast<double>(height) * static_cast<double>(height)));
    if (side > 0x7FFFFFFF) return false;
    c32bppDIB square;
    square.setGDIplusEnabled(request.systemCodecEnabled);
    square.setHighQualityInterpolation(request.bilinear);
    if (!square.InitializeDIB(static_cast<std::int32_t>(side), static_cast<std::int32_t>(side))) return false;
    turnInto(source.view(), radiansOf(request.angle), static_cast<double>(width) / source.width,
             static_cast<double>(height) / source.height, request.bilinear, square);
    // The square's centre goes where the centre of the unrotated drawing would be.
    const std::int64_t centreX = destX + width / 2, centreY = destY + height / 2;
    if (centreX < INT32_MIN || centreX > INT32_MAX || centreY < INT32_MIN || centreY > INT32_MAX)
        return false;
    return square.Render(destinationDC, static_cast<std::int32_t>(centreX),
                         static_cast<std::int32_t>(centreY), 0, 0, 0, 0, 0, 0, request.blend, true, true,
                         destHostDIB, request.grayScale, 0, 0, true);
}

}  // namespace orvanta
