#include <algorithm>

#include "image/c32bppDIB.h"

namespace orvanta {

namespace {

enum RegionStyle : std::int32_t { kBoundingBox = 0, kRowSpans = 1, kRuns = 2 };

// Rectangles of one memory row; `top` is the picture row it shows.
void addRowRectangles(const std::uint8_t* row, std::int32_t width, std::int32_t top, std::int32_t style,
                      std::vector<RegionRectangle>& out) {
    std::int32_t first = -1, last = -1;
    for (std::int32_t x = 0; x < width; ++x) {
        const bool solid = row[static_cast<std::size_t>(x) * 4 + 3] != 0;
        if (solid) {
            if (first < 0 || (style == kRuns && last < x - 1)) {
                if (style == kRuns && first >= 0) out.push_back({first, top, last + 1, top + 1});
                first = x;
            }
            last = x;
        }
    }
    if (first >= 0) out.push_back({first, top, last + 1, top + 1});
}

RegionRectangle boundingBox(const std::vector<RegionRectangle>& rectangles) {
    RegionRectangle box = rectangles.front();
    for (const RegionRectangle& r : rectangles) {
        box.left = std::min(box.left, r.left);
        box.right = std::max(box.right, r.right);
        box.top = std::min(box.top, r.top);
        box.bottom = std::max(box.bottom, r.bottom);
    }
    return box;
}

void shift(RegionRectangle& r, std::int32_t dx, std::int32_t dy) {
    r.left += dx;
    r.right += dx;
    r.top += dy;
    r.bottom += dy;
}

}  // namespace

// The region is a plain list of rectangles, so there is no platform limit and no need to build it in
// pieces: the list is the merged region.
ImageRegion c32bppDIB::CreateRegion(std::int32_t style, std::int32_t xOffset, std::int32_t yOffset) const {
    ImageRegion region;
    if (pixels_.empty() || style < kBoundingBox || style > kRuns) return region;
    std::vector<RegionRectangle>& rectangles = region.rectangles;
    if (!alpha_) {
        rectangles.push_back({0, 0, width_, height_});
    } else {
        const std::size_t stride = static_cast<std::size_t>(width_) * 4;
        // From the top row of the picture, which is the last row in memory, down.
        for (std::int32_t memoryRow = height_ - 1; memoryRow >= 0; --memoryRow)
            addRowRectangles(pixels_.data() + static_cast<std::size_t>(memoryRow) * stride, width_,
                             height_ - memoryRow - 1, style, rectangles);
        if (rectangles.empty()) return region;
        if (style == kBoundingBox) rectangles = {boundingBox(rectangles)};
    }
    region.count = static_cast<std::uint32_t>(rectangles.size());
    region.dataSize = region.count * 16;
    region.bounds = {0, rectangles.front().top, width_, rectangles.back().bottom};
    // Offsets are kept within the 32-bit plane; a shift that would leave it is not applied.
    if (xOffset != 0 || yOffset != 0) {
        const auto fits = [](std::int64_t v) { return v >= INT32_MIN && v <= INT32_MAX; };
        const std::int64_t reach[] = {std::int64_t{region.bounds.right} + xOffset, std::int64_t{xOffset},
                                      std::int64_t{region.bounds.bottom} + yOffset, std::int64_t{yOffset}};
        if (std::all_of(std::begin(reach), std::end(reach), fits)) {
            for (RegionRectangle& r : rectangles) shift(r, xOffset, yOffset);
            shift(region.bounds, xOffset, yOffset);
        }
    }
    return region;
}

}  // namespace orvanta
