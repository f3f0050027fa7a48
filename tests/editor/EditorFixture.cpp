#include "EditorFixture.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRadioButton>

#include "controls/QtText.h"
#include "editor/Mnemonics.h"

namespace orvanta::testing {

void EditorFixture::setText(const char* name, const std::string& text) {
    QWidget& control = get<QWidget>(name);
    if (auto* box = qobject_cast<QLineEdit*>(&control)) box->setText(toQString(text));
    if (auto* combo = qobject_cast<QComboBox*>(&control)) combo->setEditText(toQString(text));
    if (auto* multi = qobject_cast<QPlainTextEdit*>(&control)) multi->setPlainText(toQString(text));
}

std::string EditorFixture::text(const char* name) {
    QWidget& control = get<QWidget>(name);
    if (auto* box = qobject_cast<QLineEdit*>(&control)) return fromQString(box->text());
    if (auto* combo = qobject_cast<QComboBox*>(&control)) return fromQString(combo->currentText());
    if (auto* multi = qobject_cast<QPlainTextEdit*>(&control)) return fromQString(multi->toPlainText());
    if (auto* label = qobject_cast<QLabel*>(&control)) return fromQString(label->text());
    if (auto* button = qobject_cast<QAbstractButton*>(&control))
        return fromQString(withoutMnemonic(button->text()));
    return {};
}

void EditorFixture::check(const char* name, bool on) {
    get<QAbstractButton>(name).setChecked(on);
}

bool EditorFixture::checked(const char* name) {
    return get<QAbstractButton>(name).isChecked();
}

}  // namespace orvanta::testing
