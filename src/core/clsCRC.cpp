#include "core/clsCRC.h"

#include <algorithm>
#include <memory>

#include "core/Crc32Kernel.h"
#include "core/RuntimeError.h"

namespace orvanta {

namespace {

// The doubling runs in 32 bits without a mask, so entries keep leftovers above bit 15; the
// update reads only the low 16 bits.
std::array<std::uint32_t, 256> buildCrc16Table() {
    std::array<std::uint32_t, 256> table{};
    for (std::uint32_t i = 0; i < 256; ++i) {
        std::uint32_t d = i * 256, c = 0;
        for (int bit = 0; bit < 8; ++bit) {
            c = ((c ^ d) & 0x8000) ? (c * 2) ^ 0x1021 : c * 2;
            d *= 2;
        }
        table[i] = c;
    }
    return table;
}

std::int32_t updateCrc16(std::int32_t reg, const std::uint8_t* data, std::size_t size,
                         const std::array<std::uint32_t, 256>& table) {
    auto r = static_cast<std::uint32_t>(reg) & 0xFFFF;
    for (std::size_t i = 0; i < size; ++i) {
        const std::uint32_t t = table[(data[i] ^ (r >> 8)) & 0xFF] & 0xFFFF;
        r = (((t >> 8) ^ r) & 0xFF) << 8 | (t & 0xFF);
    }
    return static_cast<std::int32_t>(r & 0xFFFF);
}

RuntimeError accessError() {
    return RuntimeError(kErrorNumberPathFileAccess, "Path/File access error");
}

std::span<const std::uint8_t> bytesOf(std::string_view text) {
    return {reinterpret_cast<const std::uint8_t*>(text.data()), text.size()};
}

}  // namespace

std::string crcHex(std::int32_t value) {
    static const char* digits = "0123456789ABCDEF";
    auto bits = static_cast<std::uint32_t>(value);
    std::string hex;
    do {
        hex.insert(hex.begin(), digits[bits & 15]);
        bits >>= 4;
    } while (bits != 0);
    return hex;
}

clsCRC::clsCRC(Host& host) : host_(host) {
    setAlgorithm(1);
}

void clsCRC::setAlgorithm(std::int32_t algorithm) {
    crc32Selected_ = algorithm != 0;
    if (!crc32Selected_ && !crc16TableBuilt_) {
        crc16Table_ = buildCrc16Table();
        crc16TableBuilt_ = true;
    }
    Clear();
}

std::int32_t clsCRC::Algorithm() const {
    return crc32Selected_ ? -1 : 0;
}

std::int32_t clsCRC::AddBytes(std::span<const std::uint8_t> bytes) {
    selectedRegister() = updateSelected(selectedRegister(), bytes);
    return Value();
}

std::int32_t clsCRC::updateSelected(std::int32_t reg, std::span<const std::uint8_t> bytes) const {
    if (bytes.empty()) return reg;
    if (!crc32Selected_) return updateCrc16(reg, bytes.data(), bytes.size(), crc16Table_);
    return static_cast<std::int32_t>(
        crc32::update(static_cast<std::uint32_t>(reg), bytes.data(), bytes.size()));
}

std::int32_t& clsCRC::selectedRegister() {
    return crc32Selected_ ? crc32Register_ : crc16Register_;
}

std::int32_t clsCRC::AddString(std::string_view ansiText) {
    return AddBytes(bytesOf(ansiText));
}

std::int32_t clsCRC::CalculateBytes(std::span<const std::uint8_t> bytes) {
    Clear();
    return AddBytes(bytes);
}

std::int32_t clsCRC::CalculateString(std::string_view ansiText) {
    return CalculateBytes(bytesOf(ansiText));
}

std::optional<std::int32_t> clsCRC::CalculateFile(const std::string& path) {
    const auto length = host_.fileLength(path);
    if (!length) throw RuntimeError(kErrorNumberFileNotFound, "File not found");
    if (*length == 0) return std::nullopt;
    auto reader = host_.openForReading(path);
    if (!reader) throw accessError();
    // Until the last byte is in, the running value stays as it was, as when the whole file is
    // read before it is hashed.
    const std::int32_t reg = crcOfFile(*reader, *length);
    Clear();
    selectedRegister() = reg;
    return Value();
}

// Hashes exactly `length` bytes in pieces, which gives the value of one pass over the whole.
// A file that has shrunk since its length was taken reads as zeros to that length.
std::int32_t clsCRC::crcOfFile(FileReader& reader, std::uint64_t length) const {
    std::int32_t reg = crc32Selected_ ? -1 : 0;
    const auto chunk = static_cast<std::size_t>(std::min<std::uint64_t>(length, kFileChunk));
    const std::unique_ptr<std::uint8_t[]> buffer(new std::uint8_t[chunk]);
    for (std::uint64_t remaining = length; remaining > 0;) {
        const auto want = static_cast<std::size_t>(std::min<std::uint64_t>(remaining, chunk));
        std::size_t got = reader.read(buffer.get(), want);
        if (reader.failed()) throw accessError();
        if (got == 0) {
            std::fill_n(buffer.get(), want, std::uint8_t{0});
            got = want;
        }
        reg = updateSelected(reg, {buffer.get(), got});
        remaining -= got;
    }
    return reg;
}

std::int32_t clsCRC::Value() const {
    if (crc32Selected_) return ~crc32Register_;
    return crc16Register_ & 0xFFFF;
}

void clsCRC::setValue(std::int64_t value) {
    selectedRegister() = static_cast<std::int32_t>(value);
}

void clsCRC::Clear() {
    crc16Register_ = 0;
    crc32Register_ = -1;
}

}  // namespace orvanta
