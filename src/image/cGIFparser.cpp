#include "image/cGIFparser.h"

#include <array>
#include <string>
#include <vector>

#include "image/LzwDecoder.h"
#include "image/RasterBytes.h"
#include "platform/CaseFolding.h"

namespace orvanta {

namespace {

constexpr std::size_t kHeaderSize = 13;
constexpr std::size_t kDescriptorSize = 10;
constexpr std::uint8_t kExtension = 0x21;
constexpr std::uint8_t kImageDescriptor = 0x2C;
constexpr std::uint8_t kGraphicControl = 0xF9;

struct GifFrame {
    std::array<std::uint8_t, 768> palette{};
    std::uint32_t paletteEntries = 0;
    std::int32_t transparentIndex = -1;
    std::int32_t width = 0;
    std::int32_t height = 0;
    bool interlaced = false;
    int minimumCodeSize = 0;
    std::vector<std::uint8_t> codes;
};

bool hasGifSignature(ByteRun bytes) {
    if (bytes.size() < 6) return false;
    std::string signature(6, '\0');
    for (std::size_t i = 0; i < 6; ++i) signature[i] = static_cast<char>(bytes[i]);
    return equalsIgnoringCase(signature, "gif89a") || equalsIgnoringCase(signature, "gif87a");
}

// A colour table of 2^(n+1) entries follows when bit 7 of `flags` is set; a later table replaces one
// read before.
bool readColourTable(ByteRun bytes, std::size_t& at, std::uint8_t flags, GifFrame& frame) {
    if ((flags & 0x80) == 0) return true;
    const std::uint32_t entries = 2u << (flags & 7);
    if (!inside(bytes, at, entries * 3)) return false;
    for (std::size_t i = 0; i < entries * 3; ++i) frame.palette[i] = bytes[at + i];
    frame.paletteEntries = entries;
    at += entries * 3;
    return true;
}

// Moves `at` past a chain of sub-blocks and its zero terminator.
bool skipSubBlocks(ByteRun bytes, std::size_t& at) {
    while (at < bytes.size()) {
        const std::size_t length = bytes[at];
        ++at;
        if (length == 0) return true;
        at += length;
    }
    return false;
}

bool readGraphicControl(ByteRun bytes, std::size_t label, GifFrame& frame) {
    if (!inside(bytes, label, 6)) return false;
    if ((bytes[label + 2] & 1) != 0)
        frame.transparentIndex = bytes[label + 5];
    else
        frame.transparentIndex = -1;
    return true;
}

// Walks the blocks before the first image descriptor and leaves `at` on it.
bool walkToDescriptor(ByteRun bytes, std::size_t& at, GifFrame& frame) {
    while (at < bytes.size() && (bytes[at] == 0 || bytes[at] == kExtension)) {
        if (bytes[at] == 0) {
            ++at;
            continue;
        }
        const std::size_t label = at + 1;
        if (label >= bytes.size()) return false;
        if (bytes[label] == kGraphicControl && !readGraphicControl(bytes, label, frame)) return false;
        at = label + 1;
        if (!skipSubBlocks(bytes, at)) return false;
    }
    return inside(bytes, at, kDescriptorSize) && bytes[at] == kImageDescriptor;
}

bool readDescriptor(ByteRun bytes, std::size_t& at, GifFrame& frame) {
    frame.width = static_cast<std::int32_t>(le16(bytes, at + 5));
    frame.height = static_cast<std::int32_t>(le16(bytes, at + 7));
    const std::uint8_t flags = bytes[at + 9];
    frame.interlaced = (flags & 0x40) != 0;
    at += kDescriptorSize;
    return readColourTable(bytes, at, flags, frame) && frame.paletteEntries != 0 &&
           surfaceFits(frame.width, frame.height);
}

bool readImageData(ByteRun bytes, std::size_t at, GifFrame& frame) {
    if (at >= bytes.size()) return false;
    frame.minimumCodeSize = bytes[at++];
    while (at < bytes.size()) {
        const std::size_t length = bytes[at++];
        if (length == 0) return true;
        if (!inside(bytes, at, length)) break;
        frame.codes.insert(frame.codes.end(), bytes.begin() + static_cast<std::ptrdiff_t>(at),
                           bytes.begin() + static_cast<std::ptrdiff_t>(at + length));
        at += length;
    }
    // A stream without its terminator still decodes if it holds every pixel.
    return !frame.codes.empty();
}

bool readFrame(ByteRun bytes, GifFrame& frame) {
    std::size_t at = kHeaderSize;
    if (bytes.size() < kHeaderSize || !readColourTable(bytes, at, bytes[10], frame)) return false;
    if (!walkToDescriptor(bytes, at, frame) || !readDescriptor(bytes, at, frame)) return false;
    return readImageData(bytes, at, frame);
}

// The picture row that the n-th decoded row belongs to.
std::vector<std::int32_t> rowOrder(const GifFrame& frame) {
    std::vector<std::int32_t> order;
    order.reserve(static_cast<std::size_t>(frame.height));
    if (!frame.interlaced) {
        for (std::int32_t y = 0; y < frame.height; ++y) order.push_back(y);
        return order;
    }
    constexpr std::int32_t starts[4] = {0, 4, 2, 1};
    constexpr std::int32_t steps[4] = {8, 8, 4, 2};
    for (int pass = 0; pass < 4; ++pass)
        for (std::int32_t y = starts[pass]; y < frame.height; y += steps[pass]) order.push_back(y);
    return order;
}

void paint(const GifFrame& frame, const std::vector<std::uint8_t>& indexes, c32bppDIB& surface) {
    const std::uint32_t mask = frame.paletteEntries - 1;
    const auto width = static_cast<std::size_t>(frame.width);
    const std::vector<std::int32_t> order = rowOrder(frame);
    for (std::size_t row = 0; row < order.size(); ++row) {
        const auto memoryRow = static_cast<std::size_t>(frame.height - 1 - order[row]);
        std::uint8_t* out = surface.BitsPointer() + memoryRow * width * 4;
        const std::uint8_t* in = indexes.data() + row * width;
        for (std::size_t x = 0; x < width; ++x, out += 4) {
            const std::uint32_t index = in[x] & mask;
            if (static_cast<std::int32_t>(index) == frame.transparentIndex) continue;
            out[0] = frame.palette[index * 3 + 2];
            out[1] = frame.palette[index * 3 + 1];
            out[2] = frame.palette[index * 3];
            out[3] = 255;
        }
    }
}

}  // namespace

bool cGIFparser::LoadStream(std::span<const std::uint8_t> bytes, c32bppDIB& surface) {
    if (!hasGifSignature(bytes)) return false;
    surface.DestroyDIB();
    GifFrame frame;
    if (!readFrame(bytes, frame)) return false;
    std::vector<std::uint8_t> indexes(static_cast<std::size_t>(frame.width) *
                                      static_cast<std::size_t>(frame.height));
    if (!decodeGifLzw(frame.codes, frame.minimumCodeSize, indexes)) return false;
    if (!surface.InitializeDIB(frame.width, frame.height)) return false;
    paint(frame, indexes, surface);
    surface.setAlpha(frame.transparentIndex >= 0);
    surface.setImageType(kImageGif);
    return true;
}

}  // namespace orvanta
