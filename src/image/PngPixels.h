#pragma once
// Unfiltered PNG rows into the surface: every colour type and bit depth to straight RGBA, then
// premultiplied into the pass's places, PNG row 0 being the last row in memory.

#include <array>
#include <cstdint>

#include "image/PngLayout.h"
#include "image/c32bppDIB.h"

namespace orvanta {

struct PngColours {
    std::array<std::uint8_t, 256 * 3> palette{};   // red, green, blue; the gray ramp for type 0
    std::array<std::uint8_t, 256> paletteAlpha{};  // from tRNS for type 3, 255 beyond it
    bool paletteHasAlpha = false;
    // Types 0 and 2: the sample (or red, green and blue, red highest) that is transparent, in the
    // bytes the comparison uses; -1 for none.
    std::int32_t transparent = -1;
};

// Writes the `rows` rows of `columns` pixels of one pass, which start at `data` (each after its
// filter byte). The surface has the picture's size.
void writePngPass(const PngHeader& header, const PngColours& colours, const std::uint8_t* data,
                  const PngPass& pass, std::uint64_t columns, std::uint64_t rows, c32bppDIB& surface);

}  // namespace orvanta
