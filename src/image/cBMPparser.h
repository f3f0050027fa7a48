#pragma once
// Reads a Windows bitmap file ("BM") of every depth into a surface: 1, 2, 4 and 8 bits through the
// colour table, 16 bits as 5-5-5 or bit fields, 24 bits, 32 bits, RLE8 and RLE4. A 32-bit file goes
// through the alpha check (ImageType 1, 6 or 7); every other file is opaque with ImageType 1.

#include <cstdint>
#include <span>

#include "image/c32bppDIB.h"

namespace orvanta {

class cBMPparser {
public:
    // True if a bitmap was loaded; a failure leaves the surface empty.
    bool LoadStream(std::span<const std::uint8_t> bytes, c32bppDIB& surface);
};

}  // namespace orvanta
