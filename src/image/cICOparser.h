#pragma once
// Reads icon (.ico) and cursor (.cur) files: the directory, the choice of the entry closest to the
// wanted size and depth, and that entry's picture, which is a PNG or a bitmap with an AND mask.

#include <cstdint>
#include <span>
#include <vector>

#include "image/IconSelection.h"
#include "image/c32bppDIB.h"

namespace orvanta {

class cICOparser {
public:
    // True if an icon or cursor was loaded into `surface`. The entry whose size and depth come
    // closest to iconCx x iconCy x iconBitDepth is taken. A failure leaves the surface empty.
    bool LoadStream(std::span<const std::uint8_t> bytes, std::int32_t iconCx, std::int32_t iconCy,
                    c32bppDIB& surface, std::int32_t iconBitDepth = 32);
    // Reads and checks the directory only, for listing the sizes a file holds.
    bool ReadDirectory(std::span<const std::uint8_t> bytes);

    std::int32_t IconCount() const { return static_cast<std::int32_t>(entries_.size()); }
    bool IsCursor() const { return cursor_; }
    // The fields of one entry; an index outside the directory gives 0 or false.
    std::int32_t Width(std::int32_t index) const { return entry(index).width; }
    std::int32_t Height(std::int32_t index) const { return entry(index).height; }
    std::int32_t bitDepth(std::int32_t index) const { return entry(index).bitDepth; }
    std::int32_t ColorCount(std::int32_t index) const { return entry(index).colorCount; }
    std::uint32_t ColorByteOffset(std::int32_t index) const { return entry(index).dataOffset; }
    bool IsIconPNG(std::int32_t index) const { return entry(index).isPng; }

private:
    const IconEntry& entry(std::int32_t index) const;

    std::vector<IconEntry> entries_;
    bool cursor_ = false;
};

}  // namespace orvanta
