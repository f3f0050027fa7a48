// The keyboard: Ctrl+S saves, every button, link and tab answers to a letter of its caption, and
// Tab reaches every control, the image buttons and links of the header included.
#include <QKeyEvent>
#include <QPlainTextEdit>
#include <QShortcut>
#include <algorithm>

#include "editor/Mnemonics.h"
#include "editor/mainfrm.h"
#include "image/widget/aicAlphaImage.h"
#include "ui_mainfrm.h"

namespace orvanta {

namespace {

bool isActivationKey(const QEvent* event) {
    if (event->type() != QEvent::KeyPress) return false;
    const int key = static_cast<const QKeyEvent*>(event)->key();
    return key == Qt::Key_Space || key == Qt::Key_Return || key == Qt::Key_Enter;
}

}  // namespace

std::vector<aicAlphaImage*> mainfrm::imageButtons() const {
    return {ui_->packageit, ui_->saver, ui_->pre, ui_->filesfolder, ui_->logo2};
}

// Runs once the tabs exist: the header's letters are kept apart from those of every page.
void mainfrm::connectKeyboard() {
    connect(new QShortcut(QKeySequence::Save, this), &QShortcut::activated, this, &mainfrm::saver_Click);
    // A tab typed into a text would trap the focus there.
    for (QPlainTextEdit* text : findChildren<QPlainTextEdit*>()) text->setTabChangesFocus(true);
    for (aicAlphaImage* image : imageButtons()) image->setFocusPolicy(Qt::StrongFocus);
    MnemonicLetters header;
    giveMnemonics(*ui_->TabStrip1, header);
    for (QLabel* link : links()) {
        link->setFocusPolicy(Qt::StrongFocus);
        link->setText(header.give(link->text()));
        link->setBuddy(link);  // a label answers to its letter only when it has a buddy
    }
    for (QWidget* page : {ui_->Picture1, ui_->Picture2, ui_->Picture3}) {
        MnemonicLetters letters(header.taken());
        giveMnemonics(*page, letters);
    }
}

// The window opens with the focus on its tabs rather than on the header's first image button.
void mainfrm::focusTheTabs() {
    const std::vector<aicAlphaImage*> images = imageButtons();
    QWidget* focus = focusWidget();
    if (focus == nullptr || std::find(images.begin(), images.end(), focus) != images.end())
        ui_->TabStrip1->setFocus(Qt::OtherFocusReason);
}

// An image button with the focus shows its title and highlight as under the pointer; Space or
// Enter presses it. A link takes its letter, Space or Enter as a click.
bool mainfrm::filterKeyboard(QObject* watched, QEvent* event) {
    const std::vector<aicAlphaImage*> images = imageButtons();
    const auto image = std::find(images.begin(), images.end(), watched);
    if (image != images.end()) {
        if (event->type() == QEvent::FocusIn) emit(*image)->MouseEnter();
        if (event->type() == QEvent::FocusOut) emit(*image)->MouseExit();
        if (!isActivationKey(event)) return false;
        emit(*image)->Click();
        return true;
    }
    const std::vector<QLabel*> all = links();
    const auto link = std::find(all.begin(), all.end(), watched);
    if (link == all.end() || (event->type() != QEvent::Shortcut && !isActivationKey(event))) return false;
    activateLink(**link);
    return true;
}

}  // namespace orvanta
