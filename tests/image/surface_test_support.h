#pragma once
// Surfaces and drawing contexts with pixels written as 0xAARRGGBB words, top row first.

#include <cstdint>
#include <cstring>
#include <vector>

#include "image/c32bppDIB.h"

namespace orvanta::testing {

inline std::size_t memoryOffset(std::int32_t width, std::int32_t height, std::int32_t x, std::int32_t y) {
    return (static_cast<std::size_t>(height - 1 - y) * static_cast<std::size_t>(width) +
            static_cast<std::size_t>(x)) *
           4;
}

inline void putWord(std::uint8_t* p, std::uint32_t argb) {
    p[0] = static_cast<std::uint8_t>(argb);
    p[1] = static_cast<std::uint8_t>(argb >> 8);
    p[2] = static_cast<std::uint8_t>(argb >> 16);
    p[3] = static_cast<std::uint8_t>(argb >> 24);
}

inline std::uint32_t getWord(const std::uint8_t* p) {
    return static_cast<std::uint32_t>(p[0]) | static_cast<std::uint32_t>(p[1]) << 8 |
           static_cast<std::uint32_t>(p[2]) << 16 | static_cast<std::uint32_t>(p[3]) << 24;
}

// The words go in as they are: the caller keeps them premultiplied.
inline void fillSurface(c32bppDIB& surface, std::int32_t width, std::int32_t height,
                        const std::vector<std::uint32_t>& topDown, bool alpha = true) {
    surface.InitializeDIB(width, height);
    for (std::int32_t y = 0; y < height; ++y)
        for (std::int32_t x = 0; x < width; ++x)
            putWord(surface.BitsPointer() + memoryOffset(width, height, x, y),
                    topDown[static_cast<std::size_t>(y * width + x)]);
    surface.setAlpha(alpha);
}

inline std::uint32_t wordAt(const c32bppDIB& surface, std::int32_t x, std::int32_t y) {
    return getWord(surface.BitsPointer() + memoryOffset(surface.Width(), surface.Height(), x, y));
}

inline std::vector<std::uint32_t> allWords(const c32bppDIB& surface) {
    std::vector<std::uint32_t> words;
    for (std::int32_t y = 0; y < surface.Height(); ++y)
        for (std::int32_t x = 0; x < surface.Width(); ++x) words.push_back(wordAt(surface, x, y));
    return words;
}

// A target without alpha, as a screen is: reads give alpha 255, what is written to alpha is dropped.
class MemoryContext : public DrawingContext {
public:
    MemoryContext(std::int32_t width, std::int32_t height, std::uint32_t rgb)
        : width_(width), height_(height), pixels_(static_cast<std::size_t>(width * height), rgb & 0xFFFFFF) {}
    std::int32_t contextWidth() const override { return width_; }
    std::int32_t contextHeight() const override { return height_; }
    bool readArea(std::int32_t x, std::int32_t y, std::int32_t width, std::int32_t height,
                  std::vector<std::uint8_t>& pixels) override {
        pixels.assign(static_cast<std::size_t>(width * height) * 4, 0);
        for (std::int32_t row = 0; row < height; ++row)
            for (std::int32_t column = 0; column < width; ++column)
                putWord(&pixels[memoryOffset(width, height, column, row)],
                        0xFF000000u | at(x + column, y + row));
        return true;
    }
    bool writeArea(std::int32_t x, std::int32_t y, std::int32_t width, std::int32_t height,
                   const std::vector<std::uint8_t>& pixels) override {
        ++writes;
        for (std::int32_t row = 0; row < height; ++row)
            for (std::int32_t column = 0; column < width; ++column)
                at(x + column, y + row) =
                    getWord(&pixels[memoryOffset(width, height, column, row)]) & 0xFFFFFF;
        return true;
    }
    std::uint32_t& at(std::int32_t x, std::int32_t y) {
        return pixels_[static_cast<std::size_t>(y * width_ + x)];
    }
    int writes = 0;

private:
    std::int32_t width_, height_;
    std::vector<std::uint32_t> pixels_;
};

}  // namespace orvanta::testing
