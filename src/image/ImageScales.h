#pragma once
// The size a picture takes in a target area under one of the picture control's scale methods.

#include <cstdint>

namespace orvanta {

inline constexpr std::int32_t kScaleToFit = 0;
inline constexpr std::int32_t kScaleStretch = 1;
inline constexpr std::int32_t kScaleShrinkOnly = 2;
inline constexpr std::int32_t kScaleActualSize = 3;
inline constexpr std::int32_t kScaleCustom = 4;

struct ScaleSize {
    std::int32_t width = 0;
    std::int32_t height = 0;
    bool operator==(const ScaleSize&) const = default;
};

// `method` is 0 to 4 (above 4 counts as 4); `custom` is the size method 4 gives. With
// `asRotatedImage` the size leaves room for the picture to turn within the target.
ScaleSize GetImageScales(ScaleSize image, std::int32_t method, ScaleSize target, ScaleSize custom,
                         bool asRotatedImage);

}  // namespace orvanta
