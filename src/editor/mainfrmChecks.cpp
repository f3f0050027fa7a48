// Check boxes that follow each other: a "checked by default" box cannot be on while its option
// is off, the main executable's box is master of its group, and the licence box of its own.
#include <QCheckBox>
#include <QGroupBox>
#include <QPushButton>
#include <QRadioButton>

#include "core/commonFunctions.h"
#include "editor/FormText.h"
#include "editor/mainfrm.h"
#include "ui_mainfrm.h"

namespace orvanta {

namespace {

void whenOff(QCheckBox* box, std::initializer_list<QCheckBox*> followers) {
    QObject::connect(box, &QCheckBox::toggled, box,
                     [followers = std::vector<QCheckBox*>(followers)](bool on) {
                         if (on) return;
                         for (QCheckBox* follower : followers) follower->setChecked(false);
                     });
}

void whenOn(QCheckBox* box, std::initializer_list<QCheckBox*> leaders) {
    QObject::connect(box, &QCheckBox::toggled, box, [leaders = std::vector<QCheckBox*>(leaders)](bool on) {
        if (!on) return;
        for (QCheckBox* leader : leaders) leader->setChecked(true);
    });
}

}  // namespace

void mainfrm::connectDependentChecks() {
    whenOff(ui_->Check2, {ui_->Check28});
    whenOff(ui_->Check3, {ui_->Check29});
    whenOff(ui_->Check9, {ui_->Check10});
    whenOn(ui_->Check28, {ui_->Check2});
    whenOn(ui_->Check29, {ui_->Check3});
    whenOn(ui_->Check10, {ui_->Check9});
    whenOff(ui_->Check4, {ui_->Check33, ui_->Check30, ui_->Check5});
    whenOn(ui_->Check5, {ui_->Check4});
    whenOn(ui_->Check30, {ui_->Check4});
    whenOn(ui_->Check33, {ui_->Check4, ui_->Check5});
    connect(ui_->Check23, &QCheckBox::toggled, this, &mainfrm::Check23_Changed);
    connect(ui_->Check22, &QCheckBox::toggled, this, &mainfrm::Check22_Changed);
    connect(ui_->Option5, &QRadioButton::toggled, this, &mainfrm::Option5_Changed);
}

void mainfrm::Check23_Changed(bool on) {
    const std::vector<QCheckBox*> boxes = {ui_->Check2,  ui_->Check3,  ui_->Check9, ui_->Check10,
                                           ui_->Check28, ui_->Check29, ui_->Check4, ui_->Check5,
                                           ui_->Check30, ui_->Check33};
    const std::vector<QLineEdit*> texts = {ui_->Text31, ui_->Text7, ui_->Text26};
    if (!on) {
        ui_->Text21->clear();
        for (QCheckBox* box : boxes) box->setChecked(false);
        for (QLineEdit* text : texts) {
            text->clear();
            placeholderFocusOut(*text);
        }
    }
    ui_->Text21->setEnabled(on);
    ui_->Command45->setEnabled(on);
    for (QCheckBox* box : boxes) box->setEnabled(on);
    for (QLineEdit* text : texts) text->setEnabled(on);
}

void mainfrm::Check22_Changed(bool on) {
    for (QGroupBox* frame : {ui_->Frame5, ui_->Frame6, ui_->Frame1, ui_->Frame14}) frame->setVisible(!on);
}

void mainfrm::Option5_Changed(bool on) {
    // An instant update shows no licence, and only then can it run silently or start the application.
    ui_->Check36->setEnabled(!on);
    ui_->Check37->setEnabled(on);
    ui_->Check38->setEnabled(on);
}

void mainfrm::connectLicenseGroup() {
    connect(ui_->Check1, &QCheckBox::toggled, this, &mainfrm::Check1_Changed);
    connect(ui_->Text5, &QLineEdit::textChanged, this,
            [this](const QString& text) { ui_->Command41->setEnabled(!text.isEmpty()); });
}

void mainfrm::Check1_Changed(bool on) {
    if (on) {
        setTextOf(*ui_->Text10, "slicense.txt");
    } else {
        // Without a working set there is no licence file of this project to remove.
        const std::string file = workingFolder() + "\\slicense.txt";
        if (!workingFolder().empty() && fileExists(context_.host, file)) context_.host.deleteFile(file);
        setTextOf(*ui_->Text10, "<>");
    }
    enableLicenseGroup(on);
}

void mainfrm::enableLicenseGroup(bool on) {
    for (QWidget* member : {static_cast<QWidget*>(ui_->Text19), static_cast<QWidget*>(ui_->Text22),
                            static_cast<QWidget*>(ui_->Text5), static_cast<QWidget*>(ui_->Text23),
                            static_cast<QWidget*>(ui_->Command16), static_cast<QWidget*>(ui_->Command8),
                            static_cast<QWidget*>(ui_->Label17), static_cast<QWidget*>(ui_->Label3),
                            static_cast<QWidget*>(ui_->Label11)})
        member->setEnabled(on);
}

}  // namespace orvanta
