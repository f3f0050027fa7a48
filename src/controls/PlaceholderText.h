#pragma once
// A text field that stands for "empty" with a placeholder text of its own, in grey italics: the
// text is emptied when the field takes the focus and comes back when it leaves it empty. The
// placeholder is a real text of the field, as the project files see it, never a Qt hint.

#include <QObject>
#include <QString>

class QLineEdit;

namespace orvanta {

class PlaceholderText : public QObject {
    Q_OBJECT
public:
    PlaceholderText(QLineEdit* field, QString placeholder);

    const QString& placeholder() const { return placeholder_; }
    bool showsPlaceholder() const;
    // Puts the placeholder back (as leaving the field empty does).
    void restore();
    // Grey 0x808080 italics for the placeholder, the normal colour and upright type for a text.
    static void setPlaceholderLook(QLineEdit* field, bool placeholderLook);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QLineEdit* field_;
    QString placeholder_;
};

}  // namespace orvanta
