#include "image/widget/aicAlphaImage.h"

#include <cstdlib>

namespace orvanta {

aicAlphaImage::aicAlphaImage(QWidget* parent) : QWidget(parent) {
    // Windowless-looking: what lies behind shows through the transparent parts of the picture.
    setAutoFillBackground(false);
    setMouseTracking(true);
    fadeTimer_.setSingleShot(true);
    connect(&fadeTimer_, &QTimer::timeout, this, &aicAlphaImage::fadeTick);
    mouseWatch_.setSingleShot(true);
    connect(&mouseWatch_, &QTimer::timeout, this, &aicAlphaImage::mouseWatchTick);
    cCrossComm::instance().AddRef();
    image_.setGdiToken(cCrossComm::instance().gdiToken());
    image_.setHighQualityInterpolation(true);
}

aicAlphaImage::~aicAlphaImage() {
    fadeTimer_.stop();
    mouseWatch_.stop();
    cCrossComm::instance().forget(this);
    cCrossComm::instance().RemoveRef();
}

void aicAlphaImage::changed(const char* name) {
    emit PropertyChanged(QString::fromLatin1(name));
}

// Any change of how the picture is drawn: the auto-redraw buffer is stale.
void aicAlphaImage::pictureChanged() {
    bufferCurrent_ = false;
    update();
}

// The picture's pixels changed: every copy made from them is stale too.
void aicAlphaImage::imageChanged() {
    ++imageGeneration_;
    scaled_.reset();
    shadow_.reset();
    shadowKey_.clear();
    hitKey_.clear();
    pictureChanged();
}

void aicAlphaImage::setBit(std::uint32_t mask, bool value, const char* name) {
    if (bit(mask) == value) return;
    properties_ = value ? (properties_ | mask) : (properties_ & ~mask);
    changed(name);
    pictureChanged();
}

void aicAlphaImage::setAutoRedraw(bool value) {
    if (!value) buffer_.reset();
    setBit(kAutoRedrawBit, value, "AutoRedraw");
}

void aicAlphaImage::setHitTest(std::int32_t value) {
    if (value < kHitControl || value > kHitShape || value == hitTestStyle_) return;
    hitTestStyle_ = value;
    hitKey_.clear();
    changed("HitTest");
}

void aicAlphaImage::setMaskColor(std::int32_t value) {
    if (value == maskColor_) return;
    // A mask in use follows its colour: the old colour comes back, the new one goes.
    if (maskUsed_ && image_.Handle() != 0)
        image_.MakeTransparent(static_cast<std::uint32_t>(maskColor_), true);
    maskColor_ = value;
    if (maskUsed_ && image_.Handle() != 0)
        image_.MakeTransparent(static_cast<std::uint32_t>(maskColor_), false);
    changed("MaskColor");
    if (maskUsed_) imageChanged();
}

void aicAlphaImage::setMaskUsed(bool value) {
    if (value == maskUsed_) return;
    maskUsed_ = value;
    if (image_.Handle() != 0) image_.MakeTransparent(static_cast<std::uint32_t>(maskColor_), !value);
    changed("MaskUsed");
    imageChanged();
}

void aicAlphaImage::setInversedImage(bool value) {
    if (value == InversedImage()) return;
    if (image_.Handle() != 0) image_.MakeImageInverse();
    setBit(kInversedImageBit, value, "InversedImage");
    imageChanged();
}

void aicAlphaImage::setAutoSize(bool value) {
    setBit(kAutoSizeBit, value, "AutoSize");
    if (value && image_.Handle() != 0) resize(image_.Width(), image_.Height());
}

void aicAlphaImage::setScaleMethod(std::int32_t value) {
    if (value >= kScaleToFit && value <= kScaleCustom) redrawOnChange(scaleMethod_, value, "Stretch");
}

void aicAlphaImage::setStretchQuality(bool value) {
    image_.setHighQualityInterpolation(value);
    if (value != StretchQuality()) scaled_.reset();
    setBit(kStretchQualityBit, value, "StretchQuality");
}

void aicAlphaImage::setOpacity(std::int32_t value) {
    std::int64_t opacity = 0;
    if (value != 0) {
        opacity = std::llabs(std::int64_t{value}) % 100;
        if (opacity == 0) opacity = 100;
    }
    redrawOnChange(opacity_, static_cast<std::int32_t>(opacity), "Opacity");
}

void aicAlphaImage::setMirror(std::int32_t value) {
    if (value >= 0 && value <= 3) redrawOnChange(mirror_, value, "Mirror");
}

void aicAlphaImage::setKeepOriginalFormat(bool value) {
    setBit(kKeepOriginalFormatBit, value, "KeepOriginalFormat");
}

void aicAlphaImage::setgrayScale(std::int32_t value) {
    if (value >= 0 && value <= 8) redrawOnChange(grayScale_, value - 1, "GrayScale");
}

void aicAlphaImage::setRotateEnabled(bool value) {
    setBit(kRotateEnabledBit, value, "RotateEnabled");
}

void aicAlphaImage::setRotation(std::int32_t value) {
    redrawOnChange(angle_, (value % 360 + 360) % 360, "Rotation");
}

void aicAlphaImage::setEnabled(bool value) {
    if (value == isEnabled()) return;
    QWidget::setEnabled(value);
    changed("Enabled");
}

void aicAlphaImage::setShadowEnabled(bool value) {
    setBit(kShadowEnabledBit, value, "ShadowEnabled");
}

void aicAlphaImage::setShadowColor(std::int32_t value) {
    redrawOnChange(shadowColor_, value, "ShadowColor");
}

void aicAlphaImage::setShadowOffsetX(std::int32_t value) {
    redrawOnChange(shadowX_, value, "ShadowOffsetX");
}

void aicAlphaImage::setShadowOffsetY(std::int32_t value) {
    redrawOnChange(shadowY_, value, "ShadowOffsetY");
}

void aicAlphaImage::setShadowDepth(std::int32_t value) {
    if (value >= 0 && value <= 10) redrawOnChange(shadowDepth_, value, "ShadowDepth");
}

void aicAlphaImage::setShadowOpacity(std::int32_t value) {
    if (value >= 0 && value <= 100) redrawOnChange(shadowOpacity_, value, "ShadowOpacity");
}

void aicAlphaImage::setMousePointer(std::int32_t value) {
    if (value == mousePointer_) return;
    mousePointer_ = value;
    changed("MousePointer");
    applyPointer();
}

void aicAlphaImage::setMouseIcon(const std::vector<std::uint8_t>& value) {
    if (value == mouseIcon_) return;
    mouseIcon_ = value;
    changed("MouseIcon");
    applyPointer();
}

void aicAlphaImage::setOLEDropMode(std::int32_t value) {
    if (value == oleDropMode_) return;
    oleDropMode_ = value;
    setAcceptDrops(value == 1);
    changed("OLEDropMode");
}

void aicAlphaImage::setIntensityOffset(float value) {
    if (value >= -100 && value <= 100) redrawOnChange(intensity_, value, "Intensity");
}

void aicAlphaImage::OffsetShadow(std::int32_t ShadowX, std::int32_t ShadowY, bool SetOffsets) {
    if (!SetOffsets) return;
    setShadowOffsetX(ShadowX);
    setShadowOffsetY(ShadowY);
}

void aicAlphaImage::OffsetImage(std::int32_t x, std::int32_t y) {
    if (offset_ == QPoint(x, y)) return;
    offset_ = QPoint(x, y);
    hitKey_.clear();
    pictureChanged();
}

}  // namespace orvanta
