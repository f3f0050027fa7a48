#pragma once
// Uncompressed bitmap rows of every depth into a surface.

#include <cstdint>
#include <span>

#include "image/DibHeader.h"
#include "image/c32bppDIB.h"

namespace orvanta {

// Writes the rows at the start of `pixels` into `surface`, which already has the header's width and
// row count. Pixels come out opaque, except that 32-bit pixels keep the alpha of their data (the
// fourth byte, or the alpha mask of bit fields) for the caller's alpha check. False if the data are
// shorter than the rows.
bool decodeDibPixels(const DibHeader& header, std::span<const std::uint8_t> pixels, c32bppDIB& surface);

}  // namespace orvanta
