#pragma once
// The crossing between the engine's surface and Qt's image: the same premultiplied BGRA bytes,
// rows bottom-up on one side and top-down on the other.

#include <QImage>

#include "image/c32bppDIB.h"

namespace orvanta {

QImage imageFromSurface(const c32bppDIB& surface);
// False, and the surface left as it was, for a null image.
bool surfaceFromImage(const QImage& image, c32bppDIB& surface);

}  // namespace orvanta
