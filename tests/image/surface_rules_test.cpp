#include <gtest/gtest.h>

#include <array>

#include "image/c32bppDIB.h"
#include "support/Sandbox.h"
#include "surface_test_support.h"

namespace orvanta::testing {
namespace {

// A 1x1 GIF of one red pixel (35 bytes), padded after its trailer to `size` bytes.
std::vector<std::uint8_t> paddedGif(std::size_t size) {
    std::vector<std::uint8_t> gif = {'G', 'I',  'F', '8', '9', 'a', 1, 0,    1,    0, 0x80, 0,
                                     0,   0xFF, 0,   0,   0,   0,   0, ',',  0,    0, 0,    0,
                                     1,   0,    1,   0,   0,   2,   2, 0x44, 0x01, 0, ';'};
    gif.resize(size, 0);
    return gif;
}

TEST(SurfaceLoadSize, FiftySixBytesAreRefusedAndFiftySevenReachTheReaders) {
    c32bppDIB surface;
    EXPECT_FALSE(surface.LoadPicture_Stream(paddedGif(56)));
    EXPECT_EQ(surface.ImageType(), kImageNone);
    ASSERT_TRUE(surface.LoadPicture_Stream(paddedGif(57)));
    EXPECT_EQ(surface.ImageType(), kImageGif);
    EXPECT_EQ(surface.GetPixel(0, 0), 0x0000FF);

    Sandbox sandbox;
    const std::vector<std::uint8_t> shortFile = paddedGif(56), longFile = paddedGif(57);
    sandbox.writeFile("short.gif", std::string(shortFile.begin(), shortFile.end()));
    sandbox.writeFile("long.gif", std::string(longFile.begin(), longFile.end()));
    EXPECT_FALSE(surface.LoadPicture_File(sandbox.host(), sandbox.windowsPath("short.gif")));
    EXPECT_TRUE(surface.LoadPicture_File(sandbox.host(), sandbox.windowsPath("long.gif")));
    EXPECT_FALSE(surface.LoadPicture_File(sandbox.host(), sandbox.windowsPath("missing.gif")));
    EXPECT_EQ(surface.Handle(), 0u);
}

TEST(SurfaceLoadSize, StreamOffsetsAndLengthsChooseTheRun) {
    std::vector<std::uint8_t> bytes(10, 0xEE);
    const std::vector<std::uint8_t> gif = paddedGif(60);
    bytes.insert(bytes.end(), gif.begin(), gif.end());
    c32bppDIB surface;
    EXPECT_TRUE(surface.LoadPicture_Stream(bytes, 0, 0, 10, 0));
    EXPECT_FALSE(surface.LoadPicture_Stream(bytes, 0, 0, 10, 56));
    EXPECT_FALSE(surface.LoadPicture_Stream(bytes, 0, 0, -5, 0))
        << "raised to 0, where no reader knows the bytes";
    EXPECT_FALSE(surface.LoadPicture_Stream(bytes, 0, 0, 1000, 0));
}

TEST(SurfaceOriginalBytes, KeptOnRequestAndReloaded) {
    c32bppDIB surface;
    const std::vector<std::uint8_t> gif = paddedGif(64);
    ASSERT_TRUE(surface.LoadPicture_Stream(gif, 0, 0, 0, 0, true));
    std::vector<std::uint8_t> kept;
    ASSERT_TRUE(surface.GetOrginalFormat(kept));
    EXPECT_EQ(kept, gif);
    EXPECT_TRUE(surface.LoadPicture_FromOrignalFormat());
    EXPECT_EQ(surface.originalBytes(), gif);
    ASSERT_TRUE(surface.LoadPicture_Stream(gif));
    EXPECT_FALSE(surface.GetOrginalFormat(kept));
    EXPECT_FALSE(surface.LoadPicture_FromOrignalFormat());
}

TEST(SurfacePixelRead, EdgesAndRowOrder) {
    c32bppDIB surface;
    fillSurface(surface, 2, 2, {0xFF0000FF, 0x80400000, 0xFF00FF00, 0xFFFF0000});
    std::uint8_t alpha = 1;
    EXPECT_EQ(surface.GetPixel(2, 0, &alpha), -1);
    EXPECT_EQ(alpha, 0);
    EXPECT_EQ(surface.GetPixel(0, 2), -1);
    EXPECT_EQ(surface.GetPixel(0, 0), 0xFF0000) << "y 0 is the top row, the last in memory";
    EXPECT_EQ(surface.BitsPointer()[4 * 2], 0xFF);
    EXPECT_EQ(surface.GetPixel(1, 0, &alpha), 0x000040);
    EXPECT_EQ(alpha, 0x80);
    EXPECT_EQ(surface.GetPixel(1, 0, nullptr, false), 0x00007F);
}

using Boxes = std::vector<std::array<std::int32_t, 4>>;

// Each rectangle as {left, top, right, bottom}.
Boxes boxesOf(const std::vector<RegionRectangle>& rectangles) {
    Boxes boxes;
    for (const RegionRectangle& r : rectangles) boxes.push_back({r.left, r.top, r.right, r.bottom});
    return boxes;
}

TEST(SurfaceRegion, StylesAndTheirHeader) {
    c32bppDIB surface;
    // Top row: solid, gap, solid, gap; bottom row: gap, solid, solid, gap.
    fillSurface(surface, 4, 2, {0xFF000000, 0, 0x01010101, 0, 0, 0xFF000000, 0xFF000000, 0});
    EXPECT_EQ(boxesOf(surface.CreateRegion(0, 10, 20).rectangles), (Boxes{{10, 20, 13, 22}}));
    EXPECT_EQ(boxesOf(surface.CreateRegion(1).rectangles), (Boxes{{0, 0, 3, 1}, {1, 1, 3, 2}}));
    const ImageRegion runs = surface.CreateRegion(2);
    EXPECT_EQ(boxesOf(runs.rectangles), (Boxes{{0, 0, 1, 1}, {2, 0, 3, 1}, {1, 1, 3, 2}}));
    EXPECT_EQ((std::array{runs.headerSize, runs.type, runs.count, runs.dataSize}),
              (std::array{32u, 1u, 3u, 48u}));
    EXPECT_EQ(boxesOf({runs.bounds}), (Boxes{{0, 0, 4, 2}}));
    EXPECT_TRUE(runs.contains(2, 0));
    EXPECT_FALSE(runs.contains(1, 0));
    EXPECT_TRUE(surface.CreateRegion(3).empty());
    surface.setAlpha(false);
    EXPECT_EQ(surface.CreateRegion(2).rectangles.size(), 1u) << "without alpha, the whole image";
}

TEST(SurfaceRegion, FullyTransparentGivesNoneAndThousandsStayOneRegion) {
    c32bppDIB surface;
    surface.InitializeDIB(8, 8);
    EXPECT_TRUE(surface.CreateRegion(0).empty());
    EXPECT_TRUE(surface.CreateRegion(2).empty());
    std::vector<std::uint32_t> words(100 * 100);
    for (std::size_t i = 0; i < words.size(); ++i) words[i] = (i + i / 100) % 2 == 0 ? 0xFF000000 : 0;
    fillSurface(surface, 100, 100, words);
    const ImageRegion region = surface.CreateRegion(2);
    EXPECT_EQ(region.rectangles.size(), 5000u);
    EXPECT_EQ(region.count, 5000u);
    EXPECT_TRUE(region.contains(0, 0));
    EXPECT_TRUE(region.contains(1, 99));
    EXPECT_FALSE(region.contains(0, 99));
}

TEST(SurfaceEdits, MakeTransparentAndItsRevert) {
    c32bppDIB surface;
    fillSurface(surface, 2, 1, {0xFF112233, 0xFF445566}, false);
    surface.setImageType(kImageBitmap);
    EXPECT_TRUE(surface.MakeTransparent(0x998877, false));
    EXPECT_FALSE(surface.Alpha());
    EXPECT_EQ(surface.ImageType(), kImageBitmap);
    EXPECT_TRUE(surface.MakeTransparent(0x665544, false));  // 0x00BBGGRR
    EXPECT_TRUE(surface.Alpha());
    EXPECT_EQ(surface.ImageType(), kImageAlphaPremultiplied);
    EXPECT_EQ(wordAt(surface, 1, 0), 0u);
    EXPECT_TRUE(surface.MakeTransparent(0x665544, true));
    EXPECT_FALSE(surface.Alpha());
    EXPECT_EQ(surface.ImageType(), kImageBitmap);
    EXPECT_EQ(wordAt(surface, 1, 0), 0xFF445566u);
}

TEST(SurfaceEdits, InverseKeepsTransparentPixelsZero) {
    c32bppDIB surface;
    fillSurface(surface, 3, 1, {0, 0x80102030, 0xFF000000});
    EXPECT_TRUE(surface.MakeImageInverse());
    EXPECT_EQ(allWords(surface), (std::vector<std::uint32_t>{0, 0x80706050, 0xFFFFFFFF}));
}

TEST(SurfaceEdits, CheckerBoardIsOpaqueFromTheTopLeft) {
    c32bppDIB surface;
    EXPECT_FALSE(surface.CreateCheckerBoard(2, 0xFFFFFF, 0));
    surface.InitializeDIB(4, 3);
    ASSERT_TRUE(surface.CreateCheckerBoard(2, 0x0000FF, 0xFF0000));
    EXPECT_FALSE(surface.Alpha());
    EXPECT_EQ(surface.ImageType(), kImageCheckerBoard);
    const std::uint32_t red = 0xFFFF0000, blue = 0xFF0000FF;
    EXPECT_EQ(allWords(surface),
              (std::vector<std::uint32_t>{red, red, blue, blue, red, red, blue, blue, blue, blue, red, red}));
}

TEST(SurfaceEdits, MirrorAndCopy) {
    c32bppDIB surface;
    fillSurface(surface, 2, 2, {1, 2, 3, 4});
    EXPECT_FALSE(surface.MirrorImage(false, false));
    EXPECT_TRUE(surface.MirrorImage(true, false));
    EXPECT_EQ(allWords(surface), (std::vector<std::uint32_t>{2, 1, 4, 3}));
    EXPECT_TRUE(surface.MirrorImage(false, true));
    EXPECT_EQ(allWords(surface), (std::vector<std::uint32_t>{4, 3, 2, 1}));

    fillSurface(surface, 2, 2, {0xFF000001, 0xFF000002, 0xFF000003, 0xFF000004});
    surface.setImageType(kImageGif);
    surface.setOriginalBytes({9, 9});
    c32bppDIB copy;
    surface.CopyImageTo(copy, 0, 0, true);
    EXPECT_EQ(allWords(copy), allWords(surface));
    EXPECT_EQ(copy.ImageType(), kImageGif);
    EXPECT_EQ(copy.originalBytes(), surface.originalBytes());
    surface.CopyImageTo(copy, -2, 0);
    EXPECT_EQ(allWords(copy), (std::vector<std::uint32_t>{0xFF000002, 0xFF000001, 0xFF000004, 0xFF000003}));
    EXPECT_TRUE(copy.originalBytes().empty());
}

TEST(SurfaceSave, BitmapLayoutOfBothDepths) {
    c32bppDIB surface;
    fillSurface(surface, 1, 2, {0x80402010, 0xFF010203});
    std::vector<std::uint8_t> bmp;
    ASSERT_TRUE(surface.SaveToStream(bmp));
    // Signature, file size, data offset, header size, width, height, planes, depth, data size.
    const auto headerBytes = [&bmp] {
        std::vector<int> bytes;
        for (const std::size_t at : {0u, 1u, 2u, 10u, 14u, 18u, 22u, 26u, 28u, 34u})
            bytes.push_back(bmp.at(at));
        return bytes;
    };
    ASSERT_EQ(bmp.size(), 54u + 8u);
    EXPECT_EQ(headerBytes(), (std::vector<int>{'B', 'M', 62, 54, 40, 1, 2, 1, 32, 8}));
    EXPECT_EQ(std::vector<std::uint8_t>(bmp.begin() + 54, bmp.end()),
              (std::vector<std::uint8_t>{0x03, 0x02, 0x01, 0xFF, 0x10, 0x20, 0x40, 0x80}));

    surface.setAlpha(false);
    ASSERT_TRUE(surface.SaveToStream(bmp));
    ASSERT_EQ(bmp.size(), 54u + 8u);  // 3 bytes a row padded to 4
    EXPECT_EQ(headerBytes(), (std::vector<int>{'B', 'M', 62, 54, 40, 1, 2, 1, 24, 8}));
    EXPECT_EQ(std::vector<std::uint8_t>(bmp.begin() + 54, bmp.end()),
              (std::vector<std::uint8_t>{0x03, 0x02, 0x01, 0, 0x10, 0x20, 0x40, 0}));

    c32bppDIB reloaded;
    ASSERT_TRUE(reloaded.LoadPicture_Stream(bmp));
    EXPECT_EQ(reloaded.GetPixel(0, 1), 0x030201);

    c32bppDIB empty;
    bmp.assign(3, 1);
    EXPECT_FALSE(empty.SaveToStream(bmp));
    EXPECT_TRUE(bmp.empty());
}

TEST(SurfaceBits, FlagsChooseTheLayout) {
    c32bppDIB surface;
    fillSurface(surface, 3, 2, {0xFF000001, 0x80402010, 0xFF000003, 0xFF000004, 0xFF000005, 0});
    std::vector<std::uint8_t> bits;
    ASSERT_TRUE(surface.GetDIBbits(bits));
    EXPECT_EQ(bits, std::vector<std::uint8_t>(surface.BitsPointer(), surface.BitsPointer() + 24));
    ASSERT_TRUE(surface.GetDIBbits(bits, false, true, false, false, 1, 0, 1, 1));
    EXPECT_EQ(bits, (std::vector<std::uint8_t>{0x1F, 0x3F, 0x7F, 0}));  // straight, padded to 4
    ASSERT_TRUE(surface.GetDIBbits(bits, false, false, false));
    ASSERT_EQ(bits.size(), 18u);
    EXPECT_EQ(bits[0], 1);
    EXPECT_EQ(bits[9], 4);
    ASSERT_TRUE(surface.GetDIBbits(bits, true, true, true, true, 1, 1, 0, 0));
    EXPECT_EQ(bits, (std::vector<std::uint8_t>{5, 0, 0, 0xFF, 0, 0, 0, 0}));
    EXPECT_FALSE(surface.GetDIBbits(bits, true, true, true, true, 3, 0));
}

TEST(SurfaceBits, RoundTripsThroughEveryLayout) {
    c32bppDIB surface;
    const std::vector<std::uint32_t> words = {0xFF000001, 0x80402010, 0xFF000003, 0xFF000004, 0xFF000005, 0};
    for (const bool topDown : {false, true}) {
        for (const bool straight : {false, true}) {
            fillSurface(surface, 3, 2, words);
            std::vector<std::uint8_t> bits;
            ASSERT_TRUE(surface.GetDIBbits(bits, true, true, !topDown, !straight));
            ASSERT_TRUE(surface.SetDIBbits(bits, true, true, !topDown, !straight));
            // Both ways truncate: 0x40 at alpha 0x80 goes out as 127 and comes back as 63.
            const std::uint32_t translucent = straight ? 0x803F1F0Fu : 0x80402010u;
            EXPECT_EQ(allWords(surface), (std::vector<std::uint32_t>{0xFF000001, translucent, 0xFF000003,
                                                                     0xFF000004, 0xFF000005, 0}))
                << topDown << straight;
        }
    }
    std::vector<std::uint8_t> bits;
    ASSERT_TRUE(surface.GetDIBbits(bits, false, true, false));
    ASSERT_TRUE(surface.SetDIBbits(bits, false, true, false));
    EXPECT_FALSE(surface.Alpha());
    EXPECT_EQ(wordAt(surface, 2, 1), 0xFF000000u);
    bits.pop_back();
    EXPECT_FALSE(surface.SetDIBbits(bits, false, true, false));
}

TEST(SurfaceBits, SetKeepsColoursWithinAlpha) {
    c32bppDIB surface;
    surface.InitializeDIB(1, 1);
    ASSERT_TRUE(
        surface.SetDIBbits(std::vector<std::uint8_t>{0xFF, 0x80, 0x10, 0x80}, true, true, true, false));
    EXPECT_EQ(wordAt(surface, 0, 0), 0x80084080u);
    ASSERT_TRUE(surface.SetDIBbits(std::vector<std::uint8_t>{0xFF, 0x80, 0x10, 0x40}));
    EXPECT_EQ(wordAt(surface, 0, 0), 0x40104040u);
    EXPECT_TRUE(surface.Alpha());
}

TEST(SurfaceIconSizes, OnlyIconsListTheirSizes) {
    c32bppDIB surface;
    fillSurface(surface, 5, 7, std::vector<std::uint32_t>(35, 0xFF000000));
    EXPECT_TRUE(surface.SourceIconSizes().empty());
    surface.setImageType(kImageIcon32);
    const std::vector<IconSizeRow> rows = surface.SourceIconSizes();
    ASSERT_EQ(rows.size(), 1u);
    EXPECT_EQ(rows[0].width, 5);
    EXPECT_EQ(rows[0].height, 7);
    EXPECT_EQ(rows[0].bitDepth, 32);
    EXPECT_EQ(rows[0].colorCount, -1);
}

}  // namespace
}  // namespace orvanta::testing
