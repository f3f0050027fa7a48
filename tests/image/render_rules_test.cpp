#include <gtest/gtest.h>

#include <cstring>
#include <random>

#include "image/RenderPixels.h"
#include "image/c32bppDIB.h"
#include "surface_test_support.h"

namespace orvanta::testing {
namespace {

constexpr std::uint32_t kHalfWhite = 0x80808080;  // white at alpha 128, premultiplied

// Draws `source` with the given blend onto a fresh 4x4 target of one colour and returns its words.
std::vector<std::uint32_t> drawOnto(const c32bppDIB& source, std::int32_t blend, std::int32_t gray = -1,
                                    float lightness = 0, float angle = 0) {
    c32bppDIB target;
    fillSurface(target, 4, 4, std::vector<std::uint32_t>(16, 0xFF204060));
    source.Render(nullptr, 0, 0, 0, 0, 0, 0, 0, 0, blend, true, true, &target, gray, lightness, angle);
    return allWords(target);
}

c32bppDIB& halfWhite4x4(c32bppDIB& surface) {
    fillSurface(surface, 4, 4, std::vector<std::uint32_t>(16, kHalfWhite));
    return surface;
}

TEST(RenderBlendPercentage, ZeroDrawsNothingButReportsTheImage) {
    c32bppDIB source, empty, target;
    halfWhite4x4(source);
    fillSurface(target, 4, 4, std::vector<std::uint32_t>(16, 0xFF000000));
    EXPECT_TRUE(source.Render(nullptr, 0, 0, 0, 0, 0, 0, 0, 0, 0, true, true, &target));
    EXPECT_EQ(allWords(target), std::vector<std::uint32_t>(16, 0xFF000000));
    EXPECT_FALSE(empty.Render(nullptr, 0, 0, 0, 0, 0, 0, 0, 0, 100, true, true, &target));
    EXPECT_FALSE(source.Render(nullptr, 0, 0));  // neither context nor surface
}

TEST(RenderBlendPercentage, WrapsAtHundred) {
    c32bppDIB source;
    halfWhite4x4(source);
    EXPECT_EQ(drawOnto(source, 200), drawOnto(source, 100));
    EXPECT_EQ(drawOnto(source, 101), drawOnto(source, 1));
    EXPECT_EQ(drawOnto(source, 150), drawOnto(source, 50));
    EXPECT_NE(drawOnto(source, 1), drawOnto(source, 100));
}

TEST(RenderBlend, FormulasOfTheFullAndPartialCases) {
    c32bppDIB source;
    fillSurface(source, 1, 1, {kHalfWhite});
    c32bppDIB target;
    fillSurface(target, 1, 1, {0xFF204060});
    source.Render(nullptr, 0, 0, 0, 0, 0, 0, 0, 0, 100, true, true, &target);
    // t = (255 - 128) * t / 255 + s, alpha likewise with the source alpha.
    EXPECT_EQ(wordAt(target, 0, 0), 0xFF8F9FAFu);
    fillSurface(target, 1, 1, {0xFF204060});
    source.Render(nullptr, 0, 0, 0, 0, 0, 0, 0, 0, 50, true, true, &target);
    // g = 127, a' = 128 * 127 / 255 = 63: t = ((255 - 63) * t + s * g) / 255.
    const std::uint32_t blue = (192u * 0x60 + 128u * 127) / 255, green = (192u * 0x40 + 128u * 127) / 255;
    const std::uint32_t red = (192u * 0x20 + 128u * 127) / 255, alpha = (192u * 255 + 128u * 127) / 255;
    EXPECT_EQ(wordAt(target, 0, 0), alpha << 24 | red << 16 | green << 8 | blue);
}

TEST(RenderBlend, TransparentPixelsLeaveTheTargetAndOpaqueOnesReplaceIt) {
    c32bppDIB source, target;
    fillSurface(source, 2, 1, {0x00000000, 0xFF112233});
    fillSurface(target, 2, 1, {0x40404040, 0x40404040});
    source.Render(nullptr, 0, 0, 0, 0, 0, 0, 0, 0, 100, true, true, &target);
    EXPECT_EQ(allWords(target), (std::vector<std::uint32_t>{0x40404040, 0xFF112233}));
}

TEST(RenderGrayScale, CodeTwoOfPureRedIsEightyFour) {
    c32bppDIB source;
    fillSurface(source, 1, 1, {0xFFFF0000});
    c32bppDIB target;
    fillSurface(target, 1, 1, {0});
    source.Render(nullptr, 0, 0, 0, 0, 0, 0, 0, 0, 100, true, true, &target, 2);
    EXPECT_EQ(wordAt(target, 0, 0), 0xFF545454u);
    // A code outside the table takes the first row's weights: 255 * 0.299 = 76.
    fillSurface(target, 1, 1, {0});
    source.Render(nullptr, 0, 0, 0, 0, 0, 0, 0, 0, 100, true, true, &target, 42);
    EXPECT_EQ(wordAt(target, 0, 0), 0xFF4C4C4Cu);
}

TEST(RenderLightness, OutOfRangeIsIgnoredAndFullLightStaysWithinAlpha) {
    c32bppDIB source;
    halfWhite4x4(source);
    EXPECT_EQ(drawOnto(source, 100, -1, 120), drawOnto(source, 100, -1, 0));
    EXPECT_EQ(drawOnto(source, 100, -1, -101), drawOnto(source, 100, -1, 0));
    c32bppDIB target;
    fillSurface(target, 4, 4, std::vector<std::uint32_t>(16, 0));
    source.Render(nullptr, 0, 0, 0, 0, 0, 0, 0, 0, 100, true, true, &target, -1, 100);
    for (const std::uint32_t word : allWords(target)) {
        EXPECT_LE(word & 0xFF, 128u);
        EXPECT_EQ(word >> 24, 128u);
    }
    // Darkening by half: d = round(128 * -127.5) / 255 = -64.
    fillSurface(target, 4, 4, std::vector<std::uint32_t>(16, 0));
    source.Render(nullptr, 0, 0, 0, 0, 0, 0, 0, 0, 100, true, true, &target, -1, -50);
    EXPECT_EQ(wordAt(target, 1, 1), 0x80404040u);
    EXPECT_EQ(wordAt(source, 1, 1), kHalfWhite) << "the picture itself is never changed";
}

TEST(RenderScaling, BilinearNeverMakesAColourLargerThanItsAlpha) {
    std::mt19937 random(7);
    std::vector<std::uint32_t> words(7 * 5);
    for (std::uint32_t& word : words) {
        const auto a = static_cast<std::uint32_t>(random() % 256);
        word = a << 24;
        for (int shift = 0; shift < 24; shift += 8)
            word |= static_cast<std::uint32_t>(a == 0 ? 0 : random() % (a + 1)) << shift;
    }
    c32bppDIB source;
    fillSurface(source, 7, 5, words);
    source.setHighQualityInterpolation(true);
    for (const auto& [w, h] : std::vector<std::pair<int, int>>{{13, 9}, {3, 2}, {17, 4}, {2, 11}}) {
        c32bppDIB target;
        target.InitializeDIB(w, h);
        ASSERT_TRUE(source.Render(nullptr, 0, 0, w, h, 0, 0, 0, 0, 100, true, true, &target));
        for (const std::uint32_t word : allWords(target))
            for (int shift = 0; shift < 24; shift += 8) ASSERT_LE((word >> shift) & 0xFF, word >> 24);
    }
}

TEST(RenderScaling, NearestDoublesEachPixel) {
    c32bppDIB source, target;
    fillSurface(source, 2, 1, {0xFF0000FF, 0xFFFF0000});
    source.setHighQualityInterpolation(false);
    target.InitializeDIB(4, 2);
    ASSERT_TRUE(source.Render(nullptr, 0, 0, 4, 2, 0, 0, 0, 0, 100, true, true, &target));
    EXPECT_EQ(allWords(target), (std::vector<std::uint32_t>{0xFF0000FF, 0xFF0000FF, 0xFFFF0000, 0xFFFF0000,
                                                            0xFF0000FF, 0xFF0000FF, 0xFFFF0000, 0xFFFF0000}));
}

TEST(RenderSourceRectangle, PastTheRightEdgeIsCutNotRefused) {
    c32bppDIB source, target;
    fillSurface(source, 4, 1, {0xFF000001, 0xFF000002, 0xFF000003, 0xFF000004});
    target.InitializeDIB(4, 1);
    ASSERT_TRUE(source.Render(nullptr, 0, 0, 2, 1, 2, 0, 10, 1, 100, true, true, &target));
    EXPECT_EQ(allWords(target), (std::vector<std::uint32_t>{0xFF000003, 0xFF000004, 0, 0}));
    EXPECT_FALSE(source.Render(nullptr, 0, 0, 2, 1, 4, 0, 1, 1, 100, true, true, &target));
}

TEST(RenderMirror, NegativeWidthsAndHeightsReverse) {
    c32bppDIB source, target;
    fillSurface(source, 2, 2, {0xFF000001, 0xFF000002, 0xFF000003, 0xFF000004});
    target.InitializeDIB(2, 2);
    source.Render(nullptr, 0, 0, -2, 0, 0, 0, 0, 0, 100, true, true, &target);
    EXPECT_EQ(allWords(target), (std::vector<std::uint32_t>{0xFF000002, 0xFF000001, 0xFF000004, 0xFF000003}));
    source.Render(nullptr, 0, 0, 0, 0, 0, 0, 0, -2, 100, true, true, &target);  // negative source height
    EXPECT_EQ(allWords(target), (std::vector<std::uint32_t>{0xFF000003, 0xFF000004, 0xFF000001, 0xFF000002}));
}

TEST(RenderRotation, WholeTurnsTakeTheUnrotatedPathAndHalfADegreeStillDraws) {
    std::vector<std::uint32_t> words(16);
    for (std::uint32_t i = 0; i < 16; ++i) words[i] = 0xFF000000u | i * 0x0F0F0F;
    c32bppDIB source;
    fillSurface(source, 4, 4, words);
    EXPECT_EQ(drawOnto(source, 100, -1, 0, 360), drawOnto(source, 100, -1, 0, 0));
    EXPECT_EQ(drawOnto(source, 100, -1, 0, -720), drawOnto(source, 100, -1, 0, 0));
    EXPECT_NE(drawOnto(source, 100, -1, 0, 90), drawOnto(source, 100, -1, 0, 0));
    // Half a degree takes the square surface, drawn as angle 0 but one row lower.
    c32bppDIB target;
    fillSurface(target, 4, 6, std::vector<std::uint32_t>(24, 0));
    source.setHighQualityInterpolation(false);
    ASSERT_TRUE(source.Render(nullptr, 0, 0, 0, 0, 0, 0, 0, 0, 100, true, true, &target, -1, 0, 0.5f));
    for (std::int32_t y = 0; y < 4; ++y)
        for (std::int32_t x = 0; x < 4; ++x)
            EXPECT_EQ(wordAt(target, x, y + 1), words[static_cast<std::size_t>(y * 4 + x)]);
}

TEST(RenderContext, BlendsColoursOnlyAndCutsAtTheEdges) {
    c32bppDIB source;
    fillSurface(source, 2, 2, {kHalfWhite, 0xFF0000FF, 0, 0xFF00FF00});
    MemoryContext context(3, 3, 0x000000);
    ASSERT_TRUE(source.Render(&context, -1, 1));
    EXPECT_EQ(context.at(0, 1), 0x0000FFu);
    EXPECT_EQ(context.at(0, 2), 0x00FF00u);
    EXPECT_EQ(context.at(1, 1), 0u);
    EXPECT_EQ(context.writes, 1);
    context.at(0, 0) = 0x204060;
    ASSERT_TRUE(source.Render(&context, 0, 0, 1, 1, 0, 0, 1, 1));
    EXPECT_EQ(context.at(0, 0), 0x8F9FAFu);
}

TEST(DropShadow, DepthIsCutAtTenAndZeroIsTheSilhouette) {
    c32bppDIB source;
    fillSurface(source, 3, 2, {0xFF123456, 0x80808080, 0, 0x40101010, 0xFFFFFFFF, 0});
    const auto deep = source.CreateDropShadow(20, 0x0000FF);
    const auto ten = source.CreateDropShadow(10, 0x0000FF);
    ASSERT_TRUE(deep && ten);
    EXPECT_EQ(deep->Width(), 23);
    EXPECT_EQ(deep->Height(), 22);
    EXPECT_EQ(allWords(*deep), allWords(*ten));
    EXPECT_TRUE(deep->Alpha());
    const auto flat = source.CreateDropShadow(0, 0x0000FF);  // red
    ASSERT_TRUE(flat);
    EXPECT_EQ(allWords(*flat),
              (std::vector<std::uint32_t>{0xFFFF0000, 0x80800000, 0, 0x40400000, 0xFFFF0000, 0}));
    c32bppDIB empty;
    EXPECT_EQ(empty.CreateDropShadow(1, 0), nullptr);
}

TEST(DropShadow, BoxAverageSpreadsDepthPixelsEachWay) {
    c32bppDIB source;
    fillSurface(source, 1, 1, {0xFFFFFFFF});
    const auto shadow = source.CreateDropShadow(1, 0xFFFFFF);
    ASSERT_TRUE(shadow);
    for (const std::uint32_t word : allWords(*shadow)) EXPECT_EQ(word, 0x1C1C1C1Cu);  // 255 / 9
    c32bppDIB target;
    fillSurface(target, 3, 3, std::vector<std::uint32_t>(9, 0));
    EXPECT_TRUE(source.RenderDropShadow_JIT(nullptr, 0, 0, 1, 0xFFFFFF, 100, &target));
    EXPECT_EQ(allWords(target), allWords(*shadow));
}

}  // namespace
}  // namespace orvanta::testing
