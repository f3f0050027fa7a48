#pragma once
// A one-line label that never widens its window: a text longer than the label ends in "..." and
// the whole text is its tip.

#include <QLabel>

namespace orvanta {

class ElidedLabel : public QLabel {
    Q_OBJECT
public:
    using QLabel::QLabel;

    // Sets the text and the tip together; use this rather than setText.
    void setWholeText(const QString& text);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace orvanta
