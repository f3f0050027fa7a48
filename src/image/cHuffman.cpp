#include "image/cHuffman.h"

#include <cstring>

#include "image/HuffmanTree.h"
#include "image/RasterBytes.h"

namespace orvanta {

namespace {

constexpr std::uint8_t kMark = 0x0D;
constexpr std::uint8_t kStored = '0';
constexpr std::uint8_t kCoded = '3';
constexpr std::size_t kSignatureSize = 8;
constexpr std::size_t kSmallestCoded = 16;  // signature, coded size, symbol count, one table entry

class BitWriter {
public:
    explicit BitWriter(std::vector<std::uint8_t>& out) : out_(out) {}
    void put(std::uint8_t bit) {
        if (bit != 0) current_ = static_cast<std::uint8_t>(current_ | (1u << count_));
        if (++count_ == 8) flush();
    }
    void flush() {
        if (count_ == 0) return;
        out_.push_back(current_);
        current_ = 0;
        count_ = 0;
    }

private:
    std::vector<std::uint8_t>& out_;
    std::uint8_t current_ = 0;
    std::uint32_t count_ = 0;
};

class BitReader {
public:
    BitReader(ByteRun run, std::size_t at, std::size_t end) : run_(run), at_(at), end_(end) {}
    bool get(std::uint32_t& bit) {
        if (at_ >= end_) return false;
        bit = (std::uint32_t{run_[at_]} >> count_) & 1u;
        if (++count_ == 8) {
            count_ = 0;
            ++at_;
        }
        return true;
    }
    // The next whole byte after the bits read.
    std::size_t byteEnd() const { return count_ == 0 ? at_ : at_ + 1; }

private:
    ByteRun run_;
    std::size_t at_;
    std::size_t end_;
    std::uint32_t count_ = 0;
};

void putLe(std::vector<std::uint8_t>& out, std::uint32_t value, int bytes) {
    for (int i = 0; i < bytes; ++i) out.push_back(static_cast<std::uint8_t>(value >> (8 * i)));
}

void writeSignature(std::vector<std::uint8_t>& out, std::uint8_t version, std::size_t count,
                    const c32bppDIB* picture) {
    out = {kMark, version, 'E', 'H'};
    putLe(out, static_cast<std::uint32_t>(count), 4);
    // A picture keeps its size in the stored form too, so that it can be rebuilt.
    if (picture == nullptr) return;
    putLe(out, static_cast<std::uint32_t>(picture->Width()), 4);
    putLe(out, static_cast<std::uint32_t>(picture->Height()), 4);
}

std::uint64_t codedBytes(const std::array<std::uint64_t, 256>& counts, const HuffmanCodeTable& codes) {
    std::uint64_t bits = 0;
    for (std::size_t value = 0; value < 256; ++value) bits += counts[value] * codes[value].size();
    return (bits + 7) / 8;
}

void writeCoded(ByteRun input, const HuffmanCodeTable& codes, std::uint64_t size,
                std::vector<std::uint8_t>& out) {
    putLe(out, static_cast<std::uint32_t>(size), 4);
    std::uint32_t symbols = 0;
    for (const auto& code : codes) symbols += code.empty() ? 0u : 1u;
    putLe(out, symbols, 2);
    for (std::size_t value = 0; value < 256; ++value) {
        if (codes[value].empty()) continue;
        out.push_back(static_cast<std::uint8_t>(value));
        out.push_back(static_cast<std::uint8_t>(codes[value].size()));
    }
    BitWriter writer(out);
    for (const auto& code : codes)
        for (const std::uint8_t bit : code) writer.put(bit);
    writer.flush();
    for (const std::uint8_t byte : input)
        for (const std::uint8_t bit : codes[byte]) writer.put(bit);
    writer.flush();
}

// The container's picture size, checked against its byte count.
bool readPictureSize(ByteRun c, std::size_t& at, std::uint32_t count, std::int32_t& width,
                     std::int32_t& height) {
    if (!inside(c, at, 8)) return false;
    const std::uint32_t w = le32(c, at), h = le32(c, at + 4);
    at += 8;
    if (!surfaceFits(w, h) || std::uint64_t{w} * h * 4 != count) return false;
    width = static_cast<std::int32_t>(w);
    height = static_cast<std::int32_t>(h);
    return true;
}

bool readTree(ByteRun c, std::size_t& at, HuffmanDecodingTree& tree) {
    if (!inside(c, at, 2)) return false;
    const std::uint32_t symbols = le16(c, at);
    at += 2;
    if (symbols < 1 || symbols > 256 || !inside(c, at, std::uint64_t{symbols} * 2)) return false;
    const ByteRun table = c.subspan(at, symbols * 2);
    std::uint64_t codeBits = 0;
    for (std::size_t i = 0; i < symbols; ++i) codeBits += table[i * 2 + 1];
    at += symbols * 2;
    if (!inside(c, at, (codeBits + 7) / 8)) return false;
    BitReader reader(c, at, c.size());
    HuffmanCode code;
    for (std::size_t i = 0; i < symbols; ++i) {
        code.resize(table[i * 2 + 1]);
        for (auto& bit : code) {
            std::uint32_t value = 0;
            reader.get(value);
            bit = static_cast<std::uint8_t>(value);
        }
        if (!code.empty() && !tree.add(table[i * 2], code)) return false;
    }
    at = reader.byteEnd();
    return true;
}

bool decodeData(ByteRun c, std::size_t at, std::size_t size, const HuffmanDecodingTree& tree,
                std::uint32_t count, std::vector<std::uint8_t>& out) {
    // Every symbol takes at least one bit: a count beyond that is a lie, found before allocating.
    if (std::uint64_t{count} > std::uint64_t{size} * 8) return false;
    out.reserve(count);
    BitReader reader(c, at, at + size);
    while (out.size() < count) {
        std::int32_t node = tree.root();
        while (!tree.isLeaf(node)) {
            std::uint32_t bit = 0;
            if (!reader.get(bit)) return false;
            node = tree.child(node, bit);
            if (node == HuffmanDecodingTree::kMissing) return false;
        }
        out.push_back(tree.symbol(node));
    }
    return true;
}

bool decodeCoded(ByteRun c, std::size_t at, std::uint32_t count, std::vector<std::uint8_t>& out) {
    if (c.size() < kSmallestCoded || !inside(c, at, 4)) return false;
    const std::uint32_t size = le32(c, at);
    at += 4;
    HuffmanDecodingTree tree;
    if (!readTree(c, at, tree) || !inside(c, at, size)) return false;
    return decodeData(c, at, size, tree, count, out);
}

bool fillPicture(const std::vector<std::uint8_t>& bytes, std::int32_t width, std::int32_t height,
                 c32bppDIB& surface) {
    if (!surface.InitializeDIB(width, height)) return false;
    std::memcpy(surface.BitsPointer(), bytes.data(), bytes.size());
    std::int32_t type = surface.ImageType();
    // A container may hold straight colours: they are premultiplied, as every surface must be.
    surface.setAlpha(validateAlpha({surface.BitsPointer(), bytes.size()}, true, type));
    surface.setImageType(type);
    return true;
}

}  // namespace

bool cHuffman::EncodeByteArray(const c32bppDIB* surface, std::span<const std::uint8_t> bytes,
                               std::vector<std::uint8_t>& receiver) {
    const bool picture = surface != nullptr && surface->Handle() != 0;
    const ByteRun input =
        picture ? ByteRun{surface->BitsPointer(), static_cast<std::size_t>(surface->scanWidth()) *
                                                      static_cast<std::size_t>(surface->Height())}
                : bytes;
    receiver.clear();
    if (input.size() > 0xFFFFFFFFu) return false;
    std::array<std::uint64_t, 256> counts{};
    for (const std::uint8_t byte : input) ++counts[byte];
    const HuffmanCodeTable codes = buildHuffmanCodes(counts);
    const std::uint64_t size = codedBytes(counts, codes);
    const c32bppDIB* header = picture ? surface : nullptr;
    if (size == 0 || size >= input.size()) {
        writeSignature(receiver, kStored, input.size(), header);
        receiver.insert(receiver.end(), input.begin(), input.end());
        return true;
    }
    writeSignature(receiver, kCoded, input.size(), header);
    writeCoded(input, codes, size, receiver);
    return true;
}

bool cHuffman::DecodeByteArray(std::span<const std::uint8_t> container, std::size_t start, c32bppDIB* surface,
                               std::vector<std::uint8_t>& receiver) {
    receiver.clear();
    if (start > container.size()) return false;
    const ByteRun c = container.subspan(start);
    if (c.size() < kSignatureSize || c[0] != kMark || c[2] != 'E' || c[3] != 'H') return false;
    if (c[1] != kStored && c[1] != kCoded) return false;
    const std::uint32_t count = le32(c, 4);
    std::size_t at = kSignatureSize;
    std::int32_t width = 0, height = 0;
    if (surface != nullptr && !readPictureSize(c, at, count, width, height)) return false;
    bool valid = false;
    if (c[1] == kStored) {
        valid = inside(c, at, count);
        if (valid)
            receiver.assign(c.begin() + static_cast<std::ptrdiff_t>(at),
                            c.begin() + static_cast<std::ptrdiff_t>(at + count));
    } else {
        valid = decodeCoded(c, at, count, receiver);
    }
    if (valid && surface != nullptr) valid = fillPicture(receiver, width, height, *surface);
    if (!valid) receiver.clear();
    return valid;
}

}  // namespace orvanta
