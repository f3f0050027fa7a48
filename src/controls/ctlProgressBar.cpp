#include "controls/ctlProgressBar.h"

#include <QProgressBar>
#include <QVBoxLayout>
#include <algorithm>

#include "controls/ControlError.h"

namespace orvanta {
namespace {

QString chunkColour(int state) {
    switch (state) {
        case kProgressStateError:
            return QStringLiteral("background-color: #d0312d;");
        case kProgressStatePaused:
            return QStringLiteral("background-color: #d8b600;");
        default:
            return QStringLiteral("background-color: #2f9e44;");
    }
}

// Block scrolling shows the chunks apart; smooth scrolling one solid bar.
QString barStyleSheet(int scrolling, int state) {
    const QString blocks =
        scrolling == kScrollingSmooth ? QString() : QStringLiteral("width: 8px; margin: 1px;");
    return QStringLiteral(
               "QProgressBar { border: 1px solid #a0a0a0; background: #f0f0f0; }"
               "QProgressBar::chunk { ") +
           chunkColour(state) + blocks + QStringLiteral(" }");
}

}  // namespace

ctlProgressBar::ctlProgressBar(Dialogs& dialogs, QWidget* parent) : QFrame(parent), dialogs_(dialogs) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    createWindow();
}

void ctlProgressBar::createWindow() {
    delete bar_;
    bar_ = new QProgressBar(this);
    bar_->setObjectName(QStringLiteral("msctls_progress32"));
    bar_->setTextVisible(false);
    layout()->addWidget(bar_);
    applyFrame();
    applyValues();
}

void ctlProgressBar::applyFrame() {
    setFrameShape(borderStyle_ != 0 ? QFrame::Box : QFrame::NoFrame);
    setFrameShadow(appearance_ != 0 ? QFrame::Sunken : QFrame::Plain);
    bar_->setStyleSheet(barStyleSheet(scrolling_, state_));
}

void ctlProgressBar::applyValues() {
    // A bar whose range is empty moves on its own: that is the marquee.
    if (marquee_) {
        bar_->setRange(0, 0);
        return;
    }
    bar_->setRange(min_, max_);
    bar_->setValue(value_);
}

void ctlProgressBar::refuse() {
    reportRuntimeError(dialogs_, objectName().toStdString() + ".ctlProgressBar",
                       kErrorNumberInvalidPropertyValue, kInvalidPropertyValueText);
}

// The range may not close: a bar from 5 to 5 has no position to show.
bool ctlProgressBar::setMin(int min) {
    if (min >= max_) {
        refuse();
        return false;
    }
    min_ = min;
    value_ = std::max(value_, min_);
    applyValues();
    return true;
}

bool ctlProgressBar::setMax(int max) {
    if (max <= min_) {
        refuse();
        return false;
    }
    max_ = max;
    value_ = std::min(value_, max_);
    applyValues();
    return true;
}

bool ctlProgressBar::setValue(int value) {
    if (value < min_ || value > max_) {
        refuse();
        return false;
    }
    value_ = value;
    applyValues();
    return true;
}

void ctlProgressBar::setMarquee(bool marquee) {
    marquee_ = marquee;
    applyValues();
}

void ctlProgressBar::setScrolling(int scrolling) {
    scrolling_ = scrolling;
    createWindow();
}

void ctlProgressBar::setBorderStyle(int borderStyle) {
    borderStyle_ = borderStyle;
    createWindow();
}

void ctlProgressBar::setAppearance(int appearance) {
    appearance_ = appearance;
    createWindow();
}

void ctlProgressBar::setState(int state) {
    state_ = state;
    applyFrame();
}

void ctlProgressBar::Refresh() {
    bar_->repaint();
}

void ctlProgressBar::WriteProperties(PropertyBag& bag) const {
    bag.WriteProperty("Scrolling", scrolling_);
    bag.WriteProperty("Appearance", appearance_);
    bag.WriteProperty("BorderStyle", borderStyle_);
    bag.WriteProperty("Marquee", marquee_ ? -1 : 0);
    bag.WriteProperty("Max", max_);
    bag.WriteProperty("Min", min_);
    bag.WriteProperty("Value", value_);
}

void ctlProgressBar::ReadProperties(PropertyBag& bag) {
    scrolling_ = bag.ReadProperty("Scrolling", kScrollingStandard);
    appearance_ = bag.ReadProperty("Appearance", 1);
    borderStyle_ = bag.ReadProperty("BorderStyle", 0);
    marquee_ = bag.ReadProperty("Marquee", 0) != 0;
    // Through the setters, so a stored range that crosses is refused like one set by code.
    setMax(bag.ReadProperty("Max", 100));
    setMin(bag.ReadProperty("Min", 0));
    setValue(bag.ReadProperty("Value", 0));
    createWindow();
}

}  // namespace orvanta
