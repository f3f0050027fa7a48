#pragma once
// Reads the first frame of a GIF into a surface, at the frame's own size. The transparent index of
// the frame's graphic control block leaves its pixels zero; Alpha is true exactly when the frame
// names one. ImageType becomes 9.

#include <cstdint>
#include <span>

#include "image/c32bppDIB.h"

namespace orvanta {

class cGIFparser {
public:
    // True if a GIF was loaded. Anything else leaves the surface empty; a run that is not a GIF is
    // declined after its first six bytes.
    bool LoadStream(std::span<const std::uint8_t> bytes, c32bppDIB& surface);
};

}  // namespace orvanta
