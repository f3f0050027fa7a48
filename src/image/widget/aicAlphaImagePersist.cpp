// The control's settings in a keyed store; a value equal to its default is not written.
#include "image/widget/aicAlphaImage.h"

namespace orvanta {

namespace {

constexpr std::uint32_t kDefaultProperties = kStretchQualityBit;

void writeUnlessDefault(PropertyBag& bag, const char* key, int value, int defaultValue) {
    if (value != defaultValue) bag.WriteProperty(key, value);
}

}  // namespace

void aicAlphaImage::WriteProperties(PropertyBag& bag) {
    std::vector<std::uint8_t> bytes;
    if (!image_.GetOrginalFormat(bytes) && image_.Handle() != 0) {
        // The pixels as loaded: the inverse is applied again when they are read back.
        c32bppDIB plain;
        image_.CopyImageTo(plain);
        if (InversedImage()) plain.MakeImageInverse();
        saveFileForm(plain, bytes);
    }
    if (!bytes.empty()) bag.WriteProperty("Image", bytes);
    writeUnlessDefault(bag, "Scaler", scaleMethod_, kScaleToFit);
    writeUnlessDefault(bag, "Opacity", opacity_, 100);
    writeUnlessDefault(bag, "Mirror", mirror_, 0);
    writeUnlessDefault(bag, "Angle", angle_, 0);
    writeUnlessDefault(bag, "GrayScale", grayScale_, -1);
    writeUnlessDefault(bag, "HitTest", hitTestStyle_, kHitControl);
    writeUnlessDefault(bag, "Props", static_cast<int>(properties_ & ~kRegionBuildingBit), kDefaultProperties);
    if (maskUsed_) bag.WriteProperty("MaskUsed", true);
    bag.WriteProperty("MaskColor", maskColor_);
    writeUnlessDefault(bag, "MaskSource", maskSource_, 0);
    // Only a colour mask exists here, so its data is the colour once more.
    if (maskUsed_) bag.WriteProperty("Mask", maskColor_);
    if (!isEnabled()) bag.WriteProperty("Enabled", false);
    if (!mouseIcon_.empty()) bag.WriteProperty("MIcon", mouseIcon_);
    writeUnlessDefault(bag, "MPointer", mousePointer_, 0);
    writeUnlessDefault(bag, "OLEdrop", oleDropMode_, 0);
    if (scaleMethod_ == kScaleCustom) {
        bag.WriteProperty("ScaleCx", custom_.width);
        bag.WriteProperty("ScaleCy", custom_.height);
    }
    bag.WriteProperty("ShadowColor", shadowColor_);
    writeUnlessDefault(bag, "ShadowDepth", shadowDepth_, 2);
    writeUnlessDefault(bag, "ShadowX", shadowX_, 2);
    writeUnlessDefault(bag, "ShadowY", shadowY_, 2);
    writeUnlessDefault(bag, "ShadowOpacity", shadowOpacity_, 50);
    if (intensity_ != 0) bag.WriteProperty("Intensity", intensity_);
}

// Read in the order written; values pass the setters' limits, so a damaged store cannot put the
// control into a state its setters would refuse.
void aicAlphaImage::ReadProperties(PropertyBag& bag) {
    const std::vector<std::uint8_t> bytes = bag.ReadProperty("Image", std::vector<std::uint8_t>{});
    setScaleMethod(bag.ReadProperty("Scaler", kScaleToFit));
    setOpacity(bag.ReadProperty("Opacity", 100));
    setMirror(bag.ReadProperty("Mirror", 0));
    setRotation(bag.ReadProperty("Angle", 0));
    setgrayScale(bag.ReadProperty("GrayScale", -1) + 1);
    setHitTest(bag.ReadProperty("HitTest", kHitControl));
    const auto bits =
        static_cast<std::uint32_t>(bag.ReadProperty("Props", static_cast<int>(kDefaultProperties)));
    setStretchQuality((bits & kStretchQualityBit) != 0);
    setAutoSize((bits & kAutoSizeBit) != 0);
    setAutoRedraw((bits & kAutoRedrawBit) != 0);
    setKeepOriginalFormat((bits & kKeepOriginalFormatBit) != 0);
    setShadowEnabled((bits & kShadowEnabledBit) != 0);
    setRotateEnabled((bits & kRotateEnabledBit) != 0);
    const bool inversed = (bits & kInversedImageBit) != 0;
    const bool maskUsed = bag.ReadProperty("MaskUsed", false);
    maskColor_ = bag.ReadProperty("MaskColor", maskColor_);
    maskSource_ = bag.ReadProperty("MaskSource", 0);
    if (maskUsed) bag.ReadProperty("Mask", maskColor_);
    setEnabled(bag.ReadProperty("Enabled", true));
    setMouseIcon(bag.ReadProperty("MIcon", std::vector<std::uint8_t>{}));
    setMousePointer(bag.ReadProperty("MPointer", 0));
    setOLEDropMode(bag.ReadProperty("OLEdrop", 0));
    if (scaleMethod_ == kScaleCustom)
        custom_ = {bag.ReadProperty("ScaleCx", 0), bag.ReadProperty("ScaleCy", 0)};
    setShadowColor(bag.ReadProperty("ShadowColor", shadowColor_));
    setShadowDepth(bag.ReadProperty("ShadowDepth", 2));
    setShadowOffsetX(bag.ReadProperty("ShadowX", 2));
    setShadowOffsetY(bag.ReadProperty("ShadowY", 2));
    setShadowOpacity(bag.ReadProperty("ShadowOpacity", 50));
    setIntensityOffset(bag.ReadProperty("Intensity", 0.0f));
    // The mask and inverse settings reach the pixels as the picture loads.
    maskUsed_ = maskUsed;
    properties_ = inversed ? (properties_ | kInversedImageBit) : (properties_ & ~kInversedImageBit);
    if (!bytes.empty())
        LoadImage_FromArray(bytes);
    else
        ClearImage();
}

}  // namespace orvanta
