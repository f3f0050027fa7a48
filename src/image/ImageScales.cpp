#include "image/ImageScales.h"

#include <algorithm>
#include <cmath>

namespace orvanta {

namespace {

std::int32_t rounded(double value) {
    return static_cast<std::int32_t>(std::clamp(std::round(value), double{INT32_MIN}, double{INT32_MAX}));
}

ScaleSize unrotated(ScaleSize image, std::int32_t method, ScaleSize target) {
    if (method == kScaleStretch) return target;
    if (method == kScaleActualSize) return image;
    double ratio = std::min(static_cast<double>(target.width) / image.width,
                            static_cast<double>(target.height) / image.height);
    if (method == kScaleShrinkOnly) ratio = std::min(ratio, 1.0);
    return {rounded(image.width * ratio), rounded(image.height * ratio)};
}

// The picture's sides as parts of its diagonal, so that it fits the target at any angle.
ScaleSize rotated(ScaleSize image, std::int32_t method, ScaleSize target) {
    const double width = image.width, height = image.height;
    const double diagonal = std::floor(std::sqrt(width * width + height * height));
    const double widthRatio = width / diagonal, heightRatio = height / diagonal;
    if (method == kScaleStretch)
        return {rounded(widthRatio * target.width), rounded(heightRatio * target.height)};
    const double side = std::min(target.width, target.height);
    const ScaleSize result{rounded(widthRatio * side), rounded(heightRatio * side)};
    if (method == kScaleShrinkOnly && (result.width > image.width || result.height > image.height))
        return image;
    return result;
}

}  // namespace

ScaleSize GetImageScales(ScaleSize image, std::int32_t method, ScaleSize target, ScaleSize custom,
                         bool asRotatedImage) {
    method = std::clamp(method, kScaleToFit, kScaleCustom);
    if (method == kScaleCustom) return custom;
    if (image.width < 1 || image.height < 1) return {};
    if (asRotatedImage && method != kScaleActualSize) return rotated(image, method, target);
    return unrotated(image, method, target);
}

}  // namespace orvanta
