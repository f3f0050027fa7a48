#include "image/widget/QtSurface.h"

#include <cstring>

namespace orvanta {

QImage imageFromSurface(const c32bppDIB& surface) {
    if (surface.Handle() == 0) return {};
    QImage image(surface.Width(), surface.Height(), QImage::Format_ARGB32_Premultiplied);
    const auto rowBytes = static_cast<std::size_t>(surface.scanWidth());
    for (int row = 0; row < surface.Height(); ++row)
        std::memcpy(image.scanLine(row),
                    surface.BitsPointer() + static_cast<std::size_t>(surface.Height() - 1 - row) * rowBytes,
                    rowBytes);
    return image;
}

bool surfaceFromImage(const QImage& image, c32bppDIB& surface) {
    if (image.isNull()) return false;
    const QImage pixels = image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    if (!surface.InitializeDIB(pixels.width(), pixels.height())) return false;
    const auto rowBytes = static_cast<std::size_t>(surface.scanWidth());
    for (int row = 0; row < pixels.height(); ++row)
        std::memcpy(surface.BitsPointer() + static_cast<std::size_t>(pixels.height() - 1 - row) * rowBytes,
                    pixels.constScanLine(row), rowBytes);
    std::int32_t type = kImageAlphaPremultiplied;
    surface.setAlpha(validateAlpha(
        {surface.BitsPointer(), rowBytes * static_cast<std::size_t>(pixels.height())}, false, type));
    surface.setImageType(type);
    return true;
}

}  // namespace orvanta
