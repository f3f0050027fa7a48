#pragma once
// A plain static Huffman coder for bytes, or for the pixels of a surface, with a container of its
// own: 0x0D, a version ("0" stored, "3" Huffman), "EH", the byte count, the picture's width and
// height when it holds a picture, then the stored bytes or the coded size, the code table, the codes
// and the coded data (bits low first).

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "image/c32bppDIB.h"

namespace orvanta {

class cHuffman {
public:
    // Packs the pixels of `surface` if it holds an image, otherwise `bytes`. Input that does not
    // shrink (a single byte value, noise) is written in the stored form. False only for input of
    // 4 GB or more.
    static bool EncodeByteArray(const c32bppDIB* surface, std::span<const std::uint8_t> bytes,
                                std::vector<std::uint8_t>& receiver);
    // Unpacks the container that begins at `start`. With a surface the container must hold a
    // picture, which then stands in the surface; the bytes also go to `receiver`. False, with
    // nothing received, for anything but a valid container.
    static bool DecodeByteArray(std::span<const std::uint8_t> container, std::size_t start,
                                c32bppDIB* surface, std::vector<std::uint8_t>& receiver);
};

}  // namespace orvanta
