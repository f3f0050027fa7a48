#pragma once
// The variable-length LZW code of GIF image data (codes packed low bit first, 12 bits at most).

#include <cstdint>
#include <span>

namespace orvanta {

// Decodes `data` (the sub-blocks already joined) into colour indexes. True only if `indexes` was
// filled completely before the data ended; a bad code or a stream that stops early fails.
bool decodeGifLzw(std::span<const std::uint8_t> data, int minimumCodeSize, std::span<std::uint8_t> indexes);

}  // namespace orvanta
