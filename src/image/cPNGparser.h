#pragma once
// Reads a PNG into a surface: walks the chunks (IHDR, PLTE, tRNS, IDAT, IEND; every other chunk is
// skipped), unpacks the data with zlib's uncompress when zlib is there and with the own inflate when
// it is not or failed, undoes the filters pass by pass and stores premultiplied pixels.

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "image/PngLayout.h"
#include "image/PngPixels.h"
#include "image/c32bppDIB.h"

namespace orvanta {

class ZlibLibrary;

class cPNGparser {
public:
    // True if the run is a PNG, whether or not the picture could be loaded: once the signature
    // matched no other reader is asked. The surface holds the picture, or is empty.
    bool LoadStream(std::span<const std::uint8_t> bytes, c32bppDIB& surface);
    // Why the last PNG could not be loaded, in words for the user; empty after a good load.
    const std::string& Failure() const { return failure_; }

private:
    bool load(std::span<const std::uint8_t> bytes, c32bppDIB& surface);
    // Notes why the load failed; false, for the caller to return.
    bool fail(std::string why);
    bool walkChunks(std::span<const std::uint8_t> bytes, ZlibLibrary* zlib);
    bool readHeader(std::span<const std::uint8_t> data);
    bool readPalette(std::span<const std::uint8_t> data);
    void readTransparency(std::span<const std::uint8_t> data);
    bool unpack(ZlibLibrary* zlib, std::vector<std::uint8_t>& unpacked);
    void makePalette();
    bool decode(std::vector<std::uint8_t>& unpacked, c32bppDIB& surface);

    PngHeader header_;
    bool haveHeader_ = false;
    std::vector<std::uint8_t> palette_;
    std::vector<std::uint8_t> transparency_;
    bool haveTransparency_ = false;
    PngColours colours_;
    std::vector<std::uint8_t> compressed_;
    std::uint64_t unpackedSize_ = 0;
    std::string failure_;
};

}  // namespace orvanta
