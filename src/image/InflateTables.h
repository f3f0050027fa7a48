#pragma once
// Decode tables of the own inflate. One 32-bit entry for each value of the next bits of input
// (bits reversed at the build, as the stream sends codes high bit first); codes longer than the
// main table's index hang in sub-tables after it.

#include <array>
#include <cstdint>
#include <span>

namespace orvanta::inflate {

// Entry layout: bits 0-3 code length (the main index width for a sub-table link), bits 4-7 extra
// bits or the sub-table's index width, bits 8-11 the kind, bits 16-31 the value (literal, base of
// a length or distance, or the sub-table's offset).
inline constexpr std::uint32_t kLiteral = 0x100;
inline constexpr std::uint32_t kEndOfBlock = 0x200;
inline constexpr std::uint32_t kSubTable = 0x400;
inline constexpr std::uint32_t kInvalid = 0x800;
inline constexpr std::uint32_t kExceptional = kEndOfBlock | kSubTable | kInvalid;

inline constexpr unsigned kLitLenMainBits = 11;
inline constexpr unsigned kDistMainBits = 8;
inline constexpr unsigned kMaxCodeLength = 15;

inline constexpr std::uint32_t codeLength(std::uint32_t entry) {
    return entry & 0xF;
}
inline constexpr std::uint32_t extraBits(std::uint32_t entry) {
    return (entry >> 4) & 0xF;
}
inline constexpr std::uint32_t entryValue(std::uint32_t entry) {
    return entry >> 16;
}

enum class Alphabet { LiteralLength, Distance };

// Sized for the worst case: every long code of its alphabet under its own main-table prefix.
template <unsigned MainBits, unsigned Symbols>
struct DecodeTable {
    static constexpr unsigned kMainBits = MainBits;
    std::array<std::uint32_t, (1u << MainBits) + Symbols*(1u << (kMaxCodeLength - MainBits))> entries{};
};
using LitLenTable = DecodeTable<kLitLenMainBits, 288>;
using DistTable = DecodeTable<kDistMainBits, 32>;

// Builds a table from code lengths; false for an over-subscribed set. An incomplete set is
// accepted: the bit patterns it leaves out decode as kInvalid.
bool buildTable(std::span<const std::uint8_t> lengths, Alphabet alphabet, std::span<std::uint32_t> entries,
                unsigned mainBits);

template <typename Table>
bool buildTable(std::span<const std::uint8_t> lengths, Alphabet alphabet, Table& table) {
    return buildTable(lengths, alphabet, table.entries, Table::kMainBits);
}

}  // namespace orvanta::inflate
