#include "image/LzwDecoder.h"

#include <array>
#include <cstddef>

namespace orvanta {

namespace {

constexpr std::uint32_t kTableSize = 4096;
constexpr int kMaxCodeBits = 12;

class CodeReader {
public:
    explicit CodeReader(std::span<const std::uint8_t> data) : data_(data) {}

    // False when the data end before `bits` more bits.
    bool next(int bits, std::uint32_t& code) {
        while (count_ < bits) {
            if (at_ >= data_.size()) return false;
            buffer_ |= static_cast<std::uint32_t>(data_[at_++]) << count_;
            count_ += 8;
        }
        code = buffer_ & ((1u << bits) - 1);
        buffer_ >>= bits;
        count_ -= bits;
        return true;
    }

private:
    std::span<const std::uint8_t> data_;
    std::size_t at_ = 0;
    std::uint32_t buffer_ = 0;
    int count_ = 0;
};

class StringTable {
public:
    explicit StringTable(int minimumCodeSize)
        : minimum_(minimumCodeSize), clear_(1u << minimumCodeSize), end_(clear_ + 1) {
        for (std::uint32_t i = 0; i < clear_; ++i) {
            suffix_[i] = first_[i] = static_cast<std::uint8_t>(i);
            length_[i] = 1;
        }
        reset();
    }

    void reset() {
        next_ = clear_ + 2;
        codeBits_ = minimum_ + 1;
    }

    std::uint32_t clearCode() const { return clear_; }
    std::uint32_t endCode() const { return end_; }
    std::uint32_t nextCode() const { return next_; }
    int codeBits() const { return codeBits_; }
    bool isLiteral(std::uint32_t code) const { return code < clear_; }
    std::uint8_t firstOf(std::uint32_t code) const { return first_[code]; }

    // A full table stays as it is until the next clear code, as GIF decoders do.
    void add(std::uint32_t prefix, std::uint8_t last) {
        if (next_ >= kTableSize) return;
        prefix_[next_] = static_cast<std::uint16_t>(prefix);
        suffix_[next_] = last;
        first_[next_] = first_[prefix];
        length_[next_] = static_cast<std::uint16_t>(length_[prefix] + 1);
        ++next_;
        if (next_ == (1u << codeBits_) && codeBits_ < kMaxCodeBits) ++codeBits_;
    }

    // Writes the string of `code` at `out`, cut at the end of the buffer; returns the length written.
    std::size_t emit(std::uint32_t code, std::span<std::uint8_t> out) const {
        const std::size_t length = length_[code];
        for (std::size_t k = length; k-- > 0;) {
            if (k < out.size()) out[k] = suffix_[code];
            code = prefix_[code];
        }
        return length < out.size() ? length : out.size();
    }

private:
    int minimum_;
    std::uint32_t clear_;
    std::uint32_t end_;
    std::uint32_t next_ = 0;
    int codeBits_ = 0;
    std::array<std::uint16_t, kTableSize> prefix_{};
    std::array<std::uint8_t, kTableSize> suffix_{};
    std::array<std::uint8_t, kTableSize> first_{};
    std::array<std::uint16_t, kTableSize> length_{};
};

constexpr std::uint32_t kNoPrevious = kTableSize;

}  // namespace

bool decodeGifLzw(std::span<const std::uint8_t> data, int minimumCodeSize, std::span<std::uint8_t> indexes) {
    if (minimumCodeSize < 1 || minimumCodeSize > 8) return false;
    StringTable table(minimumCodeSize);
    CodeReader reader(data);
    std::size_t written = 0;
    std::uint32_t previous = kNoPrevious;
    while (written < indexes.size()) {
        std::uint32_t code = 0;
        if (!reader.next(table.codeBits(), code) || code == table.endCode()) return false;
        if (code == table.clearCode()) {
            table.reset();
            previous = kNoPrevious;
            continue;
        }
        if (previous == kNoPrevious) {
            if (!table.isLiteral(code)) return false;
        } else if (code < table.nextCode()) {
            table.add(previous, table.firstOf(code));
        } else if (code == table.nextCode()) {
            // The string not yet in the table: the previous one plus its own first byte.
            table.add(previous, table.firstOf(previous));
        } else {
            return false;
        }
        written += table.emit(code, indexes.subspan(written));
        previous = code;
    }
    return true;
}

}  // namespace orvanta
