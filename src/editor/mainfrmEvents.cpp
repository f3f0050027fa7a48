// The events the window watches on its controls: the pointer for the tip line, the focus for the
// placeholders and the main executable, presses on the link labels.
#include <QAbstractScrollArea>
#include <QEvent>
#include <QFocusEvent>

#include "editor/mainfrm.h"
#include "editor/mainfrmTipTexts.h"
#include "ui_mainfrm.h"

namespace orvanta {

namespace {

constexpr const char* kTipProperty = "orvantaTip";

}  // namespace

void mainfrm::installTips() {
    for (const auto& [name, tip] : mainfrmTipTexts()) {
        auto* control =
            findChild<QWidget*>(QString::fromLatin1(name.data(), static_cast<qsizetype>(name.size())));
        if (control == nullptr) continue;
        control->setProperty(kTipProperty, QByteArray(tip.data(), static_cast<qsizetype>(tip.size())));
        control->installEventFilter(this);
    }
    ui_->tips->installEventFilter(this);
    for (QLineEdit* box :
         {ui_->Text14, ui_->Text28, ui_->Text29, ui_->Text26, ui_->Text31, ui_->Text7, ui_->Text21})
        box->installEventFilter(this);
}

bool mainfrm::eventFilter(QObject* watched, QEvent* event) {
    const QEvent::Type type = event->type();
    if ((type == QEvent::Enter || type == QEvent::Leave) && filterDisabledImage(watched, event))
        return QWidget::eventFilter(watched, event);
    if (type == QEvent::Enter || type == QEvent::MouseMove) {
        if (watched == ui_->tips) {
            showTip("");
        } else {
            const QVariant tip = watched->property(kTipProperty);
            if (tip.isValid()) showTip(tip.toByteArray().toStdString());
        }
    }
    const bool keyboard = type == QEvent::KeyPress || type == QEvent::Shortcut || type == QEvent::FocusIn ||
                          type == QEvent::FocusOut;
    if (keyboard && filterKeyboard(watched, event)) return true;
    if (type == QEvent::FocusIn || type == QEvent::FocusOut) filterFocus(watched, event);
    if ((type == QEvent::MouseButtonPress || type == QEvent::MouseButtonRelease ||
         type == QEvent::MouseButtonDblClick || type == QEvent::MouseMove) &&
        filterMouse(watched, event))
        return true;
    return QWidget::eventFilter(watched, event);
}

}  // namespace orvanta
