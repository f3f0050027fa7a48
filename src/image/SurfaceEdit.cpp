#include <cstring>

#include "image/RenderPixels.h"
#include "image/c32bppDIB.h"

namespace orvanta {

namespace {

// 0x00BBGGRR as an opaque pixel in the surface's byte order.
void opaquePixel(std::uint32_t color, std::uint8_t* pixel) {
    pixel[0] = static_cast<std::uint8_t>(color >> 16);
    pixel[1] = static_cast<std::uint8_t>(color >> 8);
    pixel[2] = static_cast<std::uint8_t>(color);
    pixel[3] = 255;
}

}  // namespace

bool c32bppDIB::MakeImageInverse() {
    if (pixels_.empty()) return false;
    for (std::size_t at = 0; at < pixels_.size(); at += 4) {
        const std::uint8_t a = pixels_[at + 3];
        if (a == 0) continue;
        for (std::size_t c = 0; c < 3; ++c) pixels_[at + c] = static_cast<std::uint8_t>(a - pixels_[at + c]);
    }
    return true;
}

bool c32bppDIB::MakeTransparent(std::uint32_t transparentColor, bool revert) {
    if (pixels_.empty()) return false;
    std::uint8_t word[4];
    opaquePixel(transparentColor, word);
    static constexpr std::uint8_t kZero[4] = {0, 0, 0, 0};
    const std::uint8_t* match = revert ? kZero : word;
    const std::uint8_t* replacement = revert ? word : kZero;
    bool changed = false;
    for (std::size_t at = 0; at < pixels_.size(); at += 4) {
        if (std::memcmp(&pixels_[at], match, 4) != 0) continue;
        std::memcpy(&pixels_[at], replacement, 4);
        changed = true;
    }
    if (!revert) {
        if (changed) alpha_ = true;
        if (changed && imageType_ == kImageBitmap) imageType_ = kImageAlphaPremultiplied;
        return true;
    }
    std::int32_t checkedType = imageType_;
    alpha_ = validateAlpha(pixels_, false, checkedType);
    if (!alpha_ && (imageType_ == kImageAlphaStraight || imageType_ == kImageAlphaPremultiplied))
        imageType_ = kImageBitmap;
    return true;
}

bool c32bppDIB::CreateCheckerBoard(std::int32_t checkerSize, std::uint32_t firstColor,
                                   std::uint32_t secondColor) {
    if (pixels_.empty() || checkerSize < 1) return false;
    std::uint8_t colours[2][4];
    opaquePixel(firstColor, colours[0]);
    opaquePixel(secondColor, colours[1]);
    const PixelView view{pixels_.data(), width_, height_};
    // Squares start at the top-left; each row of squares starts with the other colour.
    for (std::int32_t y = 0; y < height_; ++y) {
        std::uint8_t* row = pixels_.data() + pixelOffset(view, 0, y);
        for (std::int32_t x = 0; x < width_; ++x)
            std::memcpy(row + static_cast<std::size_t>(x) * 4,
                        colours[(x / checkerSize + y / checkerSize) % 2], 4);
    }
    alpha_ = false;
    imageType_ = kImageCheckerBoard;
    return true;
}

bool c32bppDIB::MirrorImage(bool mirrorAxisX, bool mirrorAxisY) {
    if (pixels_.empty() || (!mirrorAxisX && !mirrorAxisY)) return false;
    PixelBlock mirrored;
    if (!mirrorPixels({pixels_.data(), width_, height_}, {0, 0, width_, height_}, mirrorAxisX ? -1 : 1,
                      mirrorAxisY ? -1 : 1, mirrored))
        return false;
    pixels_.swap(mirrored.pixels);
    return true;
}

void c32bppDIB::CopyImageTo(c32bppDIB& target, std::int32_t newWidth, std::int32_t newHeight,
                            bool copyOriginalFormat) const {
    if (&target == this || pixels_.empty()) return;
    const std::int64_t width = newWidth == 0 ? width_ : newWidth,
                       height = newHeight == 0 ? height_ : newHeight;
    if (target.Handle() == 0) {
        target.setGdiToken(gdiToken_);
        target.setGDIplusEnabled(isGDIplusEnabled());
        target.setHighQualityInterpolation(highQualityInterpolation_);
    }
    const std::int64_t absWidth = width < 0 ? -width : width, absHeight = height < 0 ? -height : height;
    if (absWidth > INT32_MAX || absHeight > INT32_MAX) return;
    if (target.Width() != absWidth || target.Height() != absHeight || target.Handle() == 0) {
        if (!target.InitializeDIB(static_cast<std::int32_t>(absWidth), static_cast<std::int32_t>(absHeight)))
            return;
    }
    if (width == width_ && height == height_) {
        std::memcpy(target.BitsPointer(), pixels_.data(), pixels_.size());
    } else {
        // Onto zeros, the blend at full strength leaves exactly the mirrored or scaled pixels.
        target.EraseDIB();
        Render(nullptr, 0, 0, static_cast<std::int32_t>(width), static_cast<std::int32_t>(height), 0, 0, 0, 0,
               100, true, true, &target);
    }
    target.setAlpha(alpha_);
    target.setImageType(imageType_);
    // Bytes of the target's former picture must not outlive it: they would reload another image.
    target.setOriginalBytes(copyOriginalFormat ? originalBytes_ : std::vector<std::uint8_t>{});
}

}  // namespace orvanta
