#include "image/ZlibLibrary.h"

#include <algorithm>
#include <atomic>

#include "platform/SharedLibrary.h"

namespace orvanta {

namespace {

std::atomic<bool> gDisabled{false};

// zlib counts lengths in 32 bits; longer data goes in pieces.
constexpr std::size_t kLargestPiece = 1u << 30;

}  // namespace

void ZlibLibrary::setDisabled(bool disabled) {
    gDisabled = disabled;
}

bool ZlibLibrary::disabled() {
    return gDisabled;
}

std::unique_ptr<ZlibLibrary> ZlibLibrary::find() {
    if (gDisabled) return nullptr;
    for (const LibraryName& candidate : zlibLibraryNames()) {
        std::unique_ptr<ZlibLibrary> zlib(new ZlibLibrary());
        if (!zlib->calls_.DllLoad(candidate.name) || !zlib->calls_.hasFunction("crc32")) continue;
        zlib->kind_ = candidate.kind;
        zlib->hasCompress2_ = zlib->calls_.hasFunction("compress2");
        return zlib;
    }
    return nullptr;
}

std::uint32_t ZlibLibrary::crc32(std::uint32_t crc, std::span<const std::uint8_t> data) {
    do {
        const std::size_t piece = std::min(data.size(), kLargestPiece);
        crc = static_cast<std::uint32_t>(calls_.CallFunc("crc32", crc, data.data(), piece));
        data = data.subspan(piece);
    } while (!data.empty());
    return crc;
}

int ZlibLibrary::uncompress(std::span<std::uint8_t> out, std::size_t& written,
                            std::span<const std::uint8_t> in) {
    written = 0;
    if (out.size() > 0xFFFFFFFFu || in.size() > 0xFFFFFFFFu) return -1;
    // zlib's uLongf is the C type unsigned long on every host.
    unsigned long size = static_cast<unsigned long>(out.size());
    try {
        const int result = calls_.CallFunc("uncompress", out.data(), &size, in.data(), in.size());
        written = std::min<std::size_t>(size, out.size());
        return result;
    } catch (const CdeclError&) {
        return -1;
    }
}

bool ZlibLibrary::compress(std::vector<std::uint8_t>& out, std::span<const std::uint8_t> in, int level) {
    out.clear();
    if (in.size() > 0x7FFFFFFFu) return false;
    // zlib's own bound for one call.
    const std::size_t bound = in.size() + (in.size() >> 12) + (in.size() >> 14) + (in.size() >> 25) + 13;
    out.resize(bound);
    unsigned long size = static_cast<unsigned long>(bound);
    try {
        const int result = hasCompress2_
                               ? calls_.CallFunc("compress2", out.data(), &size, in.data(), in.size(), level)
                               : calls_.CallFunc("compress", out.data(), &size, in.data(), in.size());
        if (result != 0) {
            out.clear();
            return false;
        }
    } catch (const CdeclError&) {
        out.clear();
        return false;
    }
    out.resize(size);
    return true;
}

}  // namespace orvanta
