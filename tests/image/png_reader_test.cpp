#include <gtest/gtest.h>

#include <cstring>

#include "image/ZlibLibrary.h"
#include "image/cPNGparser.h"
#include "image/png_test_support.h"

namespace orvanta::testing {
namespace {

// Loads with the reader, which must claim the run as PNG; true if a picture came.
bool loads(const Bytes& file, c32bppDIB& surface) {
    EXPECT_TRUE(cPNGparser().LoadStream(file, surface));
    return surface.Handle() != 0;
}

bool loadsWithoutZlib(const Bytes& file, c32bppDIB& surface) {
    const ZlibSwitchedOff off;
    return loads(file, surface);
}

PngRecipe rgbRecipe() {
    PngRecipe recipe;
    recipe.header = {9, 7, 8, 2, 0};
    return recipe;
}

TEST(PngReader, WrongIdatCrcLoadsOnlyWithoutZlib) {
    PngRecipe recipe = rgbRecipe();
    recipe.spoilIdatCrc = true;
    const Bytes file = makePng(recipe);
    c32bppDIB surface;
    EXPECT_FALSE(loads(file, surface));
    EXPECT_TRUE(loadsWithoutZlib(file, surface));
    EXPECT_EQ(surface.Width(), 9);
}

TEST(PngReader, DamagedFilesAreClaimedButLeaveTheSurfaceEmpty) {
    const Bytes good = makePng(rgbRecipe());
    c32bppDIB surface;
    Bytes pastEnd = good;
    pastEnd[8 + 3] = 200;  // IHDR's length now runs past the file's end
    EXPECT_FALSE(loadsWithoutZlib(pastEnd, surface));
    EXPECT_FALSE(cPNGparser().LoadStream(Bytes(good.begin() + 1, good.end()), surface));  // no signature
    struct HeaderCase {
        const char* name;
        std::size_t offset;  // into the IHDR data
        std::uint8_t value;
    };
    const HeaderCase cases[] = {{"width 0", 3, 0},        {"depth 3", 8, 3},   {"colour type 5", 9, 5},
                                {"compression 1", 10, 1}, {"filter 1", 11, 1}, {"interlace 2", 12, 2}};
    for (const auto& c : cases) {
        Bytes file = good;
        file[16 + c.offset] = c.value;
        if (c.offset == 3) file[16] = file[17] = file[18] = 0;
        EXPECT_FALSE(loadsWithoutZlib(file, surface)) << c.name;
    }
}

TEST(PngReader, ChunkRulesOfPaletteTransparencyAndUnknownChunks) {
    c32bppDIB plain, other;
    PngRecipe recipe = rgbRecipe();
    ASSERT_TRUE(loads(makePng(recipe), plain));
    recipe.palette = Bytes(10, 1);
    EXPECT_FALSE(loads(makePng(recipe), other)) << "PLTE of 10 bytes on type 2";
    recipe.palette.clear();
    recipe.extraChunks = {{"ABCD", Bytes(5, 0)}, {"gAMA", Bytes(4, 1)}};  // unknown critical chunk
    ASSERT_TRUE(loads(makePng(recipe), other));
    EXPECT_EQ(0, std::memcmp(plain.BitsPointer(), other.BitsPointer(), 9 * 7 * 4));

    PngRecipe gray;
    gray.header = {9, 7, 8, 0, 0};
    gray.palette = Bytes(10, 1);
    EXPECT_TRUE(loads(makePng(gray), other)) << "PLTE of 10 bytes on type 0 is ignored";

    PngRecipe rgba;
    rgba.header = {9, 7, 8, 6, 0};
    ASSERT_TRUE(loads(makePng(rgba), plain));
    rgba.transparency = {0, 0, 0, 0, 0, 0};
    ASSERT_TRUE(loads(makePng(rgba), other));
    EXPECT_EQ(0, std::memcmp(plain.BitsPointer(), other.BitsPointer(), 9 * 7 * 4)) << "tRNS on type 6";
}

TEST(PngReader, PaletteOfOneBitWithoutPlteIsBlackAndWhite) {
    PngRecipe recipe;
    recipe.header = {8, 1, 1, 3, 0};
    c32bppDIB surface;
    ASSERT_TRUE(loads(makePng(recipe, pngIdat({0, 0xA0})), surface));
    EXPECT_EQ(surface.GetPixel(0, 0), 0xFFFFFF);
    EXPECT_EQ(surface.GetPixel(1, 0), 0);
    EXPECT_EQ(surface.GetPixel(2, 0), 0xFFFFFF);
    EXPECT_EQ(surface.GetPixel(3, 0), 0);
    EXPECT_FALSE(surface.Alpha());
}

TEST(PngReader, InterlacedPicturesOfWidthOneAndTheSizeBound) {
    PngRecipe recipe;
    recipe.header = {1, 9, 8, 0, 1};
    c32bppDIB a, b;
    ASSERT_TRUE(loads(makePng(recipe), a));
    EXPECT_EQ(a.Height(), 9);
    EXPECT_TRUE(pngSizeFits(65536, 1024));
    EXPECT_FALSE(pngSizeFits(65536, 1025));
    EXPECT_FALSE(pngSizeFits(0x7FFFFFFF, 1));
    PngRecipe badFilter = rgbRecipe();
    Bytes raw = pngRawData(badFilter.header, 1);
    raw[0] = 5;
    EXPECT_FALSE(loads(makePng(badFilter, pngIdat(raw)), b));
}

}  // namespace
}  // namespace orvanta::testing
