#pragma once
// CRC-32 by folding 128-bit blocks with carry-less multiplication, on x86 processors that have
// it. The register goes in and comes out raw, as with the table paths.

#include <cstddef>
#include <cstdint>

namespace orvanta::crc32::folding {

// Each path is called only where its check says the processor has what it needs.
bool available();     // PCLMULQDQ with SSE4.1: 128 bits at a time
bool available256();  // VPCLMULQDQ with AVX2
bool available512();  // VPCLMULQDQ with AVX-512
std::uint32_t update(std::uint32_t reg, const std::uint8_t* data, std::size_t size);
std::uint32_t update256(std::uint32_t reg, const std::uint8_t* data, std::size_t size);
std::uint32_t update512(std::uint32_t reg, const std::uint8_t* data, std::size_t size);

}  // namespace orvanta::crc32::folding
