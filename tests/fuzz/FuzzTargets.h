#pragma once
// What each fuzz target does with one input, shared by the libFuzzer programs, their replay
// programs and the test that replays tests/data/crashers. Options come from the input itself:
// the last byte of a PNG input switches zlib off, the first two bytes of an inflate input give
// the output size, so that one corpus reaches every path.

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "image/Inflate.h"
#include "image/ZlibLibrary.h"
#include "image/c32bppDIB.h"
#include "image/cBMPparser.h"
#include "image/cGIFparser.h"
#include "image/cHuffman.h"
#include "image/cICOparser.h"
#include "image/cPNGparser.h"

namespace orvanta::fuzz {

using Input = std::span<const std::uint8_t>;

// Every surface a reader leaves must hold its invariant: colours at most their alpha.
inline void checkSurface(const c32bppDIB& surface) {
    if (surface.Handle() == 0) return;
    const std::uint8_t* p = surface.BitsPointer();
    const std::size_t bytes =
        static_cast<std::size_t>(surface.scanWidth()) * static_cast<std::size_t>(surface.Height());
    for (std::size_t i = 0; i < bytes; i += 4)
        if (p[i] > p[i + 3] || p[i + 1] > p[i + 3] || p[i + 2] > p[i + 3]) __builtin_trap();
}

// Pictures of more than 4 million pixels are valid but only slow the search down.
inline bool pngTooLarge(Input input) {
    if (input.size() < 24) return false;
    const auto be = [&](std::size_t at) {
        return std::uint64_t{input[at]} << 24 | std::uint64_t{input[at + 1]} << 16 |
               std::uint64_t{input[at + 2]} << 8 | std::uint64_t{input[at + 3]};
    };
    return be(16) * be(20) > (std::uint64_t{1} << 22);
}

inline void png(Input input) {
    if (input.empty() || pngTooLarge(input)) return;
    const bool withoutZlib = (input.back() & 1) != 0;
    ZlibLibrary::setDisabled(withoutZlib);
    c32bppDIB surface;
    cPNGparser().LoadStream(input.first(input.size() - 1), surface);
    ZlibLibrary::setDisabled(false);
    checkSurface(surface);
}

inline void pngWithZlib(Input input) {
    if (pngTooLarge(input)) return;
    c32bppDIB surface;
    cPNGparser().LoadStream(input, surface);
    checkSurface(surface);
}

inline void pngWithoutZlib(Input input) {
    if (pngTooLarge(input)) return;
    const ZlibSwitchedOff off;
    c32bppDIB surface;
    cPNGparser().LoadStream(input, surface);
    checkSurface(surface);
}

inline void gif(Input input) {
    c32bppDIB surface;
    cGIFparser().LoadStream(input, surface);
    checkSurface(surface);
}

inline void bmp(Input input) {
    c32bppDIB surface;
    cBMPparser().LoadStream(input, surface);
    checkSurface(surface);
}

inline void ico(Input input) {
    if (input.size() < 2) return;
    c32bppDIB surface;
    // The wanted size and depth come from the first two bytes.
    cICOparser().LoadStream(input.subspan(2), input[0] % 65, input[0] % 65, surface, input[1] % 33);
    checkSurface(surface);
}

inline void huffman(Input input) {
    std::vector<std::uint8_t> out;
    c32bppDIB surface;
    const bool picture = !input.empty() && (input[0] & 1) != 0;
    cHuffman::DecodeByteArray(input, 1 % (input.size() + 1), picture ? &surface : nullptr, out);
    checkSurface(surface);
}

inline void inflate(Input input) {
    if (input.size() < 2) return;
    std::vector<std::uint8_t> out(std::size_t{input[0]} << 8 | input[1]);
    std::size_t written = 0;
    inflateStream(input.subspan(2), out, written);
    if (written > out.size()) __builtin_trap();
}

}  // namespace orvanta::fuzz
