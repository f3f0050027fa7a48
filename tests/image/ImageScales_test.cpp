#include <gtest/gtest.h>

#include "image/ImageScales.h"

namespace orvanta {
namespace {

struct ScaleCase {
    ScaleSize image;
    std::int32_t method;
    ScaleSize target;
    bool rotated;
    ScaleSize expected;
};

TEST(ImageScales, EachMethodWithAndWithoutRoom) {
    const ScaleCase cases[] = {
        // Fit keeps the aspect, by the tighter side, up or down.
        {{200, 100}, kScaleToFit, {100, 100}, false, {100, 50}},
        {{20, 10}, kScaleToFit, {100, 100}, false, {100, 50}},
        {{3, 2}, kScaleToFit, {100, 100}, false, {100, 67}},
        {{200, 100}, kScaleStretch, {90, 70}, false, {90, 70}},
        // Shrink-only leaves a small picture its size in a large control.
        {{20, 10}, kScaleShrinkOnly, {100, 100}, false, {20, 10}},
        {{200, 100}, kScaleShrinkOnly, {100, 100}, false, {100, 50}},
        {{200, 100}, kScaleActualSize, {10, 10}, false, {200, 100}},
        {{200, 100}, kScaleCustom, {10, 10}, false, {33, 44}},
        {{200, 100}, 9, {10, 10}, false, {33, 44}},
        // Turned: the sides as parts of the diagonal (300 x 400 has a diagonal of 500).
        {{300, 400}, kScaleStretch, {200, 100}, true, {120, 80}},
        {{300, 400}, kScaleToFit, {200, 100}, true, {60, 80}},
        {{300, 400}, kScaleShrinkOnly, {200, 100}, true, {60, 80}},
        {{30, 40}, kScaleShrinkOnly, {200, 200}, true, {30, 40}},
        {{300, 400}, kScaleActualSize, {200, 100}, true, {300, 400}},
        {{0, 0}, kScaleToFit, {100, 100}, false, {0, 0}},
    };
    for (const ScaleCase& c : cases)
        EXPECT_EQ(GetImageScales(c.image, c.method, c.target, {33, 44}, c.rotated), c.expected)
            << c.image.width << "x" << c.image.height << " method " << c.method
            << (c.rotated ? " turned" : "");
}

}  // namespace
}  // namespace orvanta
