#include "image/PngUnfilter.h"

#include <cstdlib>
#include <vector>

namespace orvanta {

namespace {

inline std::uint8_t paeth(std::uint32_t left, std::uint32_t above, std::uint32_t upperLeft) {
    const int p = static_cast<int>(left + above) - static_cast<int>(upperLeft);
    const int pa = std::abs(p - static_cast<int>(left)), pb = std::abs(p - static_cast<int>(above)),
              pc = std::abs(p - static_cast<int>(upperLeft));
    // Ties go to left, then above, then upper left.
    if (pa <= pb && pa <= pc) return static_cast<std::uint8_t>(left);
    return static_cast<std::uint8_t>(pb <= pc ? above : upperLeft);
}

void sub(std::uint8_t* row, std::size_t size, std::size_t distance) {
    for (std::size_t i = distance; i < size; ++i)
        row[i] = static_cast<std::uint8_t>(row[i] + row[i - distance]);
}

void up(std::uint8_t* row, const std::uint8_t* above, std::size_t size) {
    for (std::size_t i = 0; i < size; ++i) row[i] = static_cast<std::uint8_t>(row[i] + above[i]);
}

void average(std::uint8_t* row, const std::uint8_t* above, std::size_t size, std::size_t distance) {
    for (std::size_t i = 0; i < distance && i < size; ++i)
        row[i] = static_cast<std::uint8_t>(row[i] + (above[i] >> 1));
    for (std::size_t i = distance; i < size; ++i)
        row[i] = static_cast<std::uint8_t>(row[i] + ((row[i - distance] + above[i]) >> 1));
}

void paethRow(std::uint8_t* row, const std::uint8_t* above, std::size_t size, std::size_t distance) {
    for (std::size_t i = 0; i < distance && i < size; ++i)
        row[i] = static_cast<std::uint8_t>(row[i] + above[i]);
    for (std::size_t i = distance; i < size; ++i)
        row[i] = static_cast<std::uint8_t>(row[i] + paeth(row[i - distance], above[i], above[i - distance]));
}

}  // namespace

bool unfilterRows(std::uint8_t* data, std::size_t rows, std::size_t rowBytes, std::size_t distance) {
    const std::vector<std::uint8_t> zeros(rowBytes, 0);
    const std::uint8_t* above = zeros.data();
    for (std::size_t r = 0; r < rows; ++r) {
        std::uint8_t* row = data + r * (rowBytes + 1) + 1;
        switch (row[-1]) {
            case 0:
                break;
            case 1:
                sub(row, rowBytes, distance);
                break;
            case 2:
                up(row, above, rowBytes);
                break;
            case 3:
                average(row, above, rowBytes, distance);
                break;
            case 4:
                paethRow(row, above, rowBytes, distance);
                break;
            default:
                return false;
        }
        above = row;
    }
    return true;
}

}  // namespace orvanta
