#include "image/cICOparser.h"

#include "image/DibHeader.h"
#include "image/IconBitmap.h"
#include "image/RasterBytes.h"
#include "image/cPNGparser.h"

namespace orvanta {

namespace {

constexpr std::size_t kDirectoryHeaderSize = 6;
constexpr std::size_t kDirectoryEntrySize = 16;
constexpr std::uint32_t kIconType = 1;
constexpr std::uint32_t kCursorType = 2;
constexpr std::size_t kPngHeaderBytes = 26;  // signature, IHDR length and type, size, depth, colour type
constexpr std::uint32_t kPngSignature1 = 0x474E5089;
constexpr std::uint32_t kPngSignature2 = 0x0A1A0A0D;
constexpr std::uint32_t kIhdr = 0x49484452;

bool loadPngEntry(ByteRun data, c32bppDIB& surface) {
    cPNGparser parser;
    return parser.LoadStream(data, surface) && surface.Handle() != 0;
}

bool startsWithPng(ByteRun data) {
    return inside(data, 0, kPngHeaderBytes) && le32(data, 0) == kPngSignature1 &&
           le32(data, 4) == kPngSignature2 && be32(data, 12) == kIhdr;
}

std::int32_t pngSamples(std::uint8_t colourType) {
    switch (colourType) {
        case 0:
            return 1;
        case 2:
            return 3;
        case 3:
            return 1;
        case 4:
            return 2;
        case 6:
            return 4;
        default:
            return 0;
    }
}

// The size and depth the entry's own data give; the directory's values stay where they do not.
void readTrueSize(ByteRun data, IconEntry& entry) {
    if (startsWithPng(data)) {
        entry.isPng = true;
        const std::uint32_t width = be32(data, 16), height = be32(data, 20);
        if (width == 0 || height == 0 || width > 0x7FFFFFFF || height > 0x7FFFFFFF) return;
        entry.width = static_cast<std::int32_t>(width);
        entry.height = static_cast<std::int32_t>(height);
        const std::int32_t depth = data[24] * pngSamples(data[25]);
        if (depth != 0) entry.bitDepth = depth;
        return;
    }
    DibHeader header;
    if (!readDibHeader(data, header) || header.height < 2) return;
    entry.width = header.width;
    entry.height = header.height / 2;
    entry.bitDepth = static_cast<std::int32_t>(header.bitCount);
}

// In the directory a size of 0 stands for 256; a cursor keeps its hot spot where an icon keeps planes
// and depth.
bool readEntry(ByteRun bytes, std::size_t at, bool cursor, IconEntry& entry) {
    entry.width = bytes[at] == 0 ? 256 : bytes[at];
    entry.height = bytes[at + 1] == 0 ? 256 : bytes[at + 1];
    entry.colorCount = bytes[at + 2];
    entry.bitDepth = cursor ? 0 : static_cast<std::int32_t>(le16(bytes, at + 6));
    entry.dataSize = le32(bytes, at + 8);
    entry.dataOffset = le32(bytes, at + 12);
    if (!inside(bytes, entry.dataOffset, entry.dataSize)) return false;
    readTrueSize(bytes.subspan(entry.dataOffset, entry.dataSize), entry);
    return true;
}

}  // namespace

const IconEntry& cICOparser::entry(std::int32_t index) const {
    static const IconEntry none;
    if (index < 0 || static_cast<std::size_t>(index) >= entries_.size()) return none;
    return entries_[static_cast<std::size_t>(index)];
}

bool cICOparser::ReadDirectory(std::span<const std::uint8_t> bytes) {
    entries_.clear();
    cursor_ = false;
    if (bytes.size() < kDirectoryHeaderSize || le16(bytes, 0) != 0) return false;
    const std::uint32_t type = le16(bytes, 2), count = le16(bytes, 4);
    if ((type != kIconType && type != kCursorType) || count == 0) return false;
    if (!inside(bytes, kDirectoryHeaderSize, std::uint64_t{count} * kDirectoryEntrySize)) return false;
    cursor_ = type == kCursorType;
    entries_.resize(count);
    for (std::size_t i = 0; i < count; ++i) {
        if (!readEntry(bytes, kDirectoryHeaderSize + i * kDirectoryEntrySize, cursor_, entries_[i])) {
            entries_.clear();
            return false;
        }
    }
    return true;
}

bool cICOparser::LoadStream(std::span<const std::uint8_t> bytes, std::int32_t iconCx, std::int32_t iconCy,
                            c32bppDIB& surface, std::int32_t iconBitDepth) {
    if (!ReadDirectory(bytes)) return false;
    surface.DestroyDIB();
    const IconEntry& chosen = entries_[selectIconEntry(entries_, iconCx, iconCy, iconBitDepth)];
    const ByteRun data = bytes.subspan(chosen.dataOffset, chosen.dataSize);
    if (!chosen.isPng) return loadIconBitmap(data, cursor_, surface);
    if (!loadPngEntry(data, surface)) {
        surface.DestroyDIB();
        return false;
    }
    surface.setImageType(kImagePngInIcon);
    return true;
}

}  // namespace orvanta
