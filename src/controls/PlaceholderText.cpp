#include "controls/PlaceholderText.h"

#include <QApplication>
#include <QEvent>
#include <QLineEdit>

namespace orvanta {

PlaceholderText::PlaceholderText(QLineEdit* field, QString placeholder)
    : QObject(field), field_(field), placeholder_(std::move(placeholder)) {
    field_->installEventFilter(this);
    if (field_->text().isEmpty()) restore();
}

bool PlaceholderText::showsPlaceholder() const {
    return field_->text() == placeholder_;
}

void PlaceholderText::restore() {
    field_->setText(placeholder_);
    setPlaceholderLook(field_, true);
}

void PlaceholderText::setPlaceholderLook(QLineEdit* field, bool placeholderLook) {
    QFont font = field->font();
    font.setItalic(placeholderLook);
    field->setFont(font);
    QPalette palette = field->palette();
    palette.setColor(QPalette::Text, placeholderLook ? QColor(0x80, 0x80, 0x80)
                                                     : QApplication::palette().color(QPalette::Text));
    field->setPalette(palette);
}

bool PlaceholderText::eventFilter(QObject* watched, QEvent* event) {
    if (watched == field_ && event->type() == QEvent::FocusIn && showsPlaceholder()) {
        field_->clear();
        setPlaceholderLook(field_, false);
    } else if (watched == field_ && event->type() == QEvent::FocusOut && field_->text().isEmpty()) {
        restore();
    }
    return QObject::eventFilter(watched, event);
}

}  // namespace orvanta
