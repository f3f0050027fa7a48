#include <gtest/gtest.h>

#include <cstring>
#include <random>
#include <string>

#include "image/ZlibLibrary.h"
#include "image/cPNGparser.h"
#include "image/cPNGwriter.h"

namespace orvanta {
namespace {

using Bytes = std::vector<std::uint8_t>;

// A premultiplied picture: opaque, translucent and transparent pixels, or only opaque (gray) ones.
void fillPicture(c32bppDIB& surface, std::int32_t width, std::int32_t height, int kind) {
    ASSERT_TRUE(surface.InitializeDIB(width, height));
    std::mt19937 random(static_cast<unsigned>(kind + width));
    std::uint8_t* p = surface.BitsPointer();
    for (std::int32_t i = 0; i < width * height; ++i, p += 4) {
        const auto a = static_cast<std::uint8_t>(kind == 0 ? (i % 3 == 0   ? 255
                                                              : i % 3 == 1 ? 0
                                                                           : random())
                                                           : 255);
        for (int c = 0; c < 3; ++c) p[c] = static_cast<std::uint8_t>(random() % (a + 1u));
        if (kind == 2) p[1] = p[2] = p[0];
        p[3] = a;
    }
}

// The chunk types of a PNG in their order.
std::vector<std::string> chunkTypes(const Bytes& png) {
    std::vector<std::string> types;
    for (std::size_t at = 8; at + 12 <= png.size();) {
        const std::size_t length = std::size_t{png[at]} << 24 | std::size_t{png[at + 1]} << 16 |
                                   std::size_t{png[at + 2]} << 8 | std::size_t{png[at + 3]};
        types.emplace_back(png.begin() + static_cast<std::ptrdiff_t>(at + 4),
                           png.begin() + static_cast<std::ptrdiff_t>(at + 8));
        at += length + 12;
    }
    return types;
}

TEST(PngWriter, PicturesRoundTripThroughEveryFilterAndInterlace) {
    for (const int kind : {0, 1, 2}) {
        c32bppDIB picture;
        fillPicture(picture, 23, 17, kind);
        for (const bool interlace : {false, true}) {
            for (std::int32_t filter = 0; filter <= 7; ++filter) {
                cPNGwriter writer;
                writer.interlace = interlace;
                writer.filter = filter;
                Bytes png;
                ASSERT_TRUE(writer.SaveToStream(picture, png));
                EXPECT_EQ(png[25], kind == 0 ? 6 : kind == 1 ? 2 : 0) << "colour type";
                c32bppDIB back;
                ASSERT_TRUE(cPNGparser().LoadStream(png, back));
                ASSERT_EQ(back.Width(), 23);
                // Straight colours are restored with truncation, so a translucent pixel may come
                // back one lower; opaque and transparent ones come back exactly.
                for (int i = 0; i < 23 * 17 * 4; ++i) {
                    const int was = picture.BitsPointer()[i], now = back.BitsPointer()[i];
                    ASSERT_TRUE(now == was || (now + 1 == was && picture.BitsPointer()[i | 3] != 255))
                        << "kind " << kind << " filter " << filter << " byte " << i;
                }
            }
        }
    }
}

TEST(PngWriter, ChunksStandInTheirOrder) {
    c32bppDIB picture;
    fillPicture(picture, 4, 4, 1);
    cPNGwriter writer;
    writer.background = 0x00FF00;
    writer.transparentColor = 0x0000FF;
    writer.time = PngTime{2024, 5, 6, 7, 8, 9};
    EXPECT_TRUE(writer.AddText("Title", "before", true));
    EXPECT_TRUE(writer.AddText("Comment", std::string(3000, 'x'), false));
    Bytes png;
    ASSERT_TRUE(picture.SaveToStream_PNG(png) && writer.SaveToStream(picture, png));
    EXPECT_EQ(chunkTypes(png),
              (std::vector<std::string>{"IHDR", "tEXt", "bKGD", "tRNS", "IDAT", "tIME", "zTXt", "IEND"}));
}

TEST(PngWriter, KeywordsAndTexts) {
    EXPECT_EQ(cPNGwriter::keywordBit("Source'"), 256);
    EXPECT_EQ(cPNGwriter::keywordBit("source'"), 256);
    EXPECT_EQ(cPNGwriter::keywordBit("Source"), -1);
    EXPECT_EQ(cPNGwriter::keywordBit("COMMENT"), 512);
    EXPECT_EQ(preparePngKeyword(std::string(100, 'k')).size(), 79u);
    EXPECT_EQ(preparePngKeyword("  My   word\xA0 "), "My word");
    EXPECT_EQ(preparePngKeyword("bad\x7F"), "");
    EXPECT_EQ(preparePngText("a\r\nb\rc\td"), "a\nb\nc\td");
    EXPECT_EQ(preparePngText("bell\x07"), "");
    EXPECT_EQ(preparePngText(std::string(40000, 'x')).size(), 32700u);
    cPNGwriter writer;
    EXPECT_FALSE(writer.AddText("\x01", "text"));
    EXPECT_TRUE(writer.texts().empty());
}

TEST(PngWriter, NoZlibNoPng) {
    c32bppDIB picture, empty;
    fillPicture(picture, 4, 4, 0);
    Bytes png = {1};
    EXPECT_FALSE(cPNGwriter().SaveToStream(empty, png));
    const ZlibSwitchedOff off;
    EXPECT_FALSE(cPNGwriter().SaveToStream(picture, png));
    EXPECT_TRUE(png.empty());
    EXPECT_FALSE(picture.SaveToStream_PNG(png));
}

}  // namespace
}  // namespace orvanta
