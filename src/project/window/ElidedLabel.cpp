#include "project/window/ElidedLabel.h"

#include <QPainter>
#include <QStyle>

namespace orvanta {

void ElidedLabel::setWholeText(const QString& text) {
    QString line = text;
    line.replace(QLatin1Char('\n'), QLatin1Char(' '));
    setText(line);
    setToolTip(text);
}

// The width is the layout's to give; only the height comes from the text.
QSize ElidedLabel::sizeHint() const {
    return {0, QLabel::sizeHint().height()};
}

QSize ElidedLabel::minimumSizeHint() const {
    return {0, QLabel::minimumSizeHint().height()};
}

void ElidedLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QRect area = contentsRect();
    const QString shown = fontMetrics().elidedText(text(), Qt::ElideRight, area.width());
    style()->drawItemText(&painter, area, static_cast<int>(alignment()), palette(), isEnabled(), shown,
                          foregroundRole());
}

}  // namespace orvanta
