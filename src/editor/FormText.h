#pragma once
// The editor's controls hold QStrings; the system's values are ANSI strings. These move a value
// across that boundary in one call.

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <string>

#include "controls/QtText.h"

namespace orvanta {

inline std::string textOf(const QLineEdit& box) {
    return fromQString(box.text());
}
inline std::string textOf(const QComboBox& box) {
    return fromQString(box.currentText());
}
inline std::string textOf(const QLabel& label) {
    return fromQString(label.text());
}
// A multi-line box holds its lines joined by CR LF, as the project's files do.
inline std::string textOf(const QPlainTextEdit& box) {
    QString text = box.toPlainText();
    text.replace(QLatin1Char('\n'), QStringLiteral("\r\n"));
    return fromQString(text);
}

inline void setTextOf(QLineEdit& box, const std::string& text) {
    box.setText(toQString(text));
}
// A box that takes no typing can only show one of its entries.
inline void setTextOf(QComboBox& box, const std::string& text) {
    if (box.isEditable())
        box.setEditText(toQString(text));
    else
        box.setCurrentIndex(box.findText(toQString(text)));
}
inline void setTextOf(QLabel& label, const std::string& text) {
    label.setText(toQString(text));
}
inline void setTextOf(QPlainTextEdit& box, const std::string& text) {
    box.setPlainText(toDisplayText(text));
}

}  // namespace orvanta
