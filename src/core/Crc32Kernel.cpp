#include "core/Crc32Kernel.h"

#include <cstring>

#include "core/Crc32Folding.h"

namespace orvanta::crc32 {

namespace {

constexpr std::uint32_t kPolynomial = 0xEDB88320u;

using Tables = std::array<std::array<std::uint32_t, 256>, 8>;

constexpr Tables makeTables() {
    Tables tables{};
    for (std::uint32_t i = 0; i < 256; ++i) {
        std::uint32_t c = i;
        for (int bit = 0; bit < 8; ++bit) c = (c & 1) ? (c >> 1) ^ kPolynomial : c >> 1;
        tables[0][i] = c;
    }
    // Table k advances a byte by k further zero bytes.
    for (std::size_t k = 1; k < 8; ++k)
        for (std::size_t i = 0; i < 256; ++i)
            tables[k][i] = (tables[k - 1][i] >> 8) ^ tables[0][tables[k - 1][i] & 0xFF];
    return tables;
}

constexpr Tables kTables = makeTables();

std::uint32_t load32(const std::uint8_t* p) {
    return static_cast<std::uint32_t>(p[0]) | static_cast<std::uint32_t>(p[1]) << 8 |
           static_cast<std::uint32_t>(p[2]) << 16 | static_cast<std::uint32_t>(p[3]) << 24;
}

using UpdateFunction = std::uint32_t (*)(std::uint32_t, const std::uint8_t*, std::size_t);

struct FastestPath {
    UpdateFunction function;
    const char* name;
};

FastestPath chooseFastestPath() {
    if (folding::available512()) return {folding::update512, "vpclmulqdq-512"};
    if (folding::available256()) return {folding::update256, "vpclmulqdq-256"};
    if (folding::available()) return {folding::update, "pclmulqdq"};
    return {updateSliced, "sliced"};
}

const FastestPath& fastestPath() {
    static const FastestPath path = chooseFastestPath();
    return path;
}

}  // namespace

const std::array<std::uint32_t, 256>& table() {
    return kTables[0];
}

std::uint32_t updateBytewise(std::uint32_t reg, const std::uint8_t* data, std::size_t size) {
    for (std::size_t i = 0; i < size; ++i) reg = (reg >> 8) ^ kTables[0][(reg ^ data[i]) & 0xFF];
    return reg;
}

std::uint32_t updateSliced(std::uint32_t reg, const std::uint8_t* data, std::size_t size) {
    while (size >= 8) {
        const std::uint32_t low = reg ^ load32(data);
        const std::uint32_t high = load32(data + 4);
        reg = kTables[7][low & 0xFF] ^ kTables[6][(low >> 8) & 0xFF] ^ kTables[5][(low >> 16) & 0xFF] ^
              kTables[4][low >> 24] ^ kTables[3][high & 0xFF] ^ kTables[2][(high >> 8) & 0xFF] ^
              kTables[1][(high >> 16) & 0xFF] ^ kTables[0][high >> 24];
        data += 8;
        size -= 8;
    }
    return updateBytewise(reg, data, size);
}

std::uint32_t update(std::uint32_t reg, const std::uint8_t* data, std::size_t size) {
    return fastestPath().function(reg, data, size);
}

const char* fastestPathName() {
    return fastestPath().name;
}

}  // namespace orvanta::crc32
