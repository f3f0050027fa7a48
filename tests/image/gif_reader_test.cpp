#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "image/cGIFparser.h"

namespace orvanta {
namespace {

using Bytes = std::vector<std::uint8_t>;

// A plain GIF LZW encoder, so that the decoder meets real dictionary codes, a full table and the
// string-not-yet-in-the-table case.
class LzwEncoder {
public:
    explicit LzwEncoder(int minimumCodeSize) : minimum_(minimumCodeSize) {}

    Bytes encode(const Bytes& indexes) {
        const std::uint32_t clear = 1u << minimum_;
        reset();
        put(clear);
        std::uint32_t prefix = indexes[0];
        for (std::size_t i = 1; i < indexes.size(); ++i) {
            const auto key = std::make_pair(prefix, indexes[i]);
            if (auto found = table_.find(key); found != table_.end()) {
                prefix = found->second;
                continue;
            }
            put(prefix);
            if (next_ < 4096) table_[key] = next_++;
            if (next_ > (1u << bits_) && bits_ < 12) ++bits_;
            prefix = indexes[i];
        }
        put(prefix);
        put(clear + 1);
        if (count_ > 0) out_.push_back(static_cast<std::uint8_t>(buffer_));
        return out_;
    }

private:
    void reset() {
        table_.clear();
        next_ = (1u << minimum_) + 2;
        bits_ = minimum_ + 1;
    }
    void put(std::uint32_t code) {
        buffer_ |= code << count_;
        count_ += bits_;
        while (count_ >= 8) {
            out_.push_back(static_cast<std::uint8_t>(buffer_));
            buffer_ >>= 8;
            count_ -= 8;
        }
    }

    int minimum_;
    int bits_ = 0;
    std::uint32_t next_ = 0;
    std::map<std::pair<std::uint32_t, std::uint8_t>, std::uint32_t> table_;
    Bytes out_;
    std::uint32_t buffer_ = 0;
    int count_ = 0;
};

struct GifRecipe {
    std::string signature = "GIF89a";
    int screenWidth = 0, screenHeight = 0;
    Bytes globalTable;  // rgb triples, a power of two of them
    Bytes localTable;
    int width = 0, height = 0;
    bool interlaced = false;
    int transparent = -1;
    int minimumCodeSize = 2;
    Bytes indexes;  // top-down, in picture order
};

void putLe16(Bytes& out, int value) {
    out.push_back(static_cast<std::uint8_t>(value));
    out.push_back(static_cast<std::uint8_t>(value >> 8));
}

std::uint8_t tableFlags(const Bytes& table) {
    if (table.empty()) return 0;
    int bits = 0;
    while ((2u << bits) < table.size() / 3) ++bits;
    return static_cast<std::uint8_t>(0x80 | bits);
}

Bytes interlacedOrder(const GifRecipe& recipe) {
    Bytes rows;
    const int starts[4] = {0, 4, 2, 1}, steps[4] = {8, 8, 4, 2};
    for (int pass = 0; pass < 4; ++pass)
        for (int y = starts[pass]; y < recipe.height; y += steps[pass])
            rows.insert(rows.end(), recipe.indexes.begin() + y * recipe.width,
                        recipe.indexes.begin() + (y + 1) * recipe.width);
    return rows;
}

void putSubBlocks(Bytes& out, const Bytes& data) {
    for (std::size_t at = 0; at < data.size(); at += 255) {
        const std::size_t length = std::min<std::size_t>(255, data.size() - at);
        out.push_back(static_cast<std::uint8_t>(length));
        out.insert(out.end(), data.begin() + static_cast<std::ptrdiff_t>(at),
                   data.begin() + static_cast<std::ptrdiff_t>(at + length));
    }
    out.push_back(0);
}

Bytes makeGif(const GifRecipe& recipe) {
    Bytes out(recipe.signature.begin(), recipe.signature.end());
    putLe16(out, recipe.screenWidth ? recipe.screenWidth : recipe.width);
    putLe16(out, recipe.screenHeight ? recipe.screenHeight : recipe.height);
    out.insert(out.end(), {tableFlags(recipe.globalTable), 0, 0});
    out.insert(out.end(), recipe.globalTable.begin(), recipe.globalTable.end());
    // An application block (looping) and a comment come before the frame, as in animated files.
    out.insert(out.end(),
               {0x21, 0xFF, 11, 'N', 'E', 'T', 'S', 'C', 'A', 'P', 'E', '2', '.', '0', 3, 1, 0, 0, 0});
    out.insert(out.end(), {0x21, 0xFE, 2, 'h', 'i', 0});
    if (recipe.transparent >= 0)
        out.insert(out.end(), {0x21, 0xF9, 4, 1, 0, 0, static_cast<std::uint8_t>(recipe.transparent), 0});
    out.push_back(0x2C);
    putLe16(out, 0);
    putLe16(out, 0);
    putLe16(out, recipe.width);
    putLe16(out, recipe.height);
    out.push_back(static_cast<std::uint8_t>(tableFlags(recipe.localTable) | (recipe.interlaced ? 0x40 : 0)));
    out.insert(out.end(), recipe.localTable.begin(), recipe.localTable.end());
    out.push_back(static_cast<std::uint8_t>(recipe.minimumCodeSize));
    putSubBlocks(out, LzwEncoder(recipe.minimumCodeSize)
                          .encode(recipe.interlaced ? interlacedOrder(recipe) : recipe.indexes));
    out.push_back(0x3B);
    return out;
}

const Bytes kFourColours = {255, 0, 0, 0, 255, 0, 0, 0, 255, 255, 255, 255};

// The colour GetPixel reports for an index of a table of rgb triples.
std::int32_t colourOf(const Bytes& table, std::uint8_t index) {
    return table[index * 3u] | table[index * 3u + 1] << 8 | table[index * 3u + 2] << 16;
}

void expectIndexes(const c32bppDIB& surface, const GifRecipe& recipe, const Bytes& table) {
    ASSERT_EQ(surface.Width(), recipe.width);
    ASSERT_EQ(surface.Height(), recipe.height);
    for (int y = 0; y < recipe.height; ++y) {
        for (int x = 0; x < recipe.width; ++x) {
            const std::uint8_t index = recipe.indexes[static_cast<std::size_t>(y * recipe.width + x)];
            std::uint8_t alpha = 0;
            const std::int32_t colour = surface.GetPixel(x, y, &alpha);
            if (index == recipe.transparent) {
                EXPECT_EQ(colour, 0) << x << "," << y;
                EXPECT_EQ(alpha, 0) << x << "," << y;
            } else {
                EXPECT_EQ(colour, colourOf(table, index)) << x << "," << y;
                EXPECT_EQ(alpha, 255) << x << "," << y;
            }
        }
    }
}

GifRecipe smallPicture(int width, int height) {
    GifRecipe recipe;
    recipe.globalTable = kFourColours;
    recipe.width = width;
    recipe.height = height;
    for (int i = 0; i < width * height; ++i)
        recipe.indexes.push_back(static_cast<std::uint8_t>((i * 7 / 3) % 4));
    return recipe;
}

// Each row a picture of four colours and one thing a reader can get wrong about it.
TEST(GifReader, PicturesLoadAtTheFramesSizeWithTheirTableAndTransparency) {
    const struct {
        const char* name;
        void (*change)(GifRecipe&);
    } rows[] = {
        {"frame smaller than the screen",
         [](GifRecipe& r) {
             r.screenWidth = 40;
             r.screenHeight = 30;
         }},
        {"signature in lower case", [](GifRecipe& r) { r.signature = "gif87a"; }},
        {"signature in mixed case", [](GifRecipe& r) { r.signature = "GiF89A"; }},
        {"transparent index", [](GifRecipe& r) { r.transparent = 2; }},
        {"local table", [](GifRecipe& r) { r.localTable = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12}; }},
    };
    for (const auto& row : rows) {
        GifRecipe recipe = smallPicture(5, 3);
        row.change(recipe);
        c32bppDIB surface;
        ASSERT_TRUE(cGIFparser().LoadStream(makeGif(recipe), surface)) << row.name;
        expectIndexes(surface, recipe, recipe.localTable.empty() ? kFourColours : recipe.localTable);
        EXPECT_EQ(surface.Alpha(), recipe.transparent >= 0) << row.name;
        EXPECT_EQ(surface.ImageType(), kImageGif) << row.name;
    }
    GifRecipe recipe = smallPicture(3, 2);
    recipe.signature = "GIF88a";
    c32bppDIB surface;
    EXPECT_FALSE(cGIFparser().LoadStream(makeGif(recipe), surface));
}

TEST(GifReader, InterlacedRowsLandInPictureOrder) {
    for (int height : {1, 2, 5, 9, 17}) {
        GifRecipe recipe = smallPicture(3, height);
        recipe.interlaced = true;
        c32bppDIB surface;
        ASSERT_TRUE(cGIFparser().LoadStream(makeGif(recipe), surface)) << height;
        expectIndexes(surface, recipe, kFourColours);
    }
}

TEST(GifReader, LongNoisyFrameFillsTheCodeTableAndStillDecodes) {
    GifRecipe recipe;
    recipe.minimumCodeSize = 8;
    for (int i = 0; i < 256; ++i)
        recipe.globalTable.insert(recipe.globalTable.end(),
                                  {std::uint8_t(i), std::uint8_t(255 - i), std::uint8_t(i / 2)});
    recipe.width = 200;
    recipe.height = 150;
    std::mt19937 random(7);
    for (int i = 0; i < recipe.width * recipe.height; ++i)
        // Noise for a full table, runs for codes that name the string being built.
        recipe.indexes.push_back(
            static_cast<std::uint8_t>(i % 500 < 250 ? random() % 256 : static_cast<unsigned>(i / 40) % 3));
    c32bppDIB surface;
    ASSERT_TRUE(cGIFparser().LoadStream(makeGif(recipe), surface));
    expectIndexes(surface, recipe, recipe.globalTable);
}

TEST(GifReader, TruncatedOrDamagedCodeStreamFailsWithAnEmptySurface) {
    const Bytes whole = makeGif(smallPicture(30, 20));
    for (std::size_t cut = 6; cut + 2 < whole.size(); ++cut) {
        const Bytes part(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(cut));
        c32bppDIB surface;
        EXPECT_FALSE(cGIFparser().LoadStream(part, surface)) << cut;
        EXPECT_EQ(surface.Handle(), 0u);
    }
    // A first code that is neither a clear code nor a literal.
    Bytes frame = makeGif(smallPicture(2, 2));
    const Bytes descriptor = {0x2C, 0, 0, 0, 0, 2, 0, 2, 0};
    const auto at =
        std::search(frame.begin(), frame.end(), descriptor.begin(), descriptor.end()) - frame.begin();
    frame[static_cast<std::size_t>(at) + 12] = 4 | 7 << 3;  // clear (4), then 7, three bits each
    c32bppDIB surface;
    EXPECT_FALSE(cGIFparser().LoadStream(frame, surface));
    EXPECT_EQ(surface.Handle(), 0u);
}

TEST(GifReader, NotAGifIsDeclinedAndTheSurfaceKept) {
    c32bppDIB surface;
    ASSERT_TRUE(surface.InitializeDIB(2, 2));
    const Bytes png = {0x89, 'P', 'N', 'G', 13, 10, 26, 10, 0, 0, 0, 0, 0, 0};
    EXPECT_FALSE(cGIFparser().LoadStream(png, surface));
    EXPECT_NE(surface.Handle(), 0u);
}

}  // namespace
}  // namespace orvanta
