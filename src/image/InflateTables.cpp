#include "image/InflateTables.h"

#include <algorithm>
#include <vector>

namespace orvanta::inflate {

namespace {

constexpr std::array<std::uint16_t, 29> kLengthBase = {3,  4,  5,  6,   7,   8,   9,   10,  11, 13,
                                                       15, 17, 19, 23,  27,  31,  35,  43,  51, 59,
                                                       67, 83, 99, 115, 131, 163, 195, 227, 258};
constexpr std::array<std::uint8_t, 29> kLengthExtra = {0, 0, 0, 0, 0, 0, 0, 0, 1, 1, 1, 1, 2, 2, 2,
                                                       2, 3, 3, 3, 3, 4, 4, 4, 4, 5, 5, 5, 5, 0};
constexpr std::array<std::uint16_t, 30> kDistBase = {
    1,   2,   3,   4,   5,   7,    9,    13,   17,   25,   33,   49,   65,    97,    129,
    193, 257, 385, 513, 769, 1025, 1537, 2049, 3073, 4097, 6145, 8193, 12289, 16385, 24577};
constexpr std::array<std::uint8_t, 30> kDistExtra = {0, 0, 0, 0, 1, 1, 2, 2,  3,  3,  4,  4,  5,  5,  6,
                                                     6, 7, 7, 8, 8, 9, 9, 10, 10, 11, 11, 12, 12, 13, 13};

// What a symbol decodes to, without its code length.
std::uint32_t symbolEntry(std::uint32_t symbol, Alphabet alphabet) {
    if (alphabet == Alphabet::Distance) {
        if (symbol >= kDistBase.size()) return kInvalid;
        return std::uint32_t{kDistBase[symbol]} << 16 | std::uint32_t{kDistExtra[symbol]} << 4;
    }
    if (symbol < 256) return symbol << 16 | kLiteral;
    if (symbol == 256) return kEndOfBlock;
    symbol -= 257;
    if (symbol >= kLengthBase.size()) return kInvalid;
    return std::uint32_t{kLengthBase[symbol]} << 16 | std::uint32_t{kLengthExtra[symbol]} << 4;
}

std::uint32_t reversed(std::uint32_t code, std::uint32_t length) {
    std::uint32_t result = 0;
    for (std::uint32_t i = 0; i < length; ++i, code >>= 1) result = result << 1 | (code & 1);
    return result;
}

// Writes `entry` into every slot of `table` whose low `length` bits are `code`.
void fill(std::span<std::uint32_t> table, std::uint32_t code, std::uint32_t length, std::uint32_t entry) {
    for (std::size_t at = code; at < table.size(); at += std::size_t{1} << length) table[at] = entry;
}

}  // namespace

bool buildTable(std::span<const std::uint8_t> lengths, Alphabet alphabet, std::span<std::uint32_t> entries,
                unsigned mainBits) {
    std::array<std::uint32_t, kMaxCodeLength + 1> count{};
    for (const std::uint8_t length : lengths) ++count[length];
    count[0] = 0;
    // Canonical first codes, refusing a set that claims more codes than the bits allow.
    std::array<std::uint32_t, kMaxCodeLength + 2> next{};
    std::int32_t left = 1;
    for (std::uint32_t length = 1; length <= kMaxCodeLength; ++length) {
        left = left * 2 - static_cast<std::int32_t>(count[length]);
        if (left < 0) return false;
        next[length + 1] = (next[length] + count[length]) << 1;
    }
    const std::size_t mainSize = std::size_t{1} << mainBits;
    std::fill(entries.begin(), entries.begin() + static_cast<std::ptrdiff_t>(mainSize), kInvalid);
    // The longest code under each main prefix sets the index width of its sub-table.
    std::vector<std::uint32_t> codes(lengths.size());
    std::vector<std::uint8_t> widest(mainSize, 0);
    for (std::size_t symbol = 0; symbol < lengths.size(); ++symbol) {
        const std::uint32_t length = lengths[symbol];
        if (length == 0) continue;
        codes[symbol] = reversed(next[length]++, length);
        if (length > mainBits) {
            auto& width = widest[codes[symbol] & (mainSize - 1)];
            width = static_cast<std::uint8_t>(std::max<std::uint32_t>(width, length - mainBits));
        }
    }
    std::size_t used = mainSize;
    for (std::size_t prefix = 0; prefix < mainSize; ++prefix) {
        if (widest[prefix] == 0) continue;
        const std::size_t size = std::size_t{1} << widest[prefix];
        std::fill(entries.begin() + static_cast<std::ptrdiff_t>(used),
                  entries.begin() + static_cast<std::ptrdiff_t>(used + size), kInvalid);
        entries[prefix] = static_cast<std::uint32_t>(used) << 16 | kSubTable |
                          std::uint32_t{widest[prefix]} << 4 | mainBits;
        used += size;
    }
    for (std::size_t symbol = 0; symbol < lengths.size(); ++symbol) {
        const std::uint32_t length = lengths[symbol];
        if (length == 0) continue;
        const std::uint32_t entry = symbolEntry(static_cast<std::uint32_t>(symbol), alphabet);
        if (length <= mainBits) {
            fill(entries.first(mainSize), codes[symbol], length, entry | length);
            continue;
        }
        const std::uint32_t link = entries[codes[symbol] & (mainSize - 1)];
        const std::size_t size = std::size_t{1} << extraBits(link);
        fill(entries.subspan(entryValue(link), size), codes[symbol] >> mainBits, length - mainBits,
             entry | (length - mainBits));
    }
    return true;
}

}  // namespace orvanta::inflate
