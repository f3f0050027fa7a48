#include <gtest/gtest.h>
#include <png.h>

#include <cstring>
#include <vector>

#include "image/ZlibLibrary.h"
#include "image/cPNGparser.h"
#include "image/png_test_support.h"

namespace orvanta::testing {
namespace {

struct MemoryReader {
    const Bytes* bytes;
    std::size_t at;
};

void readFromMemory(png_structp png, png_bytep out, png_size_t size) {
    auto* reader = static_cast<MemoryReader*>(png_get_io_ptr(png));
    if (reader->at + size > reader->bytes->size()) png_error(png, "read past the end");
    std::memcpy(out, reader->bytes->data() + reader->at, size);
    reader->at += size;
}

// libpng's straight RGBA8 of the file, rows top-down: palette and small grays expanded, tRNS made
// alpha, 16-bit samples cut to their high byte.
Bytes libpngRgba(const Bytes& file, std::int32_t width, std::int32_t height) {
    png_structp png = png_create_read_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
    png_infop info = png_create_info_struct(png);
    Bytes rgba(static_cast<std::size_t>(width) * static_cast<std::size_t>(height) * 4);
    MemoryReader reader{&file, 0};
    if (setjmp(png_jmpbuf(png))) {
        png_destroy_read_struct(&png, &info, nullptr);
        ADD_FAILURE() << "libpng refused the file";
        return {};
    }
    png_set_read_fn(png, &reader, readFromMemory);
    png_read_info(png, info);
    png_set_expand(png);
    png_set_strip_16(png);
    png_set_gray_to_rgb(png);
    png_set_add_alpha(png, 0xFF, PNG_FILLER_AFTER);
    png_set_interlace_handling(png);
    png_read_update_info(png, info);
    std::vector<png_bytep> rows(static_cast<std::size_t>(height));
    for (std::size_t y = 0; y < rows.size(); ++y)
        rows[y] = rgba.data() + y * static_cast<std::size_t>(width) * 4;
    png_read_image(png, rows.data());
    png_destroy_read_struct(&png, &info, nullptr);
    return rgba;
}

// The surface's pixels as the engine must store them: premultiplied with truncation, BGRA,
// bottom-up.
Bytes expectedSurface(const Bytes& rgba, std::int32_t width, std::int32_t height) {
    Bytes out(rgba.size(), 0);
    for (std::int32_t y = 0; y < height; ++y) {
        for (std::int32_t x = 0; x < width; ++x) {
            const std::uint8_t* in = &rgba[(static_cast<std::size_t>(y) * static_cast<std::size_t>(width) +
                                            static_cast<std::size_t>(x)) *
                                           4];
            std::uint8_t* to =
                &out[(static_cast<std::size_t>(height - 1 - y) * static_cast<std::size_t>(width) +
                      static_cast<std::size_t>(x)) *
                     4];
            const std::uint32_t a = in[3];
            if (a == 0) continue;
            for (int c = 0; c < 3; ++c) to[2 - c] = static_cast<std::uint8_t>(in[c] * a / 255);
            to[3] = static_cast<std::uint8_t>(a);
        }
    }
    return out;
}

Bytes surfaceBytes(const c32bppDIB& surface) {
    if (surface.Handle() == 0) return {};
    return {surface.BitsPointer(),
            surface.BitsPointer() + static_cast<std::ptrdiff_t>(surface.scanWidth()) * surface.Height()};
}

struct Case {
    std::uint8_t colorType;
    std::uint8_t depth;
};

// A tRNS chunk of the colour type that matches the samples the test data uses most (0x11).
Bytes transparencyFor(const Case& c) {
    // No longer than the palette, which libpng requires.
    if (c.colorType == 3) return c.depth == 1 ? Bytes{0x80, 0} : Bytes{0, 0x80, 0xFF, 0x40};
    const auto value = static_cast<std::uint8_t>(c.depth >= 8 ? 0x11u : 0x11u & ((1u << c.depth) - 1));

    const auto high = static_cast<std::uint8_t>(c.depth == 16 ? value : 0);
    if (c.colorType == 0) return {high, value};
    return {high, value, high, value, high, value};
}

TEST(PngAgainstLibpng, EveryColourTypeDepthInterlaceAndTransparency) {
    const Case cases[] = {{0, 1}, {0, 2}, {0, 4}, {0, 8}, {0, 16}, {2, 8}, {2, 16}, {3, 1},
                          {3, 2}, {3, 4}, {3, 8}, {4, 8}, {4, 16}, {6, 8}, {6, 16}};
    for (const Case& c : cases) {
        for (const std::uint8_t interlace : {std::uint8_t{0}, std::uint8_t{1}}) {
            for (const bool withTransparency : {false, true}) {
                if (withTransparency && c.colorType >= 4) continue;
                PngRecipe recipe;
                recipe.header = {37, 29, c.depth, c.colorType, interlace};
                recipe.seed = c.colorType * 100u + c.depth + interlace;
                if (c.colorType == 3) recipe.palette = randomPalette(std::size_t{1} << c.depth, recipe.seed);
                if (withTransparency) recipe.transparency = transparencyFor(c);
                const Bytes file = makePng(recipe);
                const Bytes expected = expectedSurface(libpngRgba(file, 37, 29), 37, 29);
                const std::string name = "type " + std::to_string(c.colorType) + " depth " +
                                         std::to_string(c.depth) + " interlace " + std::to_string(interlace) +
                                         (withTransparency ? " tRNS" : "");
                c32bppDIB withZlib, withoutZlib;
                ASSERT_TRUE(cPNGparser().LoadStream(file, withZlib)) << name;
                {
                    const ZlibSwitchedOff off;
                    ASSERT_TRUE(cPNGparser().LoadStream(file, withoutZlib)) << name;
                }
                ASSERT_EQ(withZlib.Width(), 37) << name;
                EXPECT_EQ(surfaceBytes(withZlib), expected) << name;
                EXPECT_EQ(surfaceBytes(withoutZlib), expected) << name;
                EXPECT_EQ(withZlib.Alpha(), c.colorType >= 4 || withTransparency) << name;
                EXPECT_EQ(withZlib.ImageType(), kImagePng) << name;
            }
        }
    }
}

}  // namespace
}  // namespace orvanta::testing
