#include <algorithm>
#include <cmath>

#include "image/RenderPixels.h"
#include "image/RotatedRender.h"
#include "image/c32bppDIB.h"

namespace orvanta {

namespace {

// Render's arguments after its rules, widened so that no negation can overflow.
struct DrawPlan {
    std::int64_t destX = 0, destY = 0, destWidth = 0, destHeight = 0;
    SourceRect rect;
    std::int32_t blend = 100;
    float lightness = 0;
    bool rotated = false;
};

bool isRotation(float angle) {
    const double value = angle;
    return !(std::isfinite(value) && value == std::trunc(value) && std::fmod(value, 360.0) == 0.0);
}

// Source extent: 0 is the image's, a negative one is its absolute value and mirrors the destination.
std::int64_t sourceExtent(std::int64_t requested, std::int64_t imageExtent, std::int64_t& destExtent) {
    if (requested < 0) destExtent = -destExtent;
    return requested == 0 ? imageExtent : (requested < 0 ? -requested : requested);
}

// The own drawing path of an unrotated picture: mirror, scale, lightness, then the blend.
bool drawUnrotated(PixelView image, DrawPlan plan, std::int32_t grayScale, bool bilinear,
                   DrawingContext* destinationDC, c32bppDIB* destHostDIB) {
    PixelView view = image;
    SourceRect rect = plan.rect;
    PixelBlock mirrored, scaled, lit;
    PixelBlock* owned = nullptr;
    if (plan.destWidth <= 0 || plan.destHeight < 0) {
        if (!mirrorPixels(view, rect, plan.destWidth > 0 ? 1 : 0, plan.destHeight < 0 ? -1 : 0, mirrored))
            return false;
        owned = &mirrored;
        view = mirrored.view();
        rect = {0, 0, rect.width, rect.height};
    }
    const std::int64_t width = std::llabs(plan.destWidth), height = std::llabs(plan.destHeight);
    if (width != rect.width || height != rect.height) {
        if (!scalePixels(view, rect, static_cast<std::int32_t>(std::min<std::int64_t>(width, INT32_MAX)),
                         static_cast<std::int32_t>(std::min<std::int64_t>(height, INT32_MAX)), bilinear,
                         scaled))
            return false;
        owned = &scaled;
        view = scaled.view();
        rect = {0, 0, scaled.width, scaled.height};
    }
    if (plan.lightness != 0) {
        // Lightness changes a block of the drawing's own, never the picture itself.
        if (owned == nullptr) {
            if (!copyPixels(view, rect, lit)) return false;
            owned = &lit;
            view = lit.view();
            rect = {0, 0, lit.width, lit.height};
        }
        applyLightness(owned->pixels, plan.lightness);
    }
    if (plan.destX < INT32_MIN || plan.destX > INT32_MAX || plan.destY < INT32_MIN || plan.destY > INT32_MAX)
        return false;
    BlendRequest request;
    request.source = view;
    request.rect = rect;
    request.destX = static_cast<std::int32_t>(plan.destX);
    request.destY = static_cast<std::int32_t>(plan.destY);
    request.constantAlpha = static_cast<std::uint32_t>(plan.blend) * 255 / 100;
    request.grayScale = grayScale != -1;
    request.gray = grayWeightsFor(grayScale);
    return destHostDIB != nullptr ? blendIntoSurface(request, *destHostDIB)
                                  : blendIntoContext(request, *destinationDC);
}

}  // namespace

// The platform's alpha-blend and the system codec's drawing are not engines here: every drawing
// takes the own path, into a surface or through a DrawingContext.
bool c32bppDIB::Render(DrawingContext* destinationDC, std::int32_t destX, std::int32_t destY,
                       std::int32_t destWidth, std::int32_t destHeight, std::int32_t srcX, std::int32_t srcY,
                       std::int32_t srcWidth, std::int32_t srcHeight, std::int32_t blend, bool /*reserved*/,
                       bool /*setHalfTone*/, c32bppDIB* destHostDIB, std::int32_t grayScale,
                       float lightAdjustment, float angle, bool centerOnDestXY) const {
    if (pixels_.empty()) return false;
    if (blend < 1) return true;
    if (destinationDC == nullptr && destHostDIB == nullptr) return false;
    DrawPlan plan;
    plan.destX = destX;
    plan.destY = destY;
    plan.destWidth = destWidth == 0 ? width_ : destWidth;
    plan.destHeight = destHeight == 0 ? height_ : destHeight;
    const std::int64_t left = std::max(srcX, 0), top = std::max(srcY, 0);
    const std::int64_t sourceWidth = std::min(sourceExtent(srcWidth, width_, plan.destWidth), width_ - left);
    const std::int64_t sourceHeight =
        std::min(sourceExtent(srcHeight, height_, plan.destHeight), height_ - top);
    if (sourceWidth <= 0 || sourceHeight <= 0) return false;
    plan.rect = {static_cast<std::int32_t>(left), static_cast<std::int32_t>(top),
                 static_cast<std::int32_t>(sourceWidth), static_cast<std::int32_t>(sourceHeight)};
    plan.rotated = isRotation(angle);
    plan.blend = blend % 100 == 0 ? 100 : blend % 100;
    plan.lightness = (lightAdjustment < -100 || lightAdjustment > 100) ? 0.0f : lightAdjustment;
    if (centerOnDestXY) {
        const std::int64_t halfWidth = plan.destWidth / 2, halfHeight = plan.destHeight / 2;
        plan.destX -= plan.rotated ? halfWidth : std::llabs(halfWidth);
        plan.destY -= plan.rotated ? halfHeight : std::llabs(halfHeight);
    }
    const PixelView image{pixels_.data(), width_, height_};
    if (!plan.rotated)
        return drawUnrotated(image, plan, grayScale, highQualityInterpolation_, destinationDC, destHostDIB);
    RotationRequest rotation;
    rotation.source = image;
    rotation.rect = plan.rect;
    rotation.destX = plan.destX;
    rotation.destY = plan.destY;
    rotation.destWidth = plan.destWidth;
    rotation.destHeight = plan.destHeight;
    rotation.blend = plan.blend;
    rotation.grayScale = grayScale;
    rotation.lightness = plan.lightness;
    rotation.angle = angle;
    rotation.bilinear = highQualityInterpolation_;
    rotation.systemCodecEnabled = isGDIplusEnabled();
    return renderRotated(rotation, destinationDC, destHostDIB);
}

}  // namespace orvanta
