#pragma once
// The engine's own inflate (RFC 1951): it unpacks PNG data when no zlib is there or zlib failed.
// The zlib wrapper's two header bytes are skipped and its Adler checksum is not read.

#include <cstddef>
#include <cstdint>
#include <span>

namespace orvanta {

inline constexpr int kInflateOk = 0;
inline constexpr int kInflateBadTable = -1;     // a code set that cannot be decoded
inline constexpr int kInflateBadBlock = -2;     // block type 3, or a stored length without its complement
inline constexpr int kInflateTruncated = -3;    // the input ended inside a block
inline constexpr int kInflateBadDistance = -4;  // a match before the start of the output
inline constexpr int kInflateBadCode = -5;      // a bit pattern no code has
inline constexpr int kInflateBadRun = -6;       // a run of code lengths past their total

// Unpacks `in` into `out`. Output that does not fit is cut off at the end of `out` and is no
// error; `written` tells how much came. With `zlibHeader` the first two bytes are skipped.
int inflateStream(std::span<const std::uint8_t> in, std::span<std::uint8_t> out, std::size_t& written,
                  bool zlibHeader = true);

}  // namespace orvanta
