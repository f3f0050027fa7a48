#pragma once
// The entries of an icon directory and the choice of the one to load.

#include <cstddef>
#include <cstdint>
#include <vector>

namespace orvanta {

struct IconEntry {
    std::int32_t width = 0;  // true size and depth, read from the entry's data where it can be
    std::int32_t height = 0;
    std::int32_t bitDepth = 0;
    std::int32_t colorCount = 0;  // as the directory gives it
    std::uint32_t dataOffset = 0;
    std::uint32_t dataSize = 0;
    bool isPng = false;
};

// The entry to load for the wanted size and depth; `entries` must not be empty. Larger entries are
// preferred (they scale down well); an exact match ends the search at once.
std::size_t selectIconEntry(const std::vector<IconEntry>& entries, std::int32_t iconCx, std::int32_t iconCy,
                            std::int32_t iconBitDepth);

}  // namespace orvanta
