#pragma once
// Undoes the five PNG row filters in place, row by row, the first row against a zero row.

#include <cstddef>
#include <cstdint>

namespace orvanta {

// `rows` rows of 1 + rowBytes bytes each from `data`, the first byte the filter type. False for a
// filter type above 4.
bool unfilterRows(std::uint8_t* data, std::size_t rows, std::size_t rowBytes, std::size_t distance);

}  // namespace orvanta
