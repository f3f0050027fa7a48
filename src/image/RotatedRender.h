#pragma once
// The rotated drawing: the source turned into a temporary square surface, which Render then draws
// centred on the destination rectangle.

#include <cstdint>

#include "image/RenderPixels.h"

namespace orvanta {

struct RotationRequest {
    PixelView source;
    SourceRect rect;
    std::int64_t destX = 0, destY = 0, destWidth = 0, destHeight = 0;  // signed: negative mirrors
    std::int32_t blend = 100;
    std::int32_t grayScale = -1;
    float lightness = 0;
    float angle = 0;
    bool bilinear = false;
    bool systemCodecEnabled = false;
};

bool renderRotated(const RotationRequest& request, DrawingContext* destinationDC, c32bppDIB* destHostDIB);

}  // namespace orvanta
