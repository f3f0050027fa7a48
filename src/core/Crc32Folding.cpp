#include "core/Crc32Folding.h"

#include "core/Crc32Kernel.h"

#if defined(__x86_64__) || defined(__i386__)
#include <immintrin.h>

#include <array>
#include <cstring>

namespace orvanta::crc32::folding {

namespace {

// x^n mod P for the CRC-32 polynomial, in plain bit order (bit m is the coefficient of x^m).
constexpr std::uint32_t powerOfXModP(unsigned n) {
    std::uint64_t value = 1;
    for (unsigned i = 0; i < n; ++i) {
        value <<= 1;
        if (value & (std::uint64_t{1} << 32)) value ^= 0x104C11DB7ull;
    }
    return static_cast<std::uint32_t>(value);
}

// Places the coefficient of x^m at bit 63 - m, the order in which reflected data multiplies.
constexpr std::uint64_t reflected64(std::uint32_t polynomial) {
    std::uint64_t result = 0;
    for (unsigned m = 0; m < 32; ++m)
        if (polynomial & (1u << m)) result |= std::uint64_t{1} << (63 - m);
    return result;
}

// A carry-less product of reflected operands comes out multiplied by x once more, so the
// multipliers that move a block D bits forward are x^(D+63) for its first half (which stands
// 64 bits further up) and x^(D-1) for its second.
struct FoldConstants {
    long long firstHalf;
    long long secondHalf;
};

constexpr FoldConstants constantsFor(unsigned distanceInBits) {
    return {static_cast<long long>(reflected64(powerOfXModP(distanceInBits + 63))),
            static_cast<long long>(reflected64(powerOfXModP(distanceInBits - 1)))};
}

constexpr FoldConstants kFold128 = constantsFor(128);
constexpr FoldConstants kFold1024 = constantsFor(1024);
constexpr FoldConstants kFold2048 = constantsFor(2048);

__attribute__((target("pclmul,sse4.1"))) inline __m128i fold(__m128i value, __m128i constants) {
    return _mm_xor_si128(_mm_clmulepi64_si128(value, constants, 0x00),
                         _mm_clmulepi64_si128(value, constants, 0x11));
}

__attribute__((target("pclmul,sse4.1"))) inline __m128i load(const std::uint8_t* data) {
    return _mm_loadu_si128(reinterpret_cast<const __m128i*>(data));
}

// Folds the blocks one after another into the first and finishes with the tables: the 16 bytes
// of the folded value give the CRC of everything folded so far.
__attribute__((target("pclmul,sse4.1"))) std::uint32_t finish(const __m128i* blocks, std::size_t count,
                                                              const std::uint8_t* rest, std::size_t size) {
    const __m128i constants128 = _mm_set_epi64x(kFold128.secondHalf, kFold128.firstHalf);
    __m128i value = blocks[0];
    for (std::size_t i = 1; i < count; ++i) value = _mm_xor_si128(fold(value, constants128), blocks[i]);
    while (size >= 16) {
        value = _mm_xor_si128(fold(value, constants128), load(rest));
        rest += 16;
        size -= 16;
    }
    std::array<std::uint8_t, 16> bytes{};
    _mm_storeu_si128(reinterpret_cast<__m128i*>(bytes.data()), value);
    return updateSliced(updateBytewise(0, bytes.data(), bytes.size()), rest, size);
}

}  // namespace

bool available() {
    return __builtin_cpu_supports("pclmul") && __builtin_cpu_supports("sse4.1");
}

bool available256() {
    return available() && __builtin_cpu_supports("avx2") && __builtin_cpu_supports("vpclmulqdq");
}

bool available512() {
    return available256() && __builtin_cpu_supports("avx512f") && __builtin_cpu_supports("avx512vl");
}

__attribute__((target("pclmul,sse4.1"))) std::uint32_t update(std::uint32_t reg, const std::uint8_t* data,
                                                              std::size_t size) {
    constexpr std::size_t kStep = 128;
    if (size < 2 * kStep) return updateSliced(reg, data, size);
    __m128i blocks[8];
    for (std::size_t i = 0; i < 8; ++i) blocks[i] = load(data + 16 * i);
    // The register joins the first four bytes of the message.
    blocks[0] = _mm_xor_si128(blocks[0], _mm_cvtsi32_si128(static_cast<int>(reg)));
    data += kStep;
    size -= kStep;
    const __m128i constants = _mm_set_epi64x(kFold1024.secondHalf, kFold1024.firstHalf);
    while (size >= kStep) {
        for (std::size_t i = 0; i < 8; ++i)
            blocks[i] = _mm_xor_si128(fold(blocks[i], constants), load(data + 16 * i));
        data += kStep;
        size -= kStep;
    }
    return finish(blocks, 8, data, size);
}

// Eight 256-bit lanes, 256 bytes a step: for processors with VPCLMULQDQ but without AVX-512.
__attribute__((target("pclmul,sse4.1,avx2,vpclmulqdq"))) std::uint32_t update256(std::uint32_t reg,
                                                                                 const std::uint8_t* data,
                                                                                 std::size_t size) {
    constexpr std::size_t kStep = 256;
    if (size < 2 * kStep) return update(reg, data, size);
    __m256i lanes[8];
    for (std::size_t i = 0; i < 8; ++i)
        lanes[i] = _mm256_loadu_si256(reinterpret_cast<const __m256i*>(data + 32 * i));
    lanes[0] = _mm256_xor_si256(lanes[0], _mm256_zextsi128_si256(_mm_cvtsi32_si128(static_cast<int>(reg))));
    data += kStep;
    size -= kStep;
    const __m256i constants =
        _mm256_broadcastsi128_si256(_mm_set_epi64x(kFold2048.secondHalf, kFold2048.firstHalf));
    while (size >= kStep) {
        for (std::size_t i = 0; i < 8; ++i) {
            const __m256i product = _mm256_xor_si256(_mm256_clmulepi64_epi128(lanes[i], constants, 0x00),
                                                     _mm256_clmulepi64_epi128(lanes[i], constants, 0x11));
            lanes[i] = _mm256_xor_si256(product,
                                        _mm256_loadu_si256(reinterpret_cast<const __m256i*>(data + 32 * i)));
        }
        data += kStep;
        size -= kStep;
    }
    __m128i blocks[16];
    std::memcpy(blocks, lanes, sizeof lanes);
    return finish(blocks, 16, data, size);
}

// Four 512-bit lanes, 256 bytes a step.
__attribute__((target("pclmul,sse4.1,avx512f,avx512vl,vpclmulqdq"))) std::uint32_t update512(
    std::uint32_t reg, const std::uint8_t* data, std::size_t size) {
    constexpr std::size_t kStep = 256;
    if (size < 2 * kStep) return update(reg, data, size);
    __m512i lanes[4];
    for (std::size_t i = 0; i < 4; ++i) lanes[i] = _mm512_loadu_si512(data + 64 * i);
    lanes[0] = _mm512_xor_si512(lanes[0], _mm512_zextsi128_si512(_mm_cvtsi32_si128(static_cast<int>(reg))));
    data += kStep;
    size -= kStep;
    const __m512i constants =
        _mm512_broadcast_i32x4(_mm_set_epi64x(kFold2048.secondHalf, kFold2048.firstHalf));
    while (size >= kStep) {
        for (std::size_t i = 0; i < 4; ++i) {
            const __m512i product = _mm512_xor_si512(_mm512_clmulepi64_epi128(lanes[i], constants, 0x00),
                                                     _mm512_clmulepi64_epi128(lanes[i], constants, 0x11));
            lanes[i] = _mm512_xor_si512(product, _mm512_loadu_si512(data + 64 * i));
        }
        data += kStep;
        size -= kStep;
    }
    __m128i blocks[16];
    std::memcpy(blocks, lanes, sizeof lanes);
    return finish(blocks, 16, data, size);
}

}  // namespace orvanta::crc32::folding

#else

namespace orvanta::crc32::folding {

bool available() {
    return false;
}
bool available256() {
    return false;
}
bool available512() {
    return false;
}
std::uint32_t update(std::uint32_t reg, const std::uint8_t* data, std::size_t size) {
    return updateSliced(reg, data, size);
}
std::uint32_t update256(std::uint32_t reg, const std::uint8_t* data, std::size_t size) {
    return updateSliced(reg, data, size);
}
std::uint32_t update512(std::uint32_t reg, const std::uint8_t* data, std::size_t size) {
    return updateSliced(reg, data, size);
}

}  // namespace orvanta::crc32::folding

#endif
