#include "image/PngLayout.h"

namespace orvanta {

std::uint32_t PngHeader::channels() const {
    switch (colorType) {
        case 2:
            return 3;
        case 4:
            return 2;
        case 6:
            return 4;
        default:
            return 1;
    }
}

std::uint64_t pngUnpackedSize(const PngHeader& header) {
    std::uint64_t total = 0;
    for (std::uint32_t pass = firstPass(header); pass <= lastPass(header); ++pass) {
        const PngPass& p = kPngPasses[pass];
        const std::uint64_t columns = passCount(static_cast<std::uint64_t>(header.width), p.xStart, p.xStep);
        const std::uint64_t rows = passCount(static_cast<std::uint64_t>(header.height), p.yStart, p.yStep);
        if (columns == 0 || rows == 0) continue;
        total += rows * (header.rowBytes(columns) + 1);
    }
    return total;
}

bool pngSizeFits(std::int64_t width, std::int64_t height) {
    constexpr std::int64_t kBound = std::int64_t{1} << 31;
    return width > 0 && height > 0 && width * 32 <= kBound && width * 32 * height <= kBound;
}

}  // namespace orvanta
