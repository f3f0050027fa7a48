#include "simulator/WizardPanel.h"

#include "image/widget/aicAlphaImage.h"

namespace orvanta {

WizardPanel::WizardPanel(QWidget* parent) : QWidget(parent), picture_(new aicAlphaImage(this)) {
    picture_->setObjectName(QStringLiteral("panelPicture"));
    picture_->setAttribute(Qt::WA_TransparentForMouseEvents);
    picture_->lower();
    setAutoFillBackground(true);
}

void WizardPanel::showWindowPicture(const std::string& path, QSize windowSize, QPoint offset) {
    picture_->setGeometry(QRect(-offset, windowSize));
    picture_->lower();
    if (path.empty()) {
        picture_->ClearImage();
        return;
    }
    picture_->setScaleMethod(kScaleStretch);
    picture_->setStretchQuality(true);
    picture_->setAutoRedraw(true);
    picture_->LoadImage_FromFile(path, windowSize.width(), windowSize.height());
}

}  // namespace orvanta
