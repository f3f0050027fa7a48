#pragma once
// The platform's picture decoder, for the formats the image engine does not read itself: GDI+ on
// Windows (JPEG, TIFF and what else it knows), libjpeg-turbo elsewhere (JPEG only). The engine asks
// it only after its own readers declined.

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <vector>

namespace orvanta {

struct SystemImage {
    std::int32_t width = 0;
    std::int32_t height = 0;
    // width * height * 4 bytes: blue, green, red, alpha; rows bottom-up, no padding; colours straight
    // (not premultiplied). A JPEG is opaque throughout.
    std::vector<std::uint8_t> pixels;
};

class SystemImageCodec {
public:
    virtual ~SystemImageCodec() = default;
    // The library behind the codec; empty when this build has none.
    virtual std::string name() const = 0;
    // True if `bytes` held a picture this codec reads and `image` now holds it. Pictures beyond the
    // surface's bound (width * 32 * height above 2^31 - 1) are refused before any allocation.
    virtual bool decode(std::span<const std::uint8_t> bytes, SystemImage& image) = 0;
};

std::unique_ptr<SystemImageCodec> createSystemImageCodec();

// The surface's bound, for the codecs that cannot see the image engine.
inline bool systemImageFits(std::uint64_t width, std::uint64_t height) {
    return width > 0 && height > 0 && width <= 0x7FFFFFFF / 32 && width * 32 * height <= 0x7FFFFFFF;
}

}  // namespace orvanta
