#include "simulator/WizardPanel.h"

#include "image/widget/aicAlphaImage.h"

namespace orvanta {

WizardPanel::WizardPanel(QWidget* parent) : QWidget(parent), picture_(new aicAlphaImage(this)) {
    picture_->setObjectName(QStringLiteral("panelPicture"));
    picture_->setAttribute(Qt::WA_TransparentForMouseEvents);
    picture_->lower();
    setAutoFillBackground(true);
}

void WizardPanel::showWindowPicture(const c32bppDIB& windowPicture, QPoint offset) {
    const QSize size(windowPicture.Width(), windowPicture.Height());
    picture_->setGeometry(QRect(-offset, size));
    picture_->lower();
    if (windowPicture.Handle() == 0) {
        picture_->ClearImage();
        return;
    }
    // Already at the window's size: the panel copies pixels and never scales.
    const std::uint8_t* bits = windowPicture.BitsPointer();
    const auto bytes =
        static_cast<std::size_t>(windowPicture.scanWidth()) * static_cast<std::size_t>(size.height());
    picture_->setScaleMethod(kScaleActualSize);
    picture_->setAutoRedraw(true);
    picture_->SetImageBytes(std::vector<std::uint8_t>(bits, bits + bytes), size.width(), size.height());
}

}  // namespace orvanta
