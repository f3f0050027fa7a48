// Painting: the picture goes through the engine's Render into a surface of the control's size,
// which is the auto-redraw buffer when AutoRedraw is on; Qt only copies that surface out.
#include <QPaintEvent>
#include <QPainter>

#include "image/widget/QtSurface.h"
#include "image/widget/aicAlphaImage.h"

namespace orvanta {

namespace {

// A shadow small enough to blur at each paint is not kept.
constexpr std::int32_t kJustInTimeShadowSide = 128;

}  // namespace

ScaleSize aicAlphaImage::GetImageScales(std::int32_t method, std::int32_t desiredWidth,
                                        std::int32_t desiredHeight, bool asRotatedImage) const {
    const ScaleSize target{desiredWidth < 1 ? width() : desiredWidth,
                           desiredHeight < 1 ? height() : desiredHeight};
    return orvanta::GetImageScales({image_.Width(), image_.Height()}, method < 0 ? scaleMethod_ : method,
                                   target, custom_, asRotatedImage);
}

// A turned picture stands at the centre of the control, any other at the offset of OffsetImage.
QPoint aicAlphaImage::picturePlace() const {
    if (rotated()) return QPoint(width() / 2, height() / 2) + offset_;
    return offset_;
}

// The picture at the drawn size: the image itself, or, when scaling would be repeated at each
// paint (no auto-redraw buffer keeps the result), a scaled copy remade only when the size changes.
const c32bppDIB& aicAlphaImage::sourceAt(ScaleSize scale) {
    if (scale.width == image_.Width() && scale.height == image_.Height()) {
        scaled_.reset();
        return image_;
    }
    if (AutoRedraw()) return image_;
    if (!scaled_ || scaled_->Width() != scale.width || scaled_->Height() != scale.height) {
        auto copy = std::make_unique<c32bppDIB>();
        copy->setGdiToken(cCrossComm::instance().gdiToken());
        copy->setManageOwnDC(true);
        image_.CopyImageTo(*copy, scale.width, scale.height);
        if (copy->Handle() == 0) return image_;
        scaled_ = std::move(copy);
    }
    return *scaled_;
}

void aicAlphaImage::drawShadow(const c32bppDIB& source, ScaleSize scale, QPoint place, c32bppDIB& target) {
    const QPoint at = place + QPoint(shadowX_, shadowY_);
    const auto color = static_cast<std::uint32_t>(shadowColor_);
    const bool drawnAtOwnSize =
        &source != &image_ || (scale.width == image_.Width() && scale.height == image_.Height());
    if (image_.Width() <= kJustInTimeShadowSide && image_.Height() <= kJustInTimeShadowSide && !rotated() &&
        !scaled_ && drawnAtOwnSize) {
        source.RenderDropShadow_JIT(nullptr, at.x(), at.y(), shadowDepth_, color, shadowOpacity_, &target);
        return;
    }
    const std::vector<std::int64_t> key{static_cast<std::int64_t>(imageGeneration_), scale.width,
                                        scale.height, shadowDepth_, shadowColor_};
    if (!shadow_ || shadowKey_ != key) {
        c32bppDIB scaledCopy;
        const c32bppDIB* from = &source;
        if (!drawnAtOwnSize) {
            image_.CopyImageTo(scaledCopy, scale.width, scale.height);
            from = &scaledCopy;
        }
        shadow_ = from->CreateDropShadow(shadowDepth_, color);
        shadowKey_ = key;
    }
    if (!shadow_) return;
    shadow_->Render(nullptr, at.x(), at.y(), 0, 0, 0, 0, 0, 0, shadowOpacity_, true, true, &target, -1, 0,
                    rotated() ? static_cast<float>(angle_) : 0.0f, rotated());
}

void aicAlphaImage::renderPicture(c32bppDIB& target) {
    if (image_.Handle() == 0) return;
    const ScaleSize scale = GetImageScales(-1, 0, 0, RotateEnabled());
    if (scale.width < 1 || scale.height < 1) return;
    const QPoint place = picturePlace();
    const c32bppDIB& source = sourceAt(scale);
    if (ShadowEnabled()) drawShadow(source, scale, place, target);
    const std::int32_t width = (mirror_ & 1) != 0 ? -scale.width : scale.width;
    const std::int32_t height = (mirror_ & 2) != 0 ? -scale.height : scale.height;
    source.Render(nullptr, place.x(), place.y(), width, height, 0, 0, 0, 0, opacity_, true, true, &target,
                  grayScale_, intensity_, rotated() ? static_cast<float>(angle_) : 0.0f, rotated());
}

void aicAlphaImage::paintEvent(QPaintEvent* /*event*/) {
    if (width() < 1 || height() < 1) return;
    c32bppDIB frame;
    c32bppDIB* picture = &frame;
    if (AutoRedraw()) {
        if (!buffer_ || buffer_->Width() != width() || buffer_->Height() != height()) bufferCurrent_ = false;
        if (!bufferCurrent_) {
            buffer_ = std::make_unique<c32bppDIB>();
            buffer_->setManageOwnDC(true);
            if (!buffer_->InitializeDIB(width(), height())) return;
            renderPicture(*buffer_);
            bufferCurrent_ = true;
            ++bufferBuilds_;
        }
        picture = buffer_.get();
    } else {
        if (!frame.InitializeDIB(width(), height())) return;
        renderPicture(frame);
    }
    QPainter painter(this);
    painter.drawImage(0, 0, imageFromSurface(*picture));
}

void aicAlphaImage::resizeEvent(QResizeEvent* event) {
    hitKey_.clear();
    pictureChanged();
    QWidget::resizeEvent(event);
}

}  // namespace orvanta
