#include "image/c32bppDIB.h"

#include <cstring>

namespace orvanta {

namespace {

// The flags a system of these version words gives; the consumer family never runs this code, so
// only the NT rows apply: above major 4 the platform can alpha-blend.
std::uint32_t capabilitiesFor(VersionWords system) {
    if (system.major > 4) return kCanAlphaBlendFriendly | kCanAlphaBlend;
    if (system.major == 4) return kTooOldForSystemCodec;
    return 0;
}

}  // namespace

c32bppDIB::c32bppDIB(VersionWords system) : capabilities_(capabilitiesFor(system)) {
    setGDIplusEnabled(true);
    if (isGDIplusEnabled()) highQualityInterpolation_ = true;
}

c32bppDIB::~c32bppDIB() {
    DestroyDIB();
}

void c32bppDIB::setAlphaBlendFriendly(bool value) {
    // Only a system that can blend at all may use the platform's blend.
    if (value && (capabilities_ & kCanAlphaBlend) == 0) return;
    capabilities_ =
        value ? (capabilities_ | kCanAlphaBlendFriendly) : (capabilities_ & ~kCanAlphaBlendFriendly);
}

void c32bppDIB::setGDIplusEnabled(bool value) {
    if (value && (capabilities_ & kTooOldForSystemCodec) != 0) return;
    capabilities_ = value ? (capabilities_ | kSystemCodecInUse) : (capabilities_ & ~kSystemCodecInUse);
}

bool c32bppDIB::InitializeDIB(std::int32_t width, std::int32_t height) {
    DestroyDIB();
    if (width < 0 || height == 0) return false;
    if (height < 0) height = -height;
    const std::uint64_t bytes = static_cast<std::uint64_t>(width) * static_cast<std::uint64_t>(height) * 4;
    // The PNG reader's bound: width * 32 * height must not pass 2^31.
    if (width == 0 || bytes * 8 > 0x80000000u) return false;
    pixels_.assign(static_cast<std::size_t>(bytes), 0);
    width_ = width;
    height_ = height;
    alpha_ = true;
    imageType_ = kImageBuilt;
    return true;
}

void c32bppDIB::DestroyDIB() {
    std::vector<std::uint8_t>().swap(pixels_);
    std::vector<std::uint8_t>().swap(originalBytes_);
    width_ = 0;
    height_ = 0;
    alpha_ = false;
    imageType_ = kImageNone;
}

void c32bppDIB::EraseDIB() {
    std::memset(pixels_.data(), 0, pixels_.size());
    alpha_ = true;
    imageType_ = kImageBuilt;
}

std::int32_t c32bppDIB::GetPixel(std::int32_t x, std::int32_t y, std::uint8_t* alphaValue,
                                 bool premultiplied) const {
    if (alphaValue != nullptr) *alphaValue = 0;
    if (pixels_.empty() || x < 0 || y < 0 || x >= width_ || y >= height_) return -1;
    const std::size_t at = (static_cast<std::size_t>(height_ - y - 1) * static_cast<std::size_t>(width_) +
                            static_cast<std::size_t>(x)) *
                           4;
    std::uint32_t blue = pixels_[at], green = pixels_[at + 1], red = pixels_[at + 2];
    const std::uint32_t alpha = pixels_[at + 3];
    if (!premultiplied && alpha != 0 && alpha != 255) {
        blue = blue * 255 / alpha;
        green = green * 255 / alpha;
        red = red * 255 / alpha;
    }
    if (alphaValue != nullptr) *alphaValue = static_cast<std::uint8_t>(alpha);
    return static_cast<std::int32_t>(red | green << 8 | blue << 16);
}

bool validateAlpha(std::span<std::uint8_t> pixels, bool premultiply, std::int32_t& imageType) {
    if (imageType == kImageNone) return false;
    int state = 0;
    std::size_t transparent = 0, opaque = 0;
    const std::size_t count = pixels.size() / 4;
    for (std::size_t i = 0; i < count && state != 2; ++i) {
        const std::uint8_t* p = &pixels[i * 4];
        const std::uint8_t a = p[3];
        if (a == 0) {
            ++transparent;
            // Colour under a transparent pixel: the data cannot be premultiplied.
            if (state == 0 && (p[0] | p[1] | p[2]) != 0) state = 1;
        } else if (a == 255) {
            if (state == 1)
                state = 2;
            else
                ++opaque;
        } else if (state == 1 || p[0] > a || p[1] > a || p[2] > a) {
            state = 2;
        }
    }
    const bool noAlpha = state != 2 && (transparent == count || opaque == count);
    if (noAlpha) {
        imageType = kImageBitmap;
        if (premultiply)
            for (std::size_t i = 0; i < count; ++i) pixels[i * 4 + 3] = 255;
        return false;
    }
    if (state != 0) {
        imageType = kImageAlphaStraight;
        if (premultiply) {
            for (std::size_t i = 0; i < count; ++i) {
                std::uint8_t* p = &pixels[i * 4];
                const std::uint32_t a = p[3];
                if (a == 0) {
                    p[0] = p[1] = p[2] = 0;
                } else if (a < 255) {
                    for (int c = 0; c < 3; ++c) p[c] = static_cast<std::uint8_t>(p[c] * a / 255);
                }
            }
        }
        return true;
    }
    imageType = kImageAlphaPremultiplied;
    return true;
}

bool ImageRegion::contains(std::int32_t x, std::int32_t y) const {
    for (const auto& r : rectangles)
        if (x >= r.left && x < r.right && y >= r.top && y < r.bottom) return true;
    return false;
}

}  // namespace orvanta
