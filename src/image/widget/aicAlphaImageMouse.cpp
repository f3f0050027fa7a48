// Hit testing, the mouse's arrival and departure, and the events of mouse, keys and dropping.
#include <QApplication>
#include <QCursor>
#include <QDropEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QMouseEvent>

#include "image/widget/QtSurface.h"
#include "image/widget/aicAlphaImage.h"

namespace orvanta {

namespace {

constexpr int kMouseWatchMilliseconds = 100;

int buttonCode(Qt::MouseButtons buttons) {
    return (buttons & Qt::LeftButton ? 1 : 0) | (buttons & Qt::RightButton ? 2 : 0) |
           (buttons & Qt::MiddleButton ? 4 : 0);
}

int shiftCode(Qt::KeyboardModifiers modifiers) {
    return (modifiers & Qt::ShiftModifier ? 1 : 0) | (modifiers & Qt::ControlModifier ? 2 : 0) |
           (modifiers & Qt::AltModifier ? 4 : 0);
}

}  // namespace

// The hit area follows the picture as drawn; it is made when first asked for and again only when
// the picture, its size, its place or the style changed.
void aicAlphaImage::ensureHitArea() {
    const ScaleSize scale = GetImageScales(-1, 0, 0, RotateEnabled());
    const QPoint place = picturePlace();
    const std::vector<std::int64_t> key{static_cast<std::int64_t>(imageGeneration_),
                                        hitTestStyle_,
                                        scale.width,
                                        scale.height,
                                        place.x(),
                                        place.y(),
                                        width(),
                                        height()};
    if (hitKey_ == key) return;
    hitKey_ = key;
    hitRegion_ = {};
    hitRect_ = rect();
    // A turned picture has no region of its own shape here: the whole control answers.
    if (hitTestStyle_ == kHitControl || image_.Handle() == 0 || rotated() || scale.width < 1 ||
        scale.height < 1)
        return;
    properties_ |= kRegionBuildingBit;
    c32bppDIB scaledCopy;
    const c32bppDIB* source = &image_;
    if (scale.width != image_.Width() || scale.height != image_.Height()) {
        if (scaled_ && scaled_->Width() == scale.width && scaled_->Height() == scale.height) {
            source = scaled_.get();
        } else {
            image_.CopyImageTo(scaledCopy, scale.width, scale.height);
            source = &scaledCopy;
        }
    }
    ImageRegion region = source->CreateRegion(hitTestStyle_ - 1, place.x(), place.y());
    properties_ &= ~kRegionBuildingBit;
    // A picture with no solid pixel is hit nowhere.
    if (region.empty()) {
        hitRect_ = QRect();
        return;
    }
    if (hitTestStyle_ == kHitBoundingBox) {
        const RegionRectangle& box = region.rectangles.front();
        hitRect_ = QRect(box.left, box.top, box.right - box.left, box.bottom - box.top);
        return;
    }
    hitRegion_ = std::move(region);
}

bool aicAlphaImage::hitTest(QPoint point) {
    ensureHitArea();
    if (!hitRegion_.empty()) return hitRegion_.contains(point.x(), point.y());
    return hitRect_.contains(point);
}

// The control that the mouse reaches takes it from whichever control had it.
void aicAlphaImage::enterMouse() {
    cCrossComm& shared = cCrossComm::instance();
    ICrossComm* owner = shared.CapturedControl();
    if (owner != nullptr && owner != this) owner->ReleaseMouseCapture();
    shared.setCapturedControl(this);
    mouseOver_ = true;
    emit MouseEnter();
    mouseWatch_.start(kMouseWatchMilliseconds);
}

void aicAlphaImage::leaveMouse() {
    mouseWatch_.stop();
    cCrossComm::instance().forget(this);
    if (!mouseOver_) return;
    mouseOver_ = false;
    emit MouseExit();
}

void aicAlphaImage::ReleaseMouseCapture() {
    leaveMouse();
}

// The cursor is looked at, not waited for: a departure is seen even when no mouse message comes.
void aicAlphaImage::mouseWatchTick() {
    if (!mouseOver_) return;
    const QPoint cursor = QCursor::pos();
    if (QApplication::widgetAt(cursor) == this && hitTest(mapFromGlobal(cursor))) {
        mouseWatch_.start(kMouseWatchMilliseconds);
        return;
    }
    leaveMouse();
}

void aicAlphaImage::mouseMoveEvent(QMouseEvent* event) {
    const QPoint point = event->position().toPoint();
    if (!hitTest(point)) {
        event->ignore();
        return;
    }
    if (!mouseOver_) enterMouse();
    emit MouseMove(buttonCode(event->buttons()), shiftCode(event->modifiers()), point.x(), point.y());
}

void aicAlphaImage::mousePressEvent(QMouseEvent* event) {
    const QPoint point = event->position().toPoint();
    if (!hitTest(point)) {
        event->ignore();
        return;
    }
    pressed_ = true;
    emit MouseDown(buttonCode(event->button()), shiftCode(event->modifiers()), point.x(), point.y());
}

void aicAlphaImage::mouseReleaseEvent(QMouseEvent* event) {
    const QPoint point = event->position().toPoint();
    const bool wasPressed = pressed_;
    pressed_ = false;
    if (!wasPressed) {
        event->ignore();
        return;
    }
    emit MouseUp(buttonCode(event->button()), shiftCode(event->modifiers()), point.x(), point.y());
    if (hitTest(point)) emit Click();
}

void aicAlphaImage::mouseDoubleClickEvent(QMouseEvent* event) {
    if (!hitTest(event->position().toPoint())) {
        event->ignore();
        return;
    }
    emit DblClick();
}

void aicAlphaImage::keyPressEvent(QKeyEvent* event) {
    emit KeyDown(event->key(), shiftCode(event->modifiers()));
    const QString text = event->text();
    if (!text.isEmpty()) emit KeyPress(text.at(0).unicode());
}

void aicAlphaImage::keyReleaseEvent(QKeyEvent* event) {
    emit KeyUp(event->key(), shiftCode(event->modifiers()));
}

void aicAlphaImage::dragEnterEvent(QDragEnterEvent* event) {
    event->acceptProposedAction();
    const QPoint point = event->position().toPoint();
    emit OLEDragOver(event->mimeData(), point.x(), point.y());
}

void aicAlphaImage::dragMoveEvent(QDragMoveEvent* event) {
    event->acceptProposedAction();
    const QPoint point = event->position().toPoint();
    emit OLEDragOver(event->mimeData(), point.x(), point.y());
}

void aicAlphaImage::dropEvent(QDropEvent* event) {
    event->acceptProposedAction();
    const QPoint point = event->position().toPoint();
    emit OLEDragDrop(event->mimeData(), point.x(), point.y());
}

// The pointer numbers of the control, in Qt's shapes; 99 is the custom MouseIcon.
void aicAlphaImage::applyPointer() {
    static const Qt::CursorShape shapes[] = {
        Qt::ArrowCursor,     Qt::ArrowCursor,   Qt::CrossCursor,     Qt::IBeamCursor,
        Qt::ArrowCursor,     Qt::SizeAllCursor, Qt::SizeBDiagCursor, Qt::SizeVerCursor,
        Qt::SizeFDiagCursor, Qt::SizeHorCursor, Qt::UpArrowCursor,   Qt::WaitCursor,
        Qt::ForbiddenCursor, Qt::BusyCursor,    Qt::WhatsThisCursor, Qt::SizeAllCursor};
    if (mousePointer_ == 99) {
        c32bppDIB icon;
        if (icon.LoadPicture_Stream(mouseIcon_)) {
            setCursor(QCursor(QPixmap::fromImage(imageFromSurface(icon))));
            return;
        }
    }
    if (mousePointer_ <= 0 || mousePointer_ >= static_cast<std::int32_t>(std::size(shapes))) {
        unsetCursor();
        return;
    }
    setCursor(QCursor(shapes[mousePointer_]));
}

}  // namespace orvanta
