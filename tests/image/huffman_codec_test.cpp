#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

#include "image/HuffmanTree.h"
#include "image/cHuffman.h"

namespace orvanta {
namespace {

using Bytes = std::vector<std::uint8_t>;

Bytes text(const std::string& value) {
    return {value.begin(), value.end()};
}

Bytes encoded(const Bytes& input) {
    Bytes out;
    EXPECT_TRUE(cHuffman::EncodeByteArray(nullptr, input, out));
    return out;
}

Bytes decoded(const Bytes& container, std::size_t start = 0) {
    Bytes out;
    EXPECT_TRUE(cHuffman::DecodeByteArray(container, start, nullptr, out));
    return out;
}

TEST(HuffmanCodec, SkewedInputIsCodedAndRoundTrips) {
    std::mt19937 random(3);
    std::geometric_distribution<int> skewed(0.2);
    Bytes input;
    for (int i = 0; i < 20000; ++i) input.push_back(static_cast<std::uint8_t>(skewed(random) % 256));
    const Bytes container = encoded(input);
    ASSERT_GE(container.size(), 16u);
    EXPECT_EQ(Bytes(container.begin(), container.begin() + 4), (Bytes{0x0D, '3', 'E', 'H'}));
    EXPECT_LT(container.size(), input.size());
    EXPECT_EQ(decoded(container), input);
    const Bytes english =
        text("a plain static coder for bytes, packed low bit first, in table order among equals");
    EXPECT_EQ(decoded(encoded(english)), english);
    // A container is read from its start offset.
    Bytes shifted = {1, 2, 3};
    shifted.insert(shifted.end(), container.begin(), container.end());
    EXPECT_EQ(decoded(shifted, 3), input);
}

TEST(HuffmanCodec, InputThatDoesNotShrinkIsStored) {
    // Every byte value equally often: all codes are 8 bits, so the coded data is as large as the
    // input. The table is not counted, only the data.
    std::mt19937 random(5);
    Bytes flat(4096);
    for (std::size_t i = 0; i < flat.size(); ++i) flat[i] = static_cast<std::uint8_t>(i);
    std::shuffle(flat.begin(), flat.end(), random);
    const Bytes single(1000, 'x');  // one symbol: a code of no bits
    for (const Bytes& input : {flat, single, Bytes{}}) {
        const Bytes container = encoded(input);
        ASSERT_EQ(container.size(), 8 + input.size());
        EXPECT_EQ(container[1], '0');
        EXPECT_EQ(container[4] | container[5] << 8, static_cast<int>(input.size() & 0xFFFF));
        EXPECT_EQ(decoded(container), input);
    }
    // Two bytes of two values code into one byte of data: coded, although the container grows.
    const Bytes two = encoded(text("ab"));
    EXPECT_EQ(two[1], '3');
    EXPECT_GT(two.size(), 10u);
    EXPECT_EQ(decoded(two), text("ab"));
}

TEST(HuffmanCodec, EqualWeightsAreTakenInTableOrder) {
    // a and b (1 each) join first; c (2) comes before that node (2) in the table, so c goes left.
    std::array<std::uint64_t, 256> counts{};
    counts['a'] = 1;
    counts['b'] = 1;
    counts['c'] = 2;
    const HuffmanCodeTable codes = buildHuffmanCodes(counts);
    EXPECT_EQ(codes['c'], (HuffmanCode{0}));
    EXPECT_EQ(codes['a'], (HuffmanCode{1, 0}));
    EXPECT_EQ(codes['b'], (HuffmanCode{1, 1}));
    EXPECT_TRUE(codes['d'].empty());
}

TEST(HuffmanCodec, BadContainersAreRefusedWithNothingReceived) {
    const Bytes container = encoded(text("abracadabra abracadabra abracadabra"));
    ASSERT_EQ(container[1], '3');
    Bytes out = {9};
    Bytes versionOne = container;
    versionOne[1] = '1';
    EXPECT_FALSE(cHuffman::DecodeByteArray(versionOne, 0, nullptr, out));
    EXPECT_TRUE(out.empty());
    EXPECT_FALSE(cHuffman::DecodeByteArray(container, container.size() + 1, nullptr, out));
    for (std::size_t cut = 0; cut < container.size(); ++cut) {
        EXPECT_FALSE(cHuffman::DecodeByteArray({container.data(), cut}, 0, nullptr, out)) << cut;
        EXPECT_TRUE(out.empty());
    }
    Bytes badCount = container;
    badCount[6] = 0x7F;  // far more bytes than the coded bits can give
    EXPECT_FALSE(cHuffman::DecodeByteArray(badCount, 0, nullptr, out));
    Bytes noSymbols = container;
    noSymbols[12] = noSymbols[13] = 0;
    EXPECT_FALSE(cHuffman::DecodeByteArray(noSymbols, 0, nullptr, out));
}

TEST(HuffmanCodec, PicturesKeepTheirSizeAndPixels) {
    // 8 x 8 pixels are 256 bytes: once as few gray values (coded), once every byte value once (stored).
    for (const bool flat : {false, true}) {
        c32bppDIB picture;
        ASSERT_TRUE(picture.InitializeDIB(8, 8));
        for (int i = 0; i < 8 * 8 * 4; ++i)
            picture.BitsPointer()[i] =
                static_cast<std::uint8_t>(flat ? i : (i % 4 == 3 ? 255 : (i / 4 % 3 == 0 ? 40 : 0)));
        Bytes container;
        ASSERT_TRUE(cHuffman::EncodeByteArray(&picture, {}, container));
        EXPECT_EQ(container[1], flat ? '0' : '3');
        c32bppDIB copy;
        Bytes out;
        ASSERT_TRUE(cHuffman::DecodeByteArray(container, 0, &copy, out));
        ASSERT_EQ(copy.Width(), 8);
        ASSERT_EQ(copy.Height(), 8);
        EXPECT_EQ(Bytes(copy.BitsPointer(), copy.BitsPointer() + 256),
                  Bytes(picture.BitsPointer(), picture.BitsPointer() + 256));
    }
    // Bytes without a picture's size cannot fill a surface.
    c32bppDIB surface;
    Bytes out;
    EXPECT_FALSE(cHuffman::DecodeByteArray(encoded(text("no size here at all, none")), 0, &surface, out));
}

}  // namespace
}  // namespace orvanta
