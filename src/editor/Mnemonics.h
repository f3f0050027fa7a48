#pragma once
// Keyboard mnemonics for the captions of a window. Each scope (what is visible at one time: the
// header with one page) hands out its letters once; a caption keeps its letter when a later text
// replaces it, so a caption set by the loader still answers to the same Alt key.

#include <QString>

class QAbstractButton;
class QTabBar;
class QWidget;

namespace orvanta {

class MnemonicLetters {
public:
    MnemonicLetters() = default;
    explicit MnemonicLetters(const QString& taken) : taken_(taken) {}

    // The caption with "&" before its letter: the first free first letter of a word, else any free
    // letter or digit, else, when `mustHaveOne`, its first letter though another caption has it.
    // A caption without letters or digits stays as it is.
    QString give(const QString& caption, bool mustHaveOne = true);
    const QString& taken() const { return taken_; }

private:
    QString taken_;  // lower-case letters in use
};

// The caption as it reads on the screen: a lone "&" dropped, "&&" as "&".
QString withoutMnemonic(const QString& text);

// Gives every button, check box and option below `scope` a mnemonic; one that has one keeps it.
void giveMnemonics(QWidget& scope, MnemonicLetters& letters);
void giveMnemonic(QAbstractButton& button, MnemonicLetters& letters);
void giveMnemonics(QTabBar& tabs, MnemonicLetters& letters);

// Sets a new caption and puts the button's letter back into it.
void setCaptionKeepingMnemonic(QAbstractButton& button, const QString& caption);

}  // namespace orvanta
