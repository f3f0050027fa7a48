#pragma once
// The pixel routines behind Render, CopyImageTo, MirrorImage and the drop shadow. They work on
// blocks in the surface's layout (BGRA, premultiplied, rows bottom-up, no padding); a source
// rectangle's y counts from the top of the picture, as Render's arguments do.

#include <cstdint>
#include <span>
#include <vector>

namespace orvanta {

class c32bppDIB;
class DrawingContext;

struct PixelView {
    const std::uint8_t* pixels = nullptr;
    std::int32_t width = 0;
    std::int32_t height = 0;

    bool empty() const { return pixels == nullptr || width <= 0 || height <= 0; }
};

struct PixelBlock {
    std::vector<std::uint8_t> pixels;
    std::int32_t width = 0;
    std::int32_t height = 0;

    PixelView view() const { return {pixels.data(), width, height}; }
    bool allocate(std::int64_t blockWidth, std::int64_t blockHeight);
};

struct SourceRect {
    std::int32_t x = 0;
    std::int32_t y = 0;  // from the top
    std::int32_t width = 0;
    std::int32_t height = 0;
};

struct GrayWeights {
    double red = 0;
    double green = 0;
    double blue = 0;
};

// Byte offset of picture row `y` (from the top), column `x`.
inline std::size_t pixelOffset(PixelView view, std::int32_t x, std::int32_t rowFromTop) {
    return (static_cast<std::size_t>(view.height - 1 - rowFromTop) * static_cast<std::size_t>(view.width) +
            static_cast<std::size_t>(x)) *
           4;
}

// The rectangle lies inside the view.
bool rectInside(PixelView view, SourceRect rect);

// Copies the rectangle, reversing columns for a width of 0 or less and rows for a height below 0.
// False (and nothing made) when neither applies.
bool mirrorPixels(PixelView source, SourceRect rect, std::int32_t signedWidth, std::int32_t signedHeight,
                  PixelBlock& out);

// A plain copy of the rectangle.
bool copyPixels(PixelView source, SourceRect rect, PixelBlock& out);

// Scales the rectangle to width x height (both at least 1), nearest neighbour or bilinear.
bool scalePixels(PixelView source, SourceRect rect, std::int32_t width, std::int32_t height, bool bilinear,
                 PixelBlock& out);

// One bilinear sample at memory row position `s` and column position `t`; columns at or past
// `columnLimit` are not blended in.
void bilinearSample(PixelView source, double s, double t, std::int32_t columnLimit, std::uint8_t* out);

// Lightens (lightness above 0) or darkens every pixel that is not transparent; lightness in percent.
void applyLightness(std::span<std::uint8_t> pixels, float lightness);

// Weights of a gray-scale code; a code outside the table takes the first row.
GrayWeights grayWeightsFor(std::int32_t code);

struct BlendRequest {
    PixelView source;
    SourceRect rect;  // the part of `source` drawn, at natural size
    std::int32_t destX = 0;
    std::int32_t destY = 0;  // from the top of the target
    std::uint32_t constantAlpha = 255;
    bool grayScale = false;
    GrayWeights gray;
};

// Blends into a surface (its alpha byte blended as well) or into a context (colours only). Parts
// outside the target are cut away first. False when nothing fell inside the target.
bool blendIntoSurface(const BlendRequest& request, c32bppDIB& target);
bool blendIntoContext(const BlendRequest& request, DrawingContext& target);

}  // namespace orvanta
