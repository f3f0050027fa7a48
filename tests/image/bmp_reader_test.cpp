#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "image/cBMPparser.h"

namespace orvanta {
namespace {

using Bytes = std::vector<std::uint8_t>;

void putLe(Bytes& out, std::uint32_t value, int bytes) {
    for (int i = 0; i < bytes; ++i) out.push_back(static_cast<std::uint8_t>(value >> (8 * i)));
}

struct BmpRecipe {
    std::int32_t width = 0;
    std::int32_t height = 0;  // negative for top-down rows
    std::uint32_t bits = 24;
    std::uint32_t compression = 0;
    std::vector<std::uint32_t> palette;  // 0x00RRGGBB
    std::vector<std::uint32_t> masks;    // written after the header
    Bytes data;                          // the pixel data as the file holds it
};

Bytes makeBmp(const BmpRecipe& recipe) {
    Bytes info;
    putLe(info, 40, 4);
    putLe(info, static_cast<std::uint32_t>(recipe.width), 4);
    putLe(info, static_cast<std::uint32_t>(recipe.height), 4);
    putLe(info, 1, 2);
    putLe(info, recipe.bits, 2);
    putLe(info, recipe.compression, 4);
    putLe(info, static_cast<std::uint32_t>(recipe.data.size()), 4);
    putLe(info, 0, 4);  // horizontal and vertical resolution
    putLe(info, 0, 4);
    putLe(info, static_cast<std::uint32_t>(recipe.palette.size()), 4);
    putLe(info, 0, 4);
    for (const std::uint32_t mask : recipe.masks) putLe(info, mask, 4);
    for (const std::uint32_t colour : recipe.palette) putLe(info, colour, 4);
    Bytes file = {'B', 'M'};
    putLe(file, static_cast<std::uint32_t>(14 + info.size() + recipe.data.size()), 4);
    putLe(file, 0, 4);
    putLe(file, static_cast<std::uint32_t>(14 + info.size()), 4);
    file.insert(file.end(), info.begin(), info.end());
    file.insert(file.end(), recipe.data.begin(), recipe.data.end());
    return file;
}

// Packs values of `bits` each into rows padded to 4 bytes; `rows` are in file order.
Bytes packRows(std::uint32_t bits, const std::vector<std::vector<std::uint32_t>>& rows) {
    Bytes out;
    for (const auto& row : rows) {
        Bytes line;
        std::uint32_t acc = 0, count = 0;
        for (const std::uint32_t value : row) {
            if (bits >= 8) {
                putLe(line, value, static_cast<int>(bits / 8));
                continue;
            }
            acc = acc << bits | value;
            count += bits;
            if (count == 8) {
                line.push_back(static_cast<std::uint8_t>(acc));
                acc = count = 0;
            }
        }
        if (count > 0) line.push_back(static_cast<std::uint8_t>(acc << (8 - count)));
        while (line.size() % 4 != 0) line.push_back(0);
        out.insert(out.end(), line.begin(), line.end());
    }
    return out;
}

// Expected colours (0x00RRGGBB), top row first; every pixel opaque.
void expectOpaque(const c32bppDIB& surface, const std::vector<std::vector<std::uint32_t>>& topDown) {
    ASSERT_EQ(surface.Height(), static_cast<std::int32_t>(topDown.size()));
    for (std::size_t y = 0; y < topDown.size(); ++y) {
        ASSERT_EQ(surface.Width(), static_cast<std::int32_t>(topDown[y].size()));
        for (std::size_t x = 0; x < topDown[y].size(); ++x) {
            const std::uint32_t rgb = topDown[y][x];
            const std::int32_t expected =
                static_cast<std::int32_t>((rgb >> 16 & 0xFF) | (rgb & 0xFF00) | (rgb & 0xFF) << 16);
            std::uint8_t alpha = 0;
            EXPECT_EQ(surface.GetPixel(static_cast<std::int32_t>(x), static_cast<std::int32_t>(y), &alpha),
                      expected)
                << x << "," << y;
            EXPECT_EQ(alpha, 255) << x << "," << y;
        }
    }
}

const std::vector<std::uint32_t> kPalette = {0x102030, 0xA0B0C0, 0xFF0000, 0x00FF00, 0x0000FF, 0xFFFFFF,
                                             0x808080, 0x123456, 0x654321, 0x0F0F0F, 0xF0F0F0, 0x00FFFF,
                                             0xFF00FF, 0xFFFF00, 0x010203, 0x040506};

std::vector<std::vector<std::uint32_t>> indexPattern(std::uint32_t bits, int width, int height) {
    std::vector<std::vector<std::uint32_t>> rows(static_cast<std::size_t>(height));
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            rows[static_cast<std::size_t>(y)].push_back(static_cast<std::uint32_t>(x * 3 + y * 5) %
                                                        (1u << bits) % 16);
    return rows;
}

std::vector<std::vector<std::uint32_t>> reversed(std::vector<std::vector<std::uint32_t>> rows) {
    std::reverse(rows.begin(), rows.end());
    return rows;
}

TEST(BmpReader, IndexedDepthsTakeTheirColoursFromTheTable) {
    for (const std::uint32_t bits : {1u, 2u, 4u, 8u}) {
        const auto fileRows = indexPattern(bits, 13, 5);  // 13 pixels: rows end inside a byte
        BmpRecipe recipe{13, 5, bits, 0, kPalette, {}, packRows(bits, fileRows)};
        recipe.palette.resize(std::min<std::size_t>(kPalette.size(), 1u << bits));
        c32bppDIB surface;
        ASSERT_TRUE(cBMPparser().LoadStream(makeBmp(recipe), surface)) << bits;
        auto expected = reversed(fileRows);
        for (auto& row : expected)
            for (auto& value : row) value = kPalette[value];
        expectOpaque(surface, expected);
        EXPECT_FALSE(surface.Alpha());
        EXPECT_EQ(surface.ImageType(), kImageBitmap);
    }
}

TEST(BmpReader, DirectColoursFollowTheirDepthMasksAndRowOrder) {
    const std::vector<std::vector<std::uint32_t>> rgb = {{0x010203, 0x040506, 0x070809},
                                                         {0xFF0000, 0x00FF00, 0x0000FF}};
    const struct {
        const char* name;
        BmpRecipe recipe;
        std::vector<std::vector<std::uint32_t>> expected;
    } rows[] = {
        {"5-5-5: a full field is 255, 16 of 31 is 131",
         {3, 1, 16, 0, {}, {}, packRows(16, {{0x7C00, 0x03E0, 0x0010}})},
         {{0xFF0000, 0x00FF00, 0x000083}}},
        {"5-6-5 bit fields: 32 of 63 is 129, a set top bit is no alpha",
         {3, 1, 16, 3, {}, {0xF800, 0x07E0, 0x001F}, packRows(16, {{0xF800, 0x07E0, 0x8410}})},
         {{0xFF0000, 0x00FF00, 0x838183}}},
        {"24 bits with row padding, bottom-up", {3, 2, 24, 0, {}, {}, packRows(24, rgb)}, reversed(rgb)},
        {"24 bits top-down", {3, -2, 24, 0, {}, {}, packRows(24, rgb)}, rgb},
        {"32-bit fields with red low and no alpha mask",
         {2, 1, 32, 3, {}, {0x000000FF, 0x0000FF00, 0x00FF0000}, packRows(32, {{0x000000FF, 0x00FF0000}})},
         {{0xFF0000, 0x0000FF}}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        c32bppDIB surface;
        ASSERT_TRUE(cBMPparser().LoadStream(makeBmp(row.recipe), surface));
        expectOpaque(surface, row.expected);
    }
}

struct AlphaCase {
    const char* name;
    std::vector<std::uint32_t> argb;
    std::int32_t type;
    bool alpha;
    std::vector<std::uint32_t> stored;  // the surface's words after loading
};

TEST(BmpReader, ThirtyTwoBitsGoThroughTheAlphaCheck) {
    const AlphaCase cases[] = {
        {"all opaque", {0xFF102030, 0xFF405060}, kImageBitmap, false, {0xFF102030, 0xFF405060}},
        {"all alpha 0 loads opaque", {0x00102030, 0x00405060}, kImageBitmap, false, {0xFF102030, 0xFF405060}},
        {"straight alpha is premultiplied",
         {0x80FF8040, 0xFF010203},
         kImageAlphaStraight,
         true,
         {0x80804020, 0xFF010203}},
        {"colour under alpha 0 marks straight",
         {0x00010000, 0x80404040},
         kImageAlphaStraight,
         true,
         {0x00000000, 0x80202020}},
        {"premultiplied stays",
         {0x80404040, 0x00000000},
         kImageAlphaPremultiplied,
         true,
         {0x80404040, 0x00000000}},
    };
    for (const auto& c : cases) {
        BmpRecipe recipe{2, 1, 32, 0, {}, {}, packRows(32, {c.argb})};
        c32bppDIB surface;
        ASSERT_TRUE(cBMPparser().LoadStream(makeBmp(recipe), surface)) << c.name;
        EXPECT_EQ(surface.ImageType(), c.type) << c.name;
        EXPECT_EQ(surface.Alpha(), c.alpha) << c.name;
        for (std::size_t i = 0; i < 2; ++i) {
            const std::uint8_t* p = surface.BitsPointer() + i * 4;
            const std::uint32_t word = p[0] | p[1] << 8 | p[2] << 16 | static_cast<std::uint32_t>(p[3]) << 24;
            EXPECT_EQ(word, c.stored[i]) << c.name << " pixel " << i;
        }
    }
}

TEST(BmpReader, RunLengthCodedEightAndFourBits) {
    // RLE8, 6x3 bottom-up: a run, an absolute run of 3 (padded), end of line; a delta to (2,2);
    // a run of 2; end of bitmap. What the data skip stays black.
    const Bytes rle8 = {4, 1, 0, 3, 2, 3, 4, 0, 0, 0, 0, 2, 2, 1, 2, 5, 0, 1};
    BmpRecipe spec8{6, 3, 8, 1, kPalette, {}, rle8};
    c32bppDIB surface;
    ASSERT_TRUE(cBMPparser().LoadStream(makeBmp(spec8), surface));
    const std::uint32_t k = 0, p1 = kPalette[1], p2 = kPalette[2], p3 = kPalette[3], p4 = kPalette[4],
                        p5 = kPalette[5];
    expectOpaque(surface, {{k, k, p5, p5, k, k}, {k, k, k, k, k, k}, {p1, p1, p1, p1, p2, p3}});
    // RLE4, 5x2: a run alternating two nibbles, end of line, an absolute run of 3 in 2 bytes.
    const Bytes rle4 = {5, 0x12, 0, 0, 0, 3, 0x34, 0x50, 0, 1};
    BmpRecipe spec4{5, 2, 4, 2, kPalette, {}, rle4};
    ASSERT_TRUE(cBMPparser().LoadStream(makeBmp(spec4), surface));
    expectOpaque(surface, {{p3, p4, p5, k, k}, {p1, p2, p1, p2, p1}});
    // Data cut short inside an absolute run keeps what came.
    ASSERT_TRUE(cBMPparser().LoadStream(makeBmp({3, 1, 8, 1, kPalette, {}, {2, 1, 0, 5, 2}}), surface));
    expectOpaque(surface, {{p1, p1, k}});
}

TEST(BmpReader, ShortOrOversizedFilesFailWithAnEmptySurface) {
    const BmpRecipe good{3, 2, 24, 0, {}, {}, packRows(24, {{1, 2, 3}, {4, 5, 6}})};
    const Bytes whole = makeBmp(good);
    for (std::size_t cut = 0; cut < whole.size(); ++cut) {
        c32bppDIB surface;
        EXPECT_FALSE(cBMPparser().LoadStream({whole.data(), cut}, surface)) << cut;
        EXPECT_EQ(surface.Handle(), 0u);
    }
    // A picture far beyond the surface's bound is refused from its header alone.
    BmpRecipe huge = good;
    huge.width = huge.height = 1 << 20;
    c32bppDIB surface;
    EXPECT_FALSE(cBMPparser().LoadStream(makeBmp(huge), surface));
    // JPEG inside a bitmap and an 8-bit file claiming bit fields are not read.
    BmpRecipe jpeg = good;
    jpeg.compression = 4;
    EXPECT_FALSE(cBMPparser().LoadStream(makeBmp(jpeg), surface));
    BmpRecipe fields8{2, 1, 8, 3, kPalette, {1, 2, 4}, packRows(8, {{0, 1}})};
    EXPECT_FALSE(cBMPparser().LoadStream(makeBmp(fields8), surface));
    EXPECT_EQ(surface.Handle(), 0u);
}

}  // namespace
}  // namespace orvanta
