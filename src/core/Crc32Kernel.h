#pragma once
// The CRC-32 register update (reflected polynomial 0xEDB88320) over a run of bytes. The register
// goes in and comes out raw: no initial value and no final inversion are applied here.

#include <array>
#include <cstddef>
#include <cstdint>

namespace orvanta::crc32 {

// The 256 entries of the byte-wise table.
const std::array<std::uint32_t, 256>& table();

// One table lookup per byte; the reference every faster path must agree with.
std::uint32_t updateBytewise(std::uint32_t reg, const std::uint8_t* data, std::size_t size);
// Eight bytes a step through eight tables; for machines without carry-less multiplication.
std::uint32_t updateSliced(std::uint32_t reg, const std::uint8_t* data, std::size_t size);
// The fastest path this processor offers.
std::uint32_t update(std::uint32_t reg, const std::uint8_t* data, std::size_t size);

// Which path update() takes here: "vpclmulqdq-512", "vpclmulqdq-256", "pclmulqdq" or "sliced".
const char* fastestPathName();

}  // namespace orvanta::crc32
