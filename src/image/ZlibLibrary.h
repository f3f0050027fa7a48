#pragma once
// zlib found at run time through cCDECL: the names of this host in their order, a library counting
// only if it exports crc32. A process-wide switch makes every search fail, so that tests run each
// path as on a machine without zlib.

#include <cstdint>
#include <memory>
#include <span>
#include <vector>

#include "image/cCDECL.h"

namespace orvanta {

class ZlibLibrary {
public:
    // nullptr when no library of the host's names loads and exports crc32, or zlib is switched off.
    static std::unique_ptr<ZlibLibrary> find();
    static bool available() { return find() != nullptr; }
    static void setDisabled(bool disabled);
    static bool disabled();

    // 2 for the current library name, 1 for the older one (see zlibLibraryNames).
    int kind() const { return kind_; }
    bool hasCompress2() const { return hasCompress2_; }

    // crc32 with initial value `crc`.
    std::uint32_t crc32(std::uint32_t crc, std::span<const std::uint8_t> data);
    // zlib's uncompress into `out`; its return code (0 on success), `written` the bytes it filled.
    int uncompress(std::span<std::uint8_t> out, std::size_t& written, std::span<const std::uint8_t> in);
    // compress2 at `level` if exported, else compress. True with `out` holding the stream.
    bool compress(std::vector<std::uint8_t>& out, std::span<const std::uint8_t> in, int level);

private:
    ZlibLibrary() = default;
    cCDECL calls_;
    int kind_ = 0;
    bool hasCompress2_ = false;
};

// Switches zlib off for the lifetime of the object and back to what it was after.
class ZlibSwitchedOff {
public:
    ZlibSwitchedOff() : before_(ZlibLibrary::disabled()) { ZlibLibrary::setDisabled(true); }
    ~ZlibSwitchedOff() { ZlibLibrary::setDisabled(before_); }
    ZlibSwitchedOff(const ZlibSwitchedOff&) = delete;
    ZlibSwitchedOff& operator=(const ZlibSwitchedOff&) = delete;

private:
    bool before_;
};

}  // namespace orvanta
