#pragma once
// The 16-bit halves of a 32-bit message value, and the value made from two halves.

#include <cstdint>

namespace orvanta {

constexpr int LoWord(std::int32_t value) {
    return static_cast<int>(static_cast<std::uint32_t>(value) & 0xFFFFu);
}
constexpr int HiWord(std::int32_t value) {
    return static_cast<int>(static_cast<std::uint32_t>(value) >> 16);
}
constexpr std::int32_t MakeLong(int low, int high) {
    return static_cast<std::int32_t>((static_cast<std::uint32_t>(high) << 16) |
                                     (static_cast<std::uint32_t>(low) & 0xFFFFu));
}

}  // namespace orvanta
