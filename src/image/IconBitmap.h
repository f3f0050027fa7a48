#pragma once
// The bitmap form of an icon or cursor entry: an information header whose height counts the pixels
// and the AND mask, the colour table, the pixels, then the mask.

#include <cstdint>
#include <span>

#include "image/c32bppDIB.h"

namespace orvanta {

// Loads the entry into `surface`. Up to 24 bits the AND mask makes pixels transparent (ImageType 3
// for an icon, 5 for a cursor; Alpha if any pixel is transparent); 32 bits go through the alpha
// check (ImageType 8 or 12). A failure leaves the surface empty.
bool loadIconBitmap(std::span<const std::uint8_t> data, bool cursor, c32bppDIB& surface);

}  // namespace orvanta
