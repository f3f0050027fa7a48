// Loading, clearing and the picture's bytes.
#include <QClipboard>
#include <QFile>
#include <QGuiApplication>
#include <QPixmap>
#include <algorithm>

#include "image/widget/QtSurface.h"
#include "image/widget/aicAlphaImage.h"

namespace orvanta {

std::int32_t aicAlphaImage::desiredSize(std::int32_t requested, std::int32_t controlSize) const {
    return requested < 1 ? controlSize : requested;
}

// The steps after every load: the control's mask and inverse settings reach the new pixels, the
// kept copies and the hit area are made anew, AutoSize acts, and the control repaints. A failed
// load leaves the control blank.
bool aicAlphaImage::afterLoad(bool loaded) {
    if (!loaded) {
        image_.DestroyDIB();
    } else {
        image_.setHighQualityInterpolation(StretchQuality());
        if (maskUsed_) image_.MakeTransparent(static_cast<std::uint32_t>(maskColor_), false);
        if (InversedImage()) image_.MakeImageInverse();
        if (AutoSize()) resize(image_.Width(), image_.Height());
    }
    buffer_.reset();
    imageChanged();
    return loaded;
}

bool aicAlphaImage::LoadImage_FromFile(const std::string& FileName, std::int32_t desiredIconWidth,
                                       std::int32_t desiredIconHeight, std::int32_t desiredIconBitDepth) {
    Host* host = cCrossComm::instance().host();
    if (host == nullptr) return afterLoad(false);
    return afterLoad(image_.LoadPicture_File(*host, FileName, desiredSize(desiredIconWidth, width()),
                                             desiredSize(desiredIconHeight, height()), KeepOriginalFormat(),
                                             desiredIconBitDepth < 1 ? 32 : desiredIconBitDepth));
}

bool aicAlphaImage::LoadImage_FromArray(const std::vector<std::uint8_t>& inStream,
                                        std::int32_t desiredIconWidth, std::int32_t desiredIconHeight,
                                        std::int32_t desiredIconBitDepth) {
    return afterLoad(image_.LoadPicture_Stream(
        inStream, desiredSize(desiredIconWidth, width()), desiredSize(desiredIconHeight, height()), 0, 0,
        KeepOriginalFormat(), desiredIconBitDepth < 1 ? 32 : desiredIconBitDepth));
}

bool aicAlphaImage::LoadImage_FromStdPicture(const QPixmap& stdPic) {
    return LoadImage_FromHandle(stdPic.toImage());
}

bool aicAlphaImage::LoadImage_FromHandle(const QImage& Handle) {
    return afterLoad(surfaceFromImage(Handle, image_));
}

bool aicAlphaImage::LoadImage_FromClipboard() {
    const QClipboard* clipboard = QGuiApplication::clipboard();
    return LoadImage_FromHandle(clipboard != nullptr ? clipboard->image() : QImage());
}

bool aicAlphaImage::LoadImage_FromResource(const QString& ResID, std::int32_t desiredIconWidth,
                                           std::int32_t desiredIconHeight, std::int32_t desiredIconBitDepth) {
    QFile resource(ResID);
    if (!resource.open(QIODevice::ReadOnly)) return afterLoad(false);
    const QByteArray bytes = resource.readAll();
    return LoadImage_FromArray({bytes.begin(), bytes.end()}, desiredIconWidth, desiredIconHeight,
                               desiredIconBitDepth);
}

bool aicAlphaImage::LoadImage_FromOrignalBytes(std::int32_t desiredIconWidth, std::int32_t desiredHeight,
                                               std::int32_t desiredIconBitDepth) {
    if (image_.originalBytes().empty()) return false;
    return afterLoad(image_.LoadPicture_FromOrignalFormat(
        desiredSize(desiredIconWidth, width()), desiredSize(desiredHeight, height()),
        desiredIconBitDepth < 1 ? 32 : desiredIconBitDepth));
}

void aicAlphaImage::ClearImage() {
    image_.DestroyDIB();
    buffer_.reset();
    imageChanged();
}

void aicAlphaImage::Refresh() {
    pictureChanged();
    repaint();
}

std::int32_t aicAlphaImage::ImageType() const {
    if (image_.Handle() == 0 || image_.ImageType() == kImageCheckerBoard) return 0;
    if (KeepOriginalFormat()) return image_.ImageType();
    // What the bytes of a saved control would be: PNG when a codec can write it, else a bitmap.
    if (image_.isGDIplusEnabled() || image_.isZlibEnabled()) return kImagePng;
    return image_.Alpha() ? kImageAlphaPremultiplied : kImageBitmap;
}

bool aicAlphaImage::saveFileForm(c32bppDIB& picture, std::vector<std::uint8_t>& bytes) const {
    return ImageType() == kImagePng ? picture.SaveToStream_PNG(bytes) : picture.SaveToStream(bytes);
}

bool aicAlphaImage::GetImageBytes(std::vector<std::uint8_t>& imgBytes, std::int32_t& scanWidth,
                                  bool asBGRformat, bool asBottomUp, bool asPreMultiplied,
                                  bool asFileFormat) {
    imgBytes.clear();
    scanWidth = 0;
    if (image_.Handle() == 0) return false;
    if (asFileFormat) {
        return image_.GetOrginalFormat(imgBytes) || saveFileForm(image_, imgBytes);
    }
    if (!image_.GetDIBbits(imgBytes, true, true, asBottomUp, asPreMultiplied)) return false;
    if (!asBGRformat)
        for (std::size_t at = 0; at + 3 < imgBytes.size(); at += 4) std::swap(imgBytes[at], imgBytes[at + 2]);
    scanWidth = image_.scanWidth();
    return true;
}

bool aicAlphaImage::SetImageBytes(const std::vector<std::uint8_t>& imgBytes, std::int32_t Width,
                                  std::int32_t Height, bool isBGRformat, bool isBottomUp,
                                  bool asPreMultiplied) {
    const std::size_t needed =
        static_cast<std::size_t>(std::max(Width, 0)) * 4 * static_cast<std::size_t>(std::max(Height, 0));
    if (Width < 1 || Height < 1 || imgBytes.size() < needed) return false;
    std::vector<std::uint8_t> pixels(imgBytes.begin(),
                                     imgBytes.begin() + static_cast<std::ptrdiff_t>(needed));
    if (!isBGRformat)
        for (std::size_t at = 0; at + 3 < pixels.size(); at += 4) std::swap(pixels[at], pixels[at + 2]);
    if (!image_.InitializeDIB(Width, Height)) return afterLoad(false);
    return afterLoad(image_.SetDIBbits(pixels, true, true, isBottomUp, asPreMultiplied));
}

}  // namespace orvanta
