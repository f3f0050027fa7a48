#pragma once
// The bit input of the own inflate: a 64-bit buffer, filled a word at a time while eight bytes
// remain and a byte at a time near the end, where missing bytes read as zero and are counted, so
// that a stream that stops short is found without a check at every read.

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>

namespace orvanta::inflate {

class BitReader {
public:
    explicit BitReader(std::span<const std::uint8_t> in)
        : begin_(in.data()), at_(in.data()), end_(in.data() + in.size()) {}

    std::uint64_t bits() const { return buffer_; }
    std::uint32_t peek(std::uint32_t count) const {
        return static_cast<std::uint32_t>(buffer_ & ((std::uint64_t{1} << count) - 1));
    }
    void drop(std::uint32_t count) {
        buffer_ >>= count;
        count_ -= count;
    }
    std::uint32_t take(std::uint32_t count) {
        const std::uint32_t value = peek(count);
        drop(count);
        return value;
    }
    std::ptrdiff_t available() const { return end_ - at_; }

    // At least 56 bits afterwards; needs eight bytes of input. Bits above the count may be set:
    // they are the next input bits, which a later refill writes again with the same values.
    void refillFast() {
        std::uint64_t word;
        std::memcpy(&word, at_, 8);
        buffer_ |= littleEndian(word) << count_;
        at_ += (63 - count_) >> 3;
        count_ |= 56;
    }
    void refillAnywhere() {
        if (available() >= 8) return refillFast();
        while (count_ <= 56) {
            std::uint64_t byte = 0;
            if (at_ < end_)
                byte = *at_++;
            else
                ++padding_;
            buffer_ |= byte << count_;
            count_ += 8;
        }
    }
    // True once more bits were taken than the input holds.
    bool overrun() const { return padding_ * 8 > count_; }

    // Drops the bits up to the next byte boundary and gives the input from there; false if that
    // lies past the end.
    bool alignToByte(std::span<const std::uint8_t>& rest) {
        drop(count_ & 7);
        if (padding_ * 8 > count_) return false;
        const std::size_t at = static_cast<std::size_t>(at_ - begin_) - (count_ / 8 - padding_);
        rest = {begin_ + at, end_};
        return true;
    }
    // Continues `count` bytes after the byte boundary that alignToByte found.
    void skipBytes(std::size_t count) {
        at_ = at_ - (count_ / 8 - padding_) + count;
        buffer_ = 0;
        count_ = 0;
        padding_ = 0;
    }

private:
    static std::uint64_t littleEndian(std::uint64_t word) {
        if constexpr (std::endian::native == std::endian::little)
            return word;
        else
            return __builtin_bswap64(word);
    }
    const std::uint8_t* begin_;
    const std::uint8_t* at_;
    const std::uint8_t* end_;
    std::uint64_t buffer_ = 0;
    std::uint32_t count_ = 0;
    std::uint32_t padding_ = 0;
};

}  // namespace orvanta::inflate
