#pragma once
// The pictures of the image benchmarks, made once: a photograph-like 1920x1080 picture (smooth
// light with grain), the same with an alpha channel, and a screenshot-like one (flat panels, lines
// of text-like marks), each as PNG bytes written by the engine's writer.

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <random>
#include <vector>

#include "image/c32bppDIB.h"
#include "image/cPNGwriter.h"

namespace orvanta::bench {

enum class Picture { Photo, PhotoAlpha, Screenshot };

inline constexpr std::int32_t kWidth = 1920;
inline constexpr std::int32_t kHeight = 1080;

inline void paint(c32bppDIB& surface, Picture kind) {
    surface.InitializeDIB(kWidth, kHeight);
    std::mt19937 random(7);
    std::uint8_t* p = surface.BitsPointer();
    for (std::int32_t y = 0; y < kHeight; ++y) {
        for (std::int32_t x = 0; x < kWidth; ++x, p += 4) {
            std::uint32_t r, g, b, a = 255;
            if (kind == Picture::Screenshot) {
                // Panels, a title bar, and lines of text: each character cell shows one of 64
                // glyphs of 6x11 marks, picked by a hash of the cell.
                const bool panel = (x / 240 + y / 180) % 3 == 0;
                const std::uint32_t cell =
                    static_cast<std::uint32_t>(x / 9) * 2654435761u + static_cast<std::uint32_t>(y / 18) * 40503u;
                const std::uint32_t glyph = (cell >> 7) % 64, gx = static_cast<std::uint32_t>(x % 9),
                                    gy = static_cast<std::uint32_t>(y % 18);
                const bool mark = gx < 6 && gy < 11 &&
                                  ((glyph * 2246822519u ^ (gy * 6 + gx) * 3266489917u) >> 29) < 3 &&
                                  x % 480 > 40 && (y / 18) % 4 != 3;
                r = g = b = panel ? 240 : 255;
                if (y < 40) r = 30, g = 60, b = 120;
                if (mark && y >= 40) r = g = b = 20;
            } else {
                const double light =
                    0.5 + 0.25 * std::sin(x / 190.0) * std::cos(y / 140.0) + 0.2 * std::sin((x + y) / 60.0);
                const auto grain = static_cast<double>(random() % 9) - 4;
                r = static_cast<std::uint32_t>(std::clamp(light * 230 + grain, 0.0, 255.0));
                g = static_cast<std::uint32_t>(std::clamp(light * 180 + 30 + grain, 0.0, 255.0));
                b = static_cast<std::uint32_t>(std::clamp(light * 120 + 60 + grain, 0.0, 255.0));
                if (kind == Picture::PhotoAlpha)
                    a = static_cast<std::uint32_t>(
                        std::clamp(128 + 127 * std::sin(x / 300.0 + y / 200.0), 0.0, 255.0));
            }
            p[0] = static_cast<std::uint8_t>(b * a / 255);
            p[1] = static_cast<std::uint8_t>(g * a / 255);
            p[2] = static_cast<std::uint8_t>(r * a / 255);
            p[3] = static_cast<std::uint8_t>(a);
        }
    }
}

inline const std::vector<std::uint8_t>& pictureFile(Picture kind) {
    static std::vector<std::uint8_t> files[3];
    auto& file = files[static_cast<int>(kind)];
    if (file.empty()) {
        c32bppDIB surface;
        paint(surface, kind);
        cPNGwriter().SaveToStream(surface, file);
    }
    return file;
}

// The IDAT data of a PNG joined: the zlib stream.
inline std::vector<std::uint8_t> zlibStream(const std::vector<std::uint8_t>& png) {
    std::vector<std::uint8_t> stream;
    for (std::size_t at = 8; at + 12 <= png.size();) {
        const std::size_t length = std::size_t{png[at]} << 24 | std::size_t{png[at + 1]} << 16 |
                                   std::size_t{png[at + 2]} << 8 | std::size_t{png[at + 3]};
        if (png[at + 4] == 'I' && png[at + 5] == 'D' && png[at + 6] == 'A' && png[at + 7] == 'T')
            stream.insert(stream.end(), png.begin() + static_cast<std::ptrdiff_t>(at + 8),
                          png.begin() + static_cast<std::ptrdiff_t>(at + 8 + length));
        at += length + 12;
    }
    return stream;
}

}  // namespace orvanta::bench
