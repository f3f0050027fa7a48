#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "image/cICOparser.h"

namespace orvanta {
namespace {

using Bytes = std::vector<std::uint8_t>;

// Bytes beyond the fourth are zero, so that one call can write a run of zero fields.
void putLe(Bytes& out, std::uint32_t value, int bytes) {
    for (int i = 0; i < bytes; ++i) out.push_back(static_cast<std::uint8_t>(i < 4 ? value >> (8 * i) : 0));
}

// A bitmap entry of one colour (0x00RRGGBB, or an index below 9 bits); `masked(x, y)` with y from the
// bottom sets AND mask bits.
template <typename Masked>
Bytes iconBitmap(int size, std::uint32_t bits, std::uint32_t colour, Masked masked) {
    Bytes out;
    putLe(out, 40, 4);
    putLe(out, static_cast<std::uint32_t>(size), 4);
    putLe(out, static_cast<std::uint32_t>(size * 2), 4);
    putLe(out, 1, 2);
    putLe(out, bits, 2);
    putLe(out, 0, 4 * 6);
    if (bits <= 8)
        for (std::uint32_t i = 0; i < (1u << bits); ++i) putLe(out, i == 1 ? colour : 0x000000, 4);
    const std::size_t rowBytes = ((bits * static_cast<std::uint32_t>(size) + 31) / 32) * 4;
    for (int y = 0; y < size; ++y) {
        Bytes row(rowBytes, 0);
        for (int x = 0; x < size; ++x) {
            if (bits <= 8) {
                const std::size_t bit = static_cast<std::size_t>(x) * bits;
                row[bit / 8] = static_cast<std::uint8_t>(row[bit / 8] | 1u << (8 - bits - bit % 8));
            } else {
                const std::uint32_t word = bits == 32 ? colour : (colour & 0xFFFFFF);
                for (std::uint32_t b = 0; b < bits / 8; ++b)
                    row[static_cast<std::size_t>(x) * bits / 8 + b] =
                        static_cast<std::uint8_t>(word >> (8 * b));
            }
        }
        out.insert(out.end(), row.begin(), row.end());
    }
    const std::size_t maskBytes = ((static_cast<std::uint32_t>(size) + 31) / 32) * 4;
    for (int y = 0; y < size; ++y) {
        Bytes row(maskBytes, 0);
        for (int x = 0; x < size; ++x)
            if (masked(x, y))
                row[static_cast<std::size_t>(x) / 8] |= static_cast<std::uint8_t>(0x80 >> (x % 8));
        out.insert(out.end(), row.begin(), row.end());
    }
    return out;
}

Bytes iconBitmap(int size, std::uint32_t bits, std::uint32_t colour) {
    return iconBitmap(size, bits, colour, [](int, int) { return false; });
}

struct DirectoryEntry {
    int width, height;  // as the directory gives them: 0 for 256
    std::uint32_t bits;
    Bytes data;
};

Bytes makeIco(const std::vector<DirectoryEntry>& entries, std::uint32_t type = 1) {
    Bytes out;
    putLe(out, 0, 2);
    putLe(out, type, 2);
    putLe(out, static_cast<std::uint32_t>(entries.size()), 2);
    std::uint32_t offset = static_cast<std::uint32_t>(6 + 16 * entries.size());
    for (const auto& e : entries) {
        out.insert(out.end(),
                   {static_cast<std::uint8_t>(e.width), static_cast<std::uint8_t>(e.height), 0, 0});
        putLe(out, 1, 2);
        putLe(out, e.bits, 2);
        putLe(out, static_cast<std::uint32_t>(e.data.size()), 4);
        putLe(out, offset, 4);
        offset += static_cast<std::uint32_t>(e.data.size());
    }
    for (const auto& e : entries) out.insert(out.end(), e.data.begin(), e.data.end());
    return out;
}

// The colour GetPixel reports for 0x00RRGGBB.
std::int32_t reported(std::uint32_t rgb) {
    return static_cast<std::int32_t>((rgb >> 16 & 0xFF) | (rgb & 0xFF00) | (rgb & 0xFF) << 16);
}

TEST(IcoReader, DirectorySizeZeroMeansTwoHundredFiftySix) {
    // The entry's data say nothing readable, so the directory's own values stand.
    const Bytes file = makeIco({{0, 0, 32, Bytes(64, 0xEE)}, {16, 16, 4, iconBitmap(16, 4, 0xFF0000)}});
    cICOparser parser;
    ASSERT_TRUE(parser.ReadDirectory(file));
    EXPECT_EQ(parser.IconCount(), 2);
    EXPECT_EQ(parser.Width(0), 256);
    EXPECT_EQ(parser.Height(0), 256);
    EXPECT_EQ(parser.bitDepth(1), 4);
    EXPECT_EQ(parser.ColorByteOffset(1), 6u + 32 + 64);
    EXPECT_EQ(parser.Width(2), 0) << "outside the directory";
}

TEST(IcoReader, TrueSizeComesFromTheDataAndPngEntriesAreRecognised) {
    Bytes png = {0x89, 'P', 'N', 'G', 13, 10, 26, 10, 0, 0, 0, 13, 'I',
                 'H',  'D', 'R', 0,   0,  1,  0,  0,  0, 1, 0, 8,  6};
    png.resize(40, 0);
    const Bytes file = makeIco({{0, 0, 32, png}, {32, 32, 8, iconBitmap(24, 24, 0x00FF00)}});
    cICOparser parser;
    ASSERT_TRUE(parser.ReadDirectory(file));
    EXPECT_TRUE(parser.IsIconPNG(0));
    EXPECT_EQ(parser.Width(0), 256);
    EXPECT_EQ(parser.bitDepth(0), 32);
    EXPECT_FALSE(parser.IsIconPNG(1));
    EXPECT_EQ(parser.Width(1), 24) << "the bitmap header wins over the directory";
    EXPECT_EQ(parser.Height(1), 24) << "its height counts the mask too";
    EXPECT_EQ(parser.bitDepth(1), 24);
}

TEST(IcoReader, ExactSizeAndDepthWinsWhereverItStands) {
    std::vector<DirectoryEntry> entries = {{16, 16, 32, iconBitmap(16, 32, 0xFF0000FF)},
                                           {48, 48, 32, iconBitmap(48, 32, 0xFF00FF00)},
                                           {32, 32, 8, iconBitmap(32, 8, 0x00FFFF)},
                                           {32, 32, 32, iconBitmap(32, 32, 0xFFFF0000)}};
    for (std::size_t turn = 0; turn < entries.size(); ++turn) {
        c32bppDIB surface;
        ASSERT_TRUE(cICOparser().LoadStream(makeIco(entries), 32, 32, surface, 32));
        EXPECT_EQ(surface.Width(), 32);
        EXPECT_EQ(surface.GetPixel(3, 3), reported(0xFF0000)) << "turn " << turn;
        EXPECT_EQ(surface.ImageType(), kImageIcon32);
        std::rotate(entries.begin(), entries.begin() + 1, entries.end());
    }
}

struct SelectionCase {
    const char* rule;
    std::vector<IconEntry> entries;  // width, height, depth
    std::int32_t cx, cy, depth;
    std::size_t chosen;
};

TEST(IcoReader, SelectionPrefersTheSmallestLargerEntryThenTheNearest) {
    const SelectionCase cases[] = {
        {"smallest positive score", {{64, 64, 32}, {48, 48, 32}, {16, 16, 32}}, 32, 32, 32, 1},
        {"depth counts", {{48, 48, 4}, {48, 48, 32}}, 48, 48, 8, 0},
        {"all smaller: second pass leans to 32 bits", {{16, 16, 32}, {24, 24, 8}}, 32, 32, 32, 1},
        {"second pass ties go to the later entry", {{16, 16, 32}, {16, 16, 32}}, 32, 32, 32, 1},
        {"over 32 bits never wins the first pass", {{40, 40, 64}, {16, 16, 32}}, 32, 32, 32, 1},
        {"depth 0 is passed over", {{32, 32, 0}, {64, 64, 32}}, 32, 32, 32, 1},
        {"nothing scores: the first", {{32, 32, 0}, {64, 64, 0}}, 32, 32, 32, 0},
    };
    for (const auto& c : cases)
        EXPECT_EQ(selectIconEntry(c.entries, c.cx, c.cy, c.depth), c.chosen) << c.rule;
}

TEST(IcoReader, AndMaskMakesPixelsTransparent) {
    const auto diagonal = [](int x, int y) { return x == y; };
    for (const std::uint32_t bits : {1u, 4u, 8u, 24u}) {
        const std::uint32_t colour = 0x3366CC;
        c32bppDIB surface;
        ASSERT_TRUE(cICOparser().LoadStream(makeIco({{8, 8, bits, iconBitmap(8, bits, colour, diagonal)}}), 8,
                                            8, surface, 32))
            << bits;
        EXPECT_TRUE(surface.Alpha());
        EXPECT_EQ(surface.ImageType(), kImageIcon);
        std::uint8_t alpha = 1;
        // Mask rows run bottom-up: (2, 2) from the bottom is row 5 from the top.
        EXPECT_EQ(surface.GetPixel(2, 5, &alpha), 0);
        EXPECT_EQ(alpha, 0);
        EXPECT_EQ(surface.GetPixel(3, 5, &alpha), reported(colour)) << bits;
        EXPECT_EQ(alpha, 255);
    }
    c32bppDIB cursor;
    ASSERT_TRUE(
        cICOparser().LoadStream(makeIco({{8, 8, 4, iconBitmap(8, 4, 0x123456)}}, 2), 8, 8, cursor, 32));
    EXPECT_FALSE(cursor.Alpha()) << "no mask bit set";
    EXPECT_EQ(cursor.ImageType(), kImageCursor);
}

TEST(IcoReader, ThirtyTwoBitEntriesGoThroughTheAlphaCheck) {
    c32bppDIB surface;
    ASSERT_TRUE(
        cICOparser().LoadStream(makeIco({{4, 4, 32, iconBitmap(4, 32, 0x80FF8040)}}), 4, 4, surface, 32));
    EXPECT_TRUE(surface.Alpha());
    EXPECT_EQ(surface.ImageType(), kImageIcon32);
    std::uint8_t alpha = 0;
    EXPECT_EQ(surface.GetPixel(0, 0, &alpha), reported(0x804020)) << "straight colours are premultiplied";
    ASSERT_TRUE(
        cICOparser().LoadStream(makeIco({{4, 4, 32, iconBitmap(4, 32, 0x00402010)}}, 2), 4, 4, surface, 32));
    EXPECT_FALSE(surface.Alpha()) << "all alpha 0 loads opaque";
    EXPECT_EQ(surface.ImageType(), kImageCursor32);
}

TEST(IcoReader, BadDirectoriesAreDeclined) {
    const Bytes good = makeIco({{8, 8, 4, iconBitmap(8, 4, 0x123456)}});
    auto changed = [&](std::size_t at, std::uint8_t value) {
        Bytes copy = good;
        copy[at] = value;
        return copy;
    };
    const Bytes bad[] = {changed(0, 1), changed(2, 3), changed(4, 0), changed(18, 0xFF), changed(21, 0x10)};
    for (const auto& file : bad) {
        c32bppDIB surface;
        EXPECT_FALSE(cICOparser().LoadStream(file, 0, 0, surface, 32));
    }
    for (std::size_t cut = 0; cut < good.size(); ++cut) {
        c32bppDIB surface;
        EXPECT_FALSE(cICOparser().LoadStream({good.data(), cut}, 8, 8, surface, 32)) << cut;
        EXPECT_EQ(surface.Handle(), 0u);
    }
}

}  // namespace
}  // namespace orvanta
