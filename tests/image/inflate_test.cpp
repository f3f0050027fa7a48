#include <gtest/gtest.h>
#include <zlib.h>

#include <random>
#include <vector>

#include "image/Inflate.h"

namespace orvanta {
namespace {

using Bytes = std::vector<std::uint8_t>;

Bytes deflated(const Bytes& data, int level, int strategy) {
    z_stream stream{};
    EXPECT_EQ(deflateInit2(&stream, level, Z_DEFLATED, 15, 8, strategy), Z_OK);
    Bytes out(deflateBound(&stream, static_cast<uLong>(data.size())));
    stream.next_in = const_cast<Bytef*>(data.data());
    stream.avail_in = static_cast<uInt>(data.size());
    stream.next_out = out.data();
    stream.avail_out = static_cast<uInt>(out.size());
    EXPECT_EQ(deflate(&stream, Z_FINISH), Z_STREAM_END);
    out.resize(stream.total_out);
    deflateEnd(&stream);
    return out;
}

// Text-like, run-like and noisy stretches, so that every block type and copy distance occurs.
Bytes mixedData(std::size_t size, unsigned seed) {
    std::mt19937 random(seed);
    Bytes data;
    while (data.size() < size) {
        const auto kind = random() % 4, length = 1 + random() % 3000;
        for (std::size_t i = 0; i < length && data.size() < size; ++i) {
            if (kind == 0) data.push_back(static_cast<std::uint8_t>(random()));
            if (kind == 1) data.push_back(static_cast<std::uint8_t>('a' + random() % 6));
            if (kind == 2) data.push_back(static_cast<std::uint8_t>(i / 50));
            if (kind == 3)
                data.push_back(
                    data.empty() ? 0
                                 : data[data.size() - 1 - random() % std::min<std::size_t>(data.size(), 7)]);
        }
    }
    return data;
}

TEST(OwnInflate, AgreesWithZlibOnEveryLevelAndStrategy) {
    const int strategies[] = {Z_DEFAULT_STRATEGY, Z_FILTERED, Z_HUFFMAN_ONLY, Z_RLE, Z_FIXED};
    for (const std::size_t size :
         {std::size_t{0}, std::size_t{1}, std::size_t{300}, std::size_t{70000}, std::size_t{400000}}) {
        const Bytes data = mixedData(size, static_cast<unsigned>(size));
        for (const int level : {0, 1, 6, 9}) {
            for (const int strategy : strategies) {
                const Bytes packed = deflated(data, level, strategy);
                Bytes out(data.size());
                std::size_t written = 0;
                ASSERT_EQ(inflateStream(packed, out, written), kInflateOk)
                    << size << " " << level << " " << strategy;
                ASSERT_EQ(written, data.size());
                ASSERT_EQ(out, data) << size << " " << level << " " << strategy;
            }
        }
    }
}

TEST(OwnInflate, OutputIsCutAtTheEndOfTheBuffer) {
    const Bytes data = mixedData(50000, 9);
    for (const int level : {0, 9}) {
        const Bytes packed = deflated(data, level, Z_DEFAULT_STRATEGY);
        for (const std::size_t room :
             {std::size_t{0}, std::size_t{1}, std::size_t{257}, std::size_t{40000}}) {
            Bytes out(room);
            std::size_t written = 0;
            EXPECT_EQ(inflateStream(packed, out, written), kInflateOk);
            EXPECT_EQ(written, room);
            EXPECT_TRUE(std::equal(out.begin(), out.end(), data.begin()));
        }
    }
}

TEST(OwnInflate, DamagedStreamsFailWithTheirCode) {
    const Bytes data = mixedData(20000, 4);
    const Bytes packed = deflated(data, 9, Z_DEFAULT_STRATEGY);
    Bytes out(data.size());
    std::size_t written = 0;
    // Cut short anywhere, the stream is refused (or what came is a prefix of the data).
    for (std::size_t cut = 2; cut + 4 < packed.size(); cut += 97) {
        const int code = inflateStream({packed.data(), cut}, out, written);
        // Only the Adler checksum and padding bits may go missing without notice.
        EXPECT_TRUE(code != kInflateOk || written == data.size()) << cut;
        EXPECT_TRUE(
            std::equal(out.begin(), out.begin() + static_cast<std::ptrdiff_t>(written), data.begin()));
    }
    const Bytes blockType3 = {0x78, 0xDA, 0x07};
    EXPECT_EQ(inflateStream(blockType3, out, written), kInflateBadBlock);
    const Bytes storedBadComplement = {0x78, 0x01, 0x01, 0x05, 0x00, 0xFA, 0xFE, 1, 2, 3, 4, 5};
    EXPECT_EQ(inflateStream(storedBadComplement, out, written), kInflateBadBlock);
    // A fixed block whose first symbol is a match of distance 1 with nothing before it.
    const Bytes distanceBeforeStart = {0x78, 0x01, 0x03, 0x02, 0x00};
    EXPECT_EQ(inflateStream(distanceBeforeStart, out, written), kInflateBadDistance);
    // A dynamic block whose code length codes are 16 and 17 of one bit each, and whose first
    // length is a 16: a repeat with nothing before it.
    const Bytes repeatAtStart = {0x78, 0x01, 0x05, 0x00, 0x12, 0x00, 0x00};
    EXPECT_EQ(inflateStream(repeatAtStart, out, written), kInflateBadRun);
}

}  // namespace
}  // namespace orvanta
