#pragma once
// Bounds-checked little-endian reads and the size limit shared by the GIF, BMP and ICO readers.

#include <cstddef>
#include <cstdint>
#include <span>

namespace orvanta {

using ByteRun = std::span<const std::uint8_t>;

// True if `count` bytes from `at` lie inside `run`; safe against overflow of at + count.
inline bool inside(ByteRun run, std::uint64_t at, std::uint64_t count) {
    return at <= run.size() && count <= run.size() - at;
}

inline std::uint32_t le16(ByteRun run, std::size_t at) {
    return static_cast<std::uint32_t>(run[at] | run[at + 1] << 8);
}

inline std::uint32_t le32(ByteRun run, std::size_t at) {
    return static_cast<std::uint32_t>(run[at]) | static_cast<std::uint32_t>(run[at + 1]) << 8 |
           static_cast<std::uint32_t>(run[at + 2]) << 16 | static_cast<std::uint32_t>(run[at + 3]) << 24;
}

inline std::uint32_t be32(ByteRun run, std::size_t at) {
    return static_cast<std::uint32_t>(run[at]) << 24 | static_cast<std::uint32_t>(run[at + 1]) << 16 |
           static_cast<std::uint32_t>(run[at + 2]) << 8 | static_cast<std::uint32_t>(run[at + 3]);
}

// The surface's own bound, checked before any buffer of the picture's size is made: width * 32 * height
// must fit a signed 32-bit number.
inline bool surfaceFits(std::int64_t width, std::int64_t height) {
    return width > 0 && height > 0 && width <= 0x7FFFFFFF / 32 && width * 32 * height <= 0x7FFFFFFF;
}

}  // namespace orvanta
