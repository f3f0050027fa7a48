#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include <unistd.h>

#include "image/cPNGparser.h"
#include "image/png_test_support.h"

namespace orvanta::testing {
namespace {

namespace fs = std::filesystem;

Bytes readAll(const fs::path& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

TEST(Ovimage, DecodeWritesTheSurfaceTopDownAndFailuresSayWhy) {
    const fs::path folder = fs::temp_directory_path() / ("ovimage-test-" + std::to_string(::getpid()));
    fs::create_directories(folder);
    PngRecipe recipe;
    recipe.header = {7, 5, 8, 6, 1};
    const Bytes png = makePng(recipe);
    std::ofstream(folder / "in.png", std::ios::binary)
        .write(reinterpret_cast<const char*>(png.data()), static_cast<std::streamsize>(png.size()));
    const std::string tool = ORVANTA_OVIMAGE;
    ASSERT_EQ(std::system((tool + " decode " + (folder / "in.png").string() + " " +
                           (folder / "out.pam").string() + " --no-zlib")
                              .c_str()),
              0);
    const std::string header = "P7\nWIDTH 7\nHEIGHT 5\nDEPTH 4\nMAXVAL 255\nTUPLTYPE RGB_ALPHA\nENDHDR\n";
    const Bytes pam = readAll(folder / "out.pam");
    ASSERT_EQ(pam.size(), header.size() + 7 * 5 * 4);
    EXPECT_EQ(std::string(pam.begin(), pam.begin() + static_cast<std::ptrdiff_t>(header.size())), header);
    c32bppDIB surface;
    ASSERT_TRUE(cPNGparser().LoadStream(png, surface));
    for (std::int32_t y = 0; y < 5; ++y) {
        for (std::int32_t x = 0; x < 7; ++x) {
            const std::uint8_t* p = surface.BitsPointer() + ((4 - y) * 7 + x) * 4;
            const std::uint8_t* q = pam.data() + header.size() + static_cast<std::size_t>(y * 7 + x) * 4;
            EXPECT_EQ((Bytes{q[0], q[1], q[2], q[3]}), (Bytes{p[2], p[1], p[0], p[3]})) << x << "," << y;
        }
    }
    Bytes damaged = png;
    damaged[40] ^= 0xFF;
    std::ofstream(folder / "bad.png", std::ios::binary)
        .write(reinterpret_cast<const char*>(damaged.data()), static_cast<std::streamsize>(damaged.size()));
    EXPECT_NE(std::system((tool + " decode " + (folder / "bad.png").string() + " " +
                           (folder / "x.pam").string() + " 2>" + (folder / "err.txt").string())
                              .c_str()),
              0);
    const Bytes error = readAll(folder / "err.txt");
    EXPECT_NE(std::string(error.begin(), error.end()).find("no reader could load it"), std::string::npos);
    fs::remove_all(folder);
}

}  // namespace
}  // namespace orvanta::testing
