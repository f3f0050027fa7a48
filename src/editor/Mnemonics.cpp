#include "editor/Mnemonics.h"

#include <QAbstractButton>
#include <QTabBar>

namespace orvanta {

namespace {

constexpr const char* kLetterProperty = "orvantaMnemonic";

bool startsWord(const QString& text, qsizetype at) {
    return at == 0 || !text.at(at - 1).isLetterOrNumber();
}

// "&" becomes "&&", so that only the letter given here is marked.
QString escaped(const QString& caption) {
    QString text = caption;
    return text.replace(QLatin1Char('&'), QLatin1String("&&"));
}

QString marked(const QString& caption, qsizetype at) {
    return escaped(caption.left(at)) + QLatin1Char('&') + escaped(caption.mid(at));
}

qsizetype letterAt(const QString& caption, QChar letter) {
    for (qsizetype at = 0; at < caption.size(); ++at)
        if (caption.at(at).toLower() == letter) return at;
    return -1;
}

}  // namespace

QString MnemonicLetters::give(const QString& caption, bool mustHaveOne) {
    qsizetype chosen = -1;
    for (int pass = 0; pass < 2 && chosen < 0; ++pass) {
        for (qsizetype at = 0; at < caption.size() && chosen < 0; ++at) {
            const QChar c = caption.at(at);
            if (!c.isLetterOrNumber() || taken_.contains(c.toLower())) continue;
            if (pass == 1 || startsWord(caption, at)) chosen = at;
        }
    }
    if (chosen < 0 && mustHaveOne)
        for (qsizetype at = 0; at < caption.size() && chosen < 0; ++at)
            if (caption.at(at).isLetterOrNumber()) chosen = at;
    if (chosen < 0) return caption;
    taken_ += caption.at(chosen).toLower();
    return marked(caption, chosen);
}

QString withoutMnemonic(const QString& text) {
    QString plain;
    plain.reserve(text.size());
    for (qsizetype at = 0; at < text.size(); ++at) {
        if (text.at(at) == QLatin1Char('&') && at + 1 < text.size()) ++at;
        plain += text.at(at);
    }
    return plain;
}

void giveMnemonic(QAbstractButton& button, MnemonicLetters& letters) {
    const QString caption = button.text();
    if (caption.isEmpty() || caption.contains(QLatin1Char('&'))) return;
    const QString text = letters.give(caption);
    const qsizetype mark = text.indexOf(QLatin1Char('&'));
    if (mark < 0) return;
    button.setText(text);
    button.setProperty(kLetterProperty, text.at(mark + 1).toLower());
}

void giveMnemonics(QTabBar& tabs, MnemonicLetters& letters) {
    for (int tab = 0; tab < tabs.count(); ++tab) tabs.setTabText(tab, letters.give(tabs.tabText(tab)));
}

void giveMnemonics(QWidget& scope, MnemonicLetters& letters) {
    for (QAbstractButton* button : scope.findChildren<QAbstractButton*>()) giveMnemonic(*button, letters);
}

void setCaptionKeepingMnemonic(QAbstractButton& button, const QString& caption) {
    const QVariant letter = button.property(kLetterProperty);
    const qsizetype at = letter.isValid() ? letterAt(caption, letter.toChar()) : -1;
    button.setText(at < 0 ? escaped(caption) : marked(caption, at));
}

}  // namespace orvanta
