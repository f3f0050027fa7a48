#include "image/Inflate.h"

#include <algorithm>
#include <array>
#include <cstring>

#include "image/InflateBits.h"
#include "image/InflateTables.h"

namespace orvanta {

namespace {

using namespace inflate;

// The fast loop runs while a whole match (258 bytes, written 8 at a time) and two refills fit.
constexpr std::ptrdiff_t kFastOutputMargin = 258 + 16;
constexpr std::ptrdiff_t kFastInputMargin = 16;

struct Output {
    std::uint8_t* begin;
    std::uint8_t* at;
    std::uint8_t* end;
    bool full() const { return at == end; }
};

struct Tables {
    LitLenTable litLen;
    DistTable dist;
};

// Copies a match whose whole length, plus 7 bytes of slack, fits in the output.
inline void copyMatchFast(std::uint8_t* out, std::size_t distance, std::size_t length) {
    std::uint8_t* const stop = out + length;
    if (distance == 1) {
        std::memset(out, out[-1], length);
        return;
    }
    const std::uint8_t* from = out - distance;
    if (distance < 8) {
        // The match repeats with its distance, so it also repeats with the multiple of the distance
        // that reaches 8: after a short byte copy the rest goes in words.
        const std::size_t period = distance * ((8 + distance - 1) / distance);
        const std::size_t head = std::min(period - distance, length);
        for (std::size_t i = 0; i < head; ++i) out[i] = from[i];
        out += head;
        from = out - period;
        if (out >= stop) return;
    }
    do {
        std::memcpy(out, from, 8);
        out += 8;
        from += 8;
    } while (out < stop);
}

// Decodes a main-table entry to its final entry, following a sub-table link.
template <typename Table>
inline std::uint32_t lookup(const Table& table, BitReader& in) {
    std::uint32_t entry = table.entries[in.peek(Table::kMainBits)];
    if ((entry & kSubTable) != 0) {
        in.drop(codeLength(entry));
        entry = table.entries[entryValue(entry) + in.peek(extraBits(entry))];
    }
    return entry;
}

// Reads a length or distance whose entry is known; the bits are in the buffer.
inline std::uint32_t withExtra(std::uint32_t entry, BitReader& in) {
    in.drop(codeLength(entry));
    const std::uint32_t extra = extraBits(entry);
    const std::uint32_t value = entryValue(entry) + in.peek(extra);
    in.drop(extra);
    return value;
}

enum class Step { Continue, EndOfBlock, OutputFull, Error };

// One symbol, checked at every byte: the path near the ends of input and output.
Step decodeSymbolCarefully(BitReader& in, Output& out, const Tables& tables, int& error) {
    in.refillAnywhere();
    const std::uint32_t entry = lookup(tables.litLen, in);
    if ((entry & kLiteral) != 0) {
        in.drop(codeLength(entry));
        // Nothing decoded from the zeros past the end reaches the output.
        if (in.overrun()) return error = kInflateTruncated, Step::Error;
        *out.at++ = static_cast<std::uint8_t>(entryValue(entry));
        return out.full() ? Step::OutputFull : Step::Continue;
    }
    if ((entry & kEndOfBlock) != 0) {
        in.drop(codeLength(entry));
        return Step::EndOfBlock;
    }
    if ((entry & kInvalid) != 0) return error = kInflateBadCode, Step::Error;
    const std::uint32_t length = withExtra(entry, in);
    in.refillAnywhere();
    const std::uint32_t distEntry = lookup(tables.dist, in);
    if ((distEntry & kInvalid) != 0) return error = kInflateBadCode, Step::Error;
    const std::uint32_t distance = withExtra(distEntry, in);
    if (in.overrun()) return error = kInflateTruncated, Step::Error;
    if (distance > static_cast<std::size_t>(out.at - out.begin))
        return error = kInflateBadDistance, Step::Error;
    const std::size_t count = std::min<std::size_t>(length, static_cast<std::size_t>(out.end - out.at));
    for (std::size_t i = 0; i < count; ++i, ++out.at)
        *out.at = out.at[-static_cast<std::ptrdiff_t>(distance)];
    return out.full() ? Step::OutputFull : Step::Continue;
}

// The hot loop: up to three literals a refill, matches copied in words.
Step decodeFast(BitReader& in, Output& out, const Tables& tables, int& error) {
    constexpr std::uint32_t mainMask = (1u << kLitLenMainBits) - 1;
    while (out.end - out.at >= kFastOutputMargin && in.available() >= kFastInputMargin) {
        in.refillFast();
        std::uint32_t entry = tables.litLen.entries[in.bits() & mainMask];
        if ((entry & kLiteral) != 0) {
            in.drop(codeLength(entry));
            *out.at++ = static_cast<std::uint8_t>(entryValue(entry));
            entry = tables.litLen.entries[in.bits() & mainMask];
            if ((entry & kLiteral) != 0) {
                in.drop(codeLength(entry));
                *out.at++ = static_cast<std::uint8_t>(entryValue(entry));
                entry = tables.litLen.entries[in.bits() & mainMask];
                if ((entry & kLiteral) != 0) {
                    in.drop(codeLength(entry));
                    *out.at++ = static_cast<std::uint8_t>(entryValue(entry));
                    continue;
                }
            }
            // The pending entry stays valid: a refill only adds bits above those it was read from.
            in.refillFast();
        }
        if ((entry & kExceptional) != 0) {
            if ((entry & kSubTable) != 0) {
                in.drop(codeLength(entry));
                entry = tables.litLen.entries[entryValue(entry) + in.peek(extraBits(entry))];
                if ((entry & kLiteral) != 0) {
                    in.drop(codeLength(entry));
                    *out.at++ = static_cast<std::uint8_t>(entryValue(entry));
                    continue;
                }
            }
            if ((entry & kEndOfBlock) != 0) {
                in.drop(codeLength(entry));
                return Step::EndOfBlock;
            }
            if ((entry & kInvalid) != 0) return error = kInflateBadCode, Step::Error;
        }
        const std::uint32_t length = withExtra(entry, in);
        const std::uint32_t distEntry = lookup(tables.dist, in);
        if ((distEntry & kInvalid) != 0) return error = kInflateBadCode, Step::Error;
        const std::uint32_t distance = withExtra(distEntry, in);
        if (distance > static_cast<std::size_t>(out.at - out.begin))
            return error = kInflateBadDistance, Step::Error;
        copyMatchFast(out.at, distance, length);
        out.at += length;
    }
    return Step::Continue;
}

Step decodeHuffmanBlock(BitReader& in, Output& out, const Tables& tables, int& error) {
    for (;;) {
        Step step = decodeFast(in, out, tables, error);
        if (step != Step::Continue) return step;
        step = decodeSymbolCarefully(in, out, tables, error);
        if (step != Step::Continue) return step;
        if (in.overrun()) return error = kInflateTruncated, Step::Error;
    }
}

const Tables& fixedTables() {
    static const Tables tables = [] {
        Tables t;
        std::array<std::uint8_t, 288> litLen{};
        std::fill(litLen.begin(), litLen.begin() + 144, std::uint8_t{8});
        std::fill(litLen.begin() + 144, litLen.begin() + 256, std::uint8_t{9});
        std::fill(litLen.begin() + 256, litLen.begin() + 280, std::uint8_t{7});
        std::fill(litLen.begin() + 280, litLen.end(), std::uint8_t{8});
        std::array<std::uint8_t, 32> dist{};
        dist.fill(5);
        buildTable(litLen, Alphabet::LiteralLength, t.litLen);
        buildTable(dist, Alphabet::Distance, t.dist);
        return t;
    }();
    return tables;
}

// The code lengths of a dynamic block, themselves sent with a code of 19 symbols.
int readDynamicTables(BitReader& in, Tables& tables) {
    static constexpr std::array<std::uint8_t, 19> kOrder = {16, 17, 18, 0, 8,  7, 9,  6, 10, 5,
                                                            11, 4,  12, 3, 13, 2, 14, 1, 15};
    in.refillAnywhere();
    const std::uint32_t litLenCount = in.take(5) + 257, distCount = in.take(5) + 1,
                        lengthCount = in.take(4) + 4;
    if (litLenCount > 286 || distCount > 30) return kInflateBadTable;
    std::array<std::uint8_t, 19> codeLengths{};
    for (std::uint32_t i = 0; i < lengthCount; ++i) {
        in.refillAnywhere();
        codeLengths[kOrder[i]] = static_cast<std::uint8_t>(in.take(3));
    }
    DecodeTable<7, 19> lengthTable;
    if (!buildTable(codeLengths, Alphabet::LiteralLength, lengthTable)) return kInflateBadTable;
    std::array<std::uint8_t, 286 + 30> lengths{};
    const std::uint32_t total = litLenCount + distCount;
    for (std::uint32_t at = 0; at < total;) {
        in.refillAnywhere();
        const std::uint32_t entry = lengthTable.entries[in.peek(7)];
        if ((entry & kLiteral) == 0) return kInflateBadCode;
        in.drop(codeLength(entry));
        const std::uint32_t symbol = entryValue(entry);
        if (symbol < 16) {
            lengths[at++] = static_cast<std::uint8_t>(symbol);
            continue;
        }
        if (symbol == 16 && at == 0) return kInflateBadRun;
        const std::uint8_t value = symbol == 16 ? lengths[at - 1] : 0;
        const std::uint32_t repeat = symbol == 16   ? 3 + in.take(2)
                                     : symbol == 17 ? 3 + in.take(3)
                                                    : 11 + in.take(7);
        if (at + repeat > total) return kInflateBadRun;
        std::fill_n(lengths.begin() + at, repeat, value);
        at += repeat;
    }
    if (lengths[256] == 0) return kInflateBadTable;  // a block that could never end
    const std::span<const std::uint8_t> all(lengths.data(), total);
    if (!buildTable(all.first(litLenCount), Alphabet::LiteralLength, tables.litLen) ||
        !buildTable(all.subspan(litLenCount), Alphabet::Distance, tables.dist))
        return kInflateBadTable;
    return kInflateOk;
}

int copyStoredBlock(BitReader& in, Output& out, bool& outputFull) {
    std::span<const std::uint8_t> rest;
    if (!in.alignToByte(rest) || rest.size() < 4) return kInflateTruncated;
    const std::uint32_t length = std::uint32_t{rest[0]} | std::uint32_t{rest[1]} << 8;
    const std::uint32_t complement = std::uint32_t{rest[2]} | std::uint32_t{rest[3]} << 8;
    if ((length ^ 0xFFFF) != complement) return kInflateBadBlock;
    if (rest.size() - 4 < length) return kInflateTruncated;
    const std::size_t count = std::min<std::size_t>(length, static_cast<std::size_t>(out.end - out.at));
    std::memcpy(out.at, rest.data() + 4, count);
    out.at += count;
    outputFull = out.full();
    in.skipBytes(4 + length);
    return kInflateOk;
}

}  // namespace

int inflateStream(std::span<const std::uint8_t> in, std::span<std::uint8_t> out, std::size_t& written,
                  bool zlibHeader) {
    written = 0;
    if (zlibHeader) in = in.size() < 2 ? std::span<const std::uint8_t>{} : in.subspan(2);
    BitReader bits(in);
    Output output{out.data(), out.data(), out.data() + out.size()};
    Tables dynamic;
    int error = kInflateOk;
    for (bool last = false; !last && error == kInflateOk;) {
        if (output.full()) break;
        bits.refillAnywhere();
        last = bits.take(1) != 0;
        const std::uint32_t type = bits.take(2);
        if (bits.overrun()) {
            error = kInflateTruncated;
        } else if (type == 0) {
            bool full = false;
            error = copyStoredBlock(bits, output, full);
            if (full) break;
        } else if (type == 3) {
            error = kInflateBadBlock;
        } else {
            if (type == 2) error = readDynamicTables(bits, dynamic);
            if (error != kInflateOk) break;
            const Step step = decodeHuffmanBlock(bits, output, type == 1 ? fixedTables() : dynamic, error);
            if (step == Step::OutputFull) break;
            if (step == Step::EndOfBlock && bits.overrun()) error = kInflateTruncated;
        }
    }
    written = static_cast<std::size_t>(output.at - output.begin);
    return error;
}

}  // namespace orvanta
