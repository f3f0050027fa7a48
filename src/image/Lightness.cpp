#include <cmath>

#include "image/RenderPixels.h"

namespace orvanta {

void applyLightness(std::span<std::uint8_t> pixels, float lightness) {
    const double v = static_cast<double>(lightness) / 100.0 * 255.0;
    if (v == 0.0) return;
    for (std::size_t at = 0; at + 4 <= pixels.size(); at += 4) {
        const std::int32_t a = pixels[at + 3];
        if (a == 0) continue;
        // Rounded to even first, as a float becomes an integer on the platform, then truncated.
        const auto d = static_cast<std::int32_t>(std::nearbyint(a * v)) / 255;
        for (std::size_t c = 0; c < 3; ++c) {
            std::int32_t value = pixels[at + c] + d;
            if (value < 0) value = 0;
            if (value > a) value = a;  // keeps every colour at most its alpha
            pixels[at + c] = static_cast<std::uint8_t>(value);
        }
    }
}

GrayWeights grayWeightsFor(std::int32_t code) {
    static constexpr GrayWeights kTable[] = {
        {0.299, 0.587, 0.114}, {0.213, 0.715, 0.072}, {0.333, 0.334, 0.333}, {0.8, 0.1, 0.1},
        {0.1, 0.8, 0.1},       {0.1, 0.1, 0.8},       {0.45, 0.45, 0.1},     {0.1, 0.45, 0.45},
    };
    if (code < 0 || code > 7) return kTable[0];
    return kTable[code];
}

}  // namespace orvanta
