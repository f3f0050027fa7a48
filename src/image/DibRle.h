#pragma once
// Run-length coded bitmaps: RLE8 and RLE4.

#include <cstdint>
#include <span>

#include "image/DibHeader.h"
#include "image/c32bppDIB.h"

namespace orvanta {

// Decodes RLE8 or RLE4 data into `surface`, which already has the header's size. Pixels the data
// skip (by a delta, an early end of line or an early end of data) are opaque black. Runs that reach
// past the edges are cut. False only for a header that is not run-length coded.
bool decodeDibRle(const DibHeader& header, std::span<const std::uint8_t> data, c32bppDIB& surface);

}  // namespace orvanta
