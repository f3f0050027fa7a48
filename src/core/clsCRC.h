#pragma once
// Running CRC-16 (XMODEM) and CRC-32 (ISO 3309 / PNG) over bytes, strings and files. Results are
// signed 32-bit values, so a CRC-32 with its top bit set reads as a negative number.

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "platform/Host.h"

namespace orvanta {

class clsCRC {
public:
    // A new instance has CRC-32 selected and both registers cleared.
    explicit clsCRC(Host& host);

    // 0 selects CRC-16, anything else CRC-32; clears both registers. Reads back -1 or 0.
    void setAlgorithm(std::int32_t algorithm);
    std::int32_t Algorithm() const;

    std::int32_t AddBytes(std::span<const std::uint8_t> bytes);
    std::int32_t AddString(std::string_view ansiText);
    std::int32_t CalculateBytes(std::span<const std::uint8_t> bytes);
    std::int32_t CalculateString(std::string_view ansiText);
    // The CRC of a file's bytes; nothing (an empty value) for a file of length 0, which leaves the
    // registers alone. A file that cannot be found or read throws RuntimeError.
    std::optional<std::int32_t> CalculateFile(const std::string& path);

    // CRC-32: the complement of the register; CRC-16: the register masked to 16 bits.
    std::int32_t Value() const;
    // Stores the raw register of the selected algorithm, without the complement.
    void setValue(std::int64_t value);
    void Clear();

private:
    // Files are read in pieces of this size, so memory stays bounded whatever the file's length.
    static constexpr std::uint64_t kFileChunk = 1 << 20;

    std::int32_t updateSelected(std::int32_t reg, std::span<const std::uint8_t> bytes) const;
    std::int32_t& selectedRegister();
    std::int32_t crcOfFile(FileReader& reader, std::uint64_t length) const;

    Host& host_;
    bool crc32Selected_ = true;
    // The CRC-32 table is a constant of the kernel; the CRC-16 one is built on first use.
    std::array<std::uint32_t, 256> crc16Table_{};
    bool crc16TableBuilt_ = false;
    std::int32_t crc16Register_ = 0;
    std::int32_t crc32Register_ = -1;
};

// The hexadecimal form the integrity record prints: upper case, the 32-bit pattern, no leading
// zeros ("CBF43926", "0").
std::string crcHex(std::int32_t value);

}  // namespace orvanta
