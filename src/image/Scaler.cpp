#include <algorithm>
#include <cmath>
#include <cstring>

#include "image/RenderPixels.h"

namespace orvanta {

namespace {

std::int32_t clampIndex(double position, std::int32_t limit) {
    const auto index = static_cast<std::int32_t>(position);
    return index < 0 ? 0 : (index >= limit ? limit - 1 : index);
}

void scaleNearest(PixelView source, SourceRect rect, PixelBlock& out) {
    const double xRatio = static_cast<double>(rect.width) / out.width;
    const double yRatio = static_cast<double>(rect.height) / out.height;
    std::vector<std::size_t> columnOffset(static_cast<std::size_t>(out.width));
    for (std::int32_t x = 0; x < out.width; ++x)
        columnOffset[static_cast<std::size_t>(x)] =
            static_cast<std::size_t>(rect.x + clampIndex(x * xRatio, rect.width)) * 4;
    const std::int32_t baseRow = source.height - rect.y - rect.height;
    const std::size_t sourceStride = static_cast<std::size_t>(source.width) * 4;
    std::uint8_t* to = out.pixels.data();
    for (std::int32_t y = 0; y < out.height; ++y) {
        const std::uint8_t* row =
            source.pixels +
            static_cast<std::size_t>(baseRow + clampIndex(y * yRatio, rect.height)) * sourceStride;
        for (const std::size_t offset : columnOffset) {
            std::memcpy(to, row + offset, 4);
            to += 4;
        }
    }
}

struct BilinearColumn {
    std::int32_t j;
    double weight0, weight1;  // of columns j and j + 1
    bool inside;              // both columns are in the picture
};

// The same sums as bilinearSample, in the same order, for a pixel whose four neighbours exist.
inline void blendFour(const std::uint8_t* lower, const std::uint8_t* upper, double rowWeight0,
                      double rowWeight1, const BilinearColumn& column, std::uint8_t* out) {
    const double w00 = rowWeight0 * column.weight0, w01 = rowWeight0 * column.weight1,
                 w10 = rowWeight1 * column.weight0, w11 = rowWeight1 * column.weight1;
    const std::uint8_t* p0 = lower + static_cast<std::size_t>(column.j) * 4;
    const std::uint8_t* p1 = upper + static_cast<std::size_t>(column.j) * 4;
    double sum[4];
    for (int c = 0; c < 4; ++c) sum[c] = p0[c] * w00 + p0[c + 4] * w01;
    for (int c = 0; c < 4; ++c) sum[c] = sum[c] + p1[c] * w10;
    for (int c = 0; c < 4; ++c) sum[c] = sum[c] + p1[c + 4] * w11;
    for (int c = 0; c < 4; ++c)
        out[c] = static_cast<std::uint8_t>(static_cast<std::int32_t>(std::min(sum[c], 255.0)));
}

void scaleBilinear(PixelView source, SourceRect rect, PixelBlock& out) {
    const double xRatio = static_cast<double>(rect.width) / out.width;
    const double yRatio = static_cast<double>(rect.height) / out.height;
    const std::int32_t columnLimit = rect.x + rect.width;
    // Column positions, weights and neighbours once for all rows.
    std::vector<double> columnPosition(static_cast<std::size_t>(out.width));
    std::vector<BilinearColumn> columns(static_cast<std::size_t>(out.width));
    for (std::int32_t x = 0; x < out.width; ++x) {
        const double t = xRatio * x + rect.x;
        const auto j = static_cast<std::int32_t>(t);
        const double g = j + 1 >= columnLimit ? 0.0 : t - j;
        columnPosition[static_cast<std::size_t>(x)] = t;
        columns[static_cast<std::size_t>(x)] = {j, 1.0 - std::fabs(g), 1.0 - std::fabs(g - 1.0),
                                                j >= 0 && j + 1 < source.width};
    }
    // Columns from the left whose two neighbours both exist: the loop without checks.
    std::size_t interiorEnd = 0;
    while (interiorEnd < columns.size() && columns[interiorEnd].inside) ++interiorEnd;
    const std::int32_t baseRow = source.height - rect.y - rect.height;
    const std::size_t stride = static_cast<std::size_t>(source.width) * 4;
    std::uint8_t* to = out.pixels.data();
    for (std::int32_t y = 0; y < out.height; ++y) {
        const double s = yRatio * y + baseRow;
        const auto i = static_cast<std::int32_t>(s);
        const double f = i == 0 ? 0.0 : std::fabs(1.0 - (s - i));
        const bool rowsInside = i >= 1 && i < source.height;
        const std::uint8_t* lower =
            rowsInside ? source.pixels + static_cast<std::size_t>(i) * stride : nullptr;
        const std::uint8_t* upper = rowsInside ? lower - stride : nullptr;
        const double rowWeight0 = 1.0 - std::fabs(0.0 - f), rowWeight1 = 1.0 - std::fabs(1.0 - f);
        if (rowsInside && interiorEnd > 0) {
            for (std::size_t x = 0; x < interiorEnd; ++x, to += 4)
                blendFour(lower, upper, rowWeight0, rowWeight1, columns[x], to);
        }
        for (std::size_t x = rowsInside ? interiorEnd : 0; x < columns.size(); ++x, to += 4) {
            if (rowsInside && columns[x].inside)
                blendFour(lower, upper, rowWeight0, rowWeight1, columns[x], to);
            else
                bilinearSample(source, s, columnPosition[x], columnLimit, to);
        }
    }
}

}  // namespace

void bilinearSample(PixelView source, double s, double t, std::int32_t columnLimit, std::uint8_t* out) {
    const auto i = static_cast<std::int32_t>(s);
    // A row position blends its own memory row with the one below it; row 0 stands alone.
    const double f = i == 0 ? 0.0 : std::fabs(1.0 - (s - i));
    const auto j = static_cast<std::int32_t>(t);
    const double g = j + 1 >= columnLimit ? 0.0 : t - j;
    double sum[4] = {0, 0, 0, 0};
    for (std::int32_t a = 0; a <= 1; ++a) {
        const double rowWeight = 1.0 - std::fabs(a - f);
        const std::int32_t row = i - a;
        if (rowWeight == 0.0 || row < 0 || row >= source.height) continue;
        for (std::int32_t b = 0; b <= 1; ++b) {
            const double columnWeight = 1.0 - std::fabs(g - b);
            const std::int32_t column = j + b;
            if (columnWeight == 0.0 || column < 0 || column >= source.width) continue;
            const std::uint8_t* p =
                source.pixels + (static_cast<std::size_t>(row) * static_cast<std::size_t>(source.width) +
                                 static_cast<std::size_t>(column)) *
                                    4;
            const double weight = rowWeight * columnWeight;
            for (int c = 0; c < 4; ++c) sum[c] += p[c] * weight;
        }
    }
    for (int c = 0; c < 4; ++c) out[c] = static_cast<std::uint8_t>(sum[c] >= 255.0 ? 255.0 : sum[c]);
}

bool scalePixels(PixelView source, SourceRect rect, std::int32_t width, std::int32_t height, bool bilinear,
                 PixelBlock& out) {
    if (!rectInside(source, rect) || !out.allocate(width, height)) return false;
    if (bilinear)
        scaleBilinear(source, rect, out);
    else
        scaleNearest(source, rect, out);
    return true;
}

}  // namespace orvanta
