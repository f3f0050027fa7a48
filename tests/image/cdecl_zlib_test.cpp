#include <gtest/gtest.h>
#include <zlib.h>

#include <string>
#include <vector>

#include "image/ZlibLibrary.h"
#include "image/c32bppDIB.h"
#include "image/cCDECL.h"
#include "platform/SharedLibrary.h"

namespace orvanta {
namespace {

// The error a call raises, as text and number; empty text if it raised nothing.
template <typename Call>
std::pair<std::string, std::uint32_t> raised(Call call) {
    try {
        call();
    } catch (const CdeclError& error) {
        EXPECT_STREQ(CdeclError::source(), "cCDECL");
        return {error.what(), error.number()};
    }
    return {"", 0};
}

cCDECL loadedZlib() {
    cCDECL calls;
    bool loaded = false;
    for (const LibraryName& name : zlibLibraryNames()) loaded = loaded || calls.DllLoad(name.name);
    EXPECT_TRUE(loaded) << "no zlib library on this machine";
    return calls;
}

TEST(Cdecl, EachFailureRaisesItsTextAndNumber) {
    cCDECL calls;
    EXPECT_FALSE(calls.DllLoad("no-such-library-anywhere"));
    auto [text, number] = raised([&] { calls.CallFunc("crc32", 0); });
    EXPECT_EQ(text, "DLL not loaded");
    EXPECT_EQ(number, kCdeclNotLoaded);
    EXPECT_EQ(calls.LastError(), "DLL not loaded");

    calls = loadedZlib();
    std::tie(text, number) = raised([&] { calls.CallFunc("noSuchExport"); });
    EXPECT_EQ(text, "Failed to locate function: noSuchExport");
    EXPECT_EQ(number, kCdeclFunctionNotFound);
    std::tie(text, number) = raised([&] { calls.CallFunc("crc32", 1, 2, 3, 4, 5, 6); });
    EXPECT_EQ(text, "Too many parameters");
    EXPECT_EQ(number, kCdeclTooManyParameters);
    EXPECT_EQ(calls.LastError(), "Too many parameters");
}

TEST(Cdecl, CallsReachTheLibraryWithPointersAndIntegers) {
    cCDECL calls = loadedZlib();
    const std::string text = "The quick brown fox";
    const auto expected = static_cast<std::uint32_t>(
        ::crc32(0, reinterpret_cast<const Bytef*>(text.data()), static_cast<uInt>(text.size())));
    EXPECT_EQ(static_cast<std::uint32_t>(calls.CallFunc("crc32", 0, text.data(), text.size())), expected);
    // A function changed between calls is looked up again.
    EXPECT_NE(calls.CallFunc("zlibVersion"), 0);
    EXPECT_EQ(static_cast<std::uint32_t>(calls.CallFunc("crc32", 0, text.data(), text.size())), expected);
}

TEST(ZlibSearch, FindsTheLibraryAndCanBeSwitchedOff) {
    c32bppDIB surface;
    {
        const auto zlib = ZlibLibrary::find();
        ASSERT_NE(zlib, nullptr);
        EXPECT_EQ(zlib->kind(), zlibLibraryNames().front().kind);
        EXPECT_TRUE(zlib->hasCompress2());
        EXPECT_TRUE(surface.isZlibEnabled());
        const std::vector<std::uint8_t> data(5000, 7);
        std::vector<std::uint8_t> packed;
        ASSERT_TRUE(zlib->compress(packed, data, 9));
        std::vector<std::uint8_t> back(data.size());
        std::size_t written = 0;
        EXPECT_EQ(zlib->uncompress(back, written, packed), 0);
        EXPECT_EQ(written, data.size());
        EXPECT_EQ(back, data);
        EXPECT_EQ(zlib->crc32(0, data), static_cast<std::uint32_t>(::crc32(0, data.data(), 5000)));
    }
    {
        const ZlibSwitchedOff off;
        EXPECT_EQ(ZlibLibrary::find(), nullptr);
        EXPECT_FALSE(surface.isZlibEnabled());
    }
    EXPECT_TRUE(ZlibLibrary::available());
}

}  // namespace
}  // namespace orvanta
