// Rules that tie the fields together: the install path preview, "Clean it all!", the character
// counters, the uninstall options and the placeholder boxes.
#include <QApplication>
#include <QCheckBox>
#include <QFocusEvent>
#include <QListWidget>
#include <QRadioButton>

#include "controls/PlaceholderText.h"
#include "core/SpecialFolderAPI.h"
#include "editor/FormText.h"
#include "editor/mainfrm.h"
#include "editor/mainfrmFields.h"
#include "editor/rules/InstallPathRules.h"
#include "project/UninstallOptions.h"
#include "ui_mainfrm.h"

namespace orvanta {

namespace {

constexpr int kIntroLimit = 500;
constexpr int kTipsLimit = 420;

struct PlaceholderBox {
    QLineEdit* box;
    const char* text;
    QCheckBox* companion;
};

std::vector<PlaceholderBox> placeholderBoxes(Ui::mainfrm& ui) {
    return {{ui.Text14, "Support link", ui.Check15},     {ui.Text28, "Help link", ui.Check31},
            {ui.Text29, "Update info link", ui.Check32}, {ui.Text26, "Arguments", nullptr},
            {ui.Text31, "Shortcuts arguments", nullptr}, {ui.Text7, "Shortcuts tooltip", nullptr}};
}

// The length as the files count it, a line break being CR LF.
int storedLength(const QString& text) {
    return static_cast<int>(text.size() + text.count(QLatin1Char('\n')));
}

// Cuts the box's text to the limit, as a box with a maximum length refuses what goes beyond it.
int limitText(QPlainTextEdit& box, int limit) {
    QString text = box.toPlainText();
    if (storedLength(text) <= limit) return storedLength(text);
    while (storedLength(text) > limit) text.chop(1);
    const QSignalBlocker quiet(&box);
    box.setPlainText(text);
    box.moveCursor(QTextCursor::End);
    return storedLength(text);
}

}  // namespace

void mainfrm::connectFieldRules() {
    connect(ui_->Combo5, &QComboBox::editTextChanged, this, [this] {
        install_path_updater();
        cleanall_updater();
    });
    connect(ui_->Check20, &QCheckBox::toggled, this, &mainfrm::install_path_updater);
    connect(ui_->Text11, &QPlainTextEdit::textChanged, this, &mainfrm::countCharacters);
    connect(ui_->Text12, &QPlainTextEdit::textChanged, this, &mainfrm::countCharacters);
    // No file stores the uninstaller's display name and publisher: they show the name and the
    // author, and follow them as they change.
    connect(ui_->Text1, &QLineEdit::textChanged, ui_->Text15, &QLineEdit::setText);
    connect(ui_->Text9, &QLineEdit::textChanged, ui_->Text13, &QLineEdit::setText);
}

void mainfrm::install_path_updater() {
    const auto preview = installPathPreview(ui_->Check20->isChecked(), textOf(*ui_->Combo5),
                                            specialFolder(context_.host, kFolderProgramFiles),
                                            textOf(*ui_->Text9), textOf(*ui_->Text1));
    if (preview) setTextOf(*ui_->Label26, *preview);
}

void mainfrm::cleanall_updater() {
    const CleanAllState state = cleanAllState(textOf(*ui_->Combo5));
    ui_->Check24->setChecked(state.value == 1);
    ui_->Check24->setEnabled(state.enabled);
}

void mainfrm::re_uninoptions() {
    mainfrmFields fields(*this);
    orvanta::re_uninoptions(fields);
}

void mainfrm::countCharacters() {
    if (sender() == ui_->Text11) {
        const int count = limitText(*ui_->Text11, kIntroLimit);
        ui_->Label8->setText(QStringLiteral("Start description (2 paragraphs max) %1/500 chars:").arg(count));
    } else {
        const int count = limitText(*ui_->Text12, kTipsLimit);
        ui_->Label18->setText(QStringLiteral("Tips during installation %1/420 chars:").arg(count));
    }
}

void mainfrm::setPlaceholderLook(QLineEdit& box, bool on) {
    PlaceholderText::setPlaceholderLook(&box, on);
}

void mainfrm::placeholderFocusIn(QLineEdit& box) {
    for (const PlaceholderBox& entry : placeholderBoxes(*ui_)) {
        if (entry.box != &box || box.text() != QLatin1String(entry.text)) continue;
        setPlaceholderLook(box, false);
        box.clear();
        if (entry.companion != nullptr) entry.companion->setChecked(true);
    }
}

void mainfrm::placeholderFocusOut(QLineEdit& box) {
    for (const PlaceholderBox& entry : placeholderBoxes(*ui_)) {
        if (entry.box != &box || !box.text().isEmpty()) continue;
        setPlaceholderLook(box, true);
        box.setText(QLatin1String(entry.text));
        if (entry.companion != nullptr) entry.companion->setChecked(false);
    }
}

bool mainfrm::filterFocus(QObject* watched, QEvent* event) {
    auto* box = qobject_cast<QLineEdit*>(watched);
    if (box == nullptr) return false;
    const bool in = event->type() == QEvent::FocusIn;
    if (box == ui_->Text21) {
        // The focus that comes back when the selection dialog closes must not open it again.
        const auto reason = static_cast<QFocusEvent*>(event)->reason();
        const QString text = box->text();
        if (in && reason != Qt::ActiveWindowFocusReason && !choosingExecutable_ &&
            (text.isEmpty() || text == QLatin1String(".exe")))
            Command45_Click();
        return false;
    }
    if (in)
        placeholderFocusIn(*box);
    else
        placeholderFocusOut(*box);
    return false;
}

}  // namespace orvanta
