#pragma once
// A region as a list of rectangles with the header the platform's region data carries.

#include <cstdint>
#include <vector>

namespace orvanta {

struct RegionRectangle {
    std::int32_t left = 0;
    std::int32_t top = 0;
    std::int32_t right = 0;
    std::int32_t bottom = 0;
};

struct ImageRegion {
    // The header: size 32, type 1 (rectangles), count, count * 16 bytes of data, bounding box.
    std::uint32_t headerSize = 32;
    std::uint32_t type = 1;
    std::uint32_t count = 0;
    std::uint32_t dataSize = 0;
    RegionRectangle bounds;
    std::vector<RegionRectangle> rectangles;

    bool empty() const { return rectangles.empty(); }
    bool contains(std::int32_t x, std::int32_t y) const;
};

}  // namespace orvanta
