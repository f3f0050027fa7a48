// The item lists: dependencies, fonts, and the registry and application data locations that the
// uninstaller cleans. The lists hold bare strings; List1's check mark is "copy and register".
#include <QListWidget>
#include <QPushButton>
#include <algorithm>

#include "core/commonFunctions.h"
#include "core/vars.h"
#include "editor/FormText.h"
#include "editor/mainfrm.h"
#include "editor/mainfrmFields.h"
#include "platform/CaseFolding.h"
#include "project/FontFolderScan.h"
#include "project/ProjectPaths.h"
#include "ui_mainfrm.h"

namespace orvanta {

namespace {

// Controls are registered by default; the test knows the two usual spellings only.
bool isControl(const std::string& name) {
    const std::string tail = name.size() < 3 ? name : name.substr(name.size() - 3);
    return tail == "ocx" || tail == "OCX";
}

}  // namespace

void mainfrm::connectLists() {
    connect(ui_->Command5, &QPushButton::clicked, this, &mainfrm::Command5_Click);
    connect(ui_->Command46, &QPushButton::clicked, this, &mainfrm::Command46_Click);
    connect(ui_->Command4, &QPushButton::clicked, this, &mainfrm::Command4_Click);
    connect(ui_->Command2, &QPushButton::clicked, this, &mainfrm::Command2_Click);
    connect(ui_->Command3, &QPushButton::clicked, this, &mainfrm::Command3_Click);
    connect(ui_->Command18, &QPushButton::clicked, this, &mainfrm::Command18_Click);
    connect(ui_->Command19, &QPushButton::clicked, this, &mainfrm::Command19_Click);
    connect(ui_->Command43, &QPushButton::clicked, this, &mainfrm::Command43_Click);
    connect(ui_->Command42, &QPushButton::clicked, this, &mainfrm::Command42_Click);
    connect(ui_->Command48, &QPushButton::clicked, this, &mainfrm::Command48_Click);
    connect(ui_->Command47, &QPushButton::clicked, this, &mainfrm::Command47_Click);
    connect(ui_->Command13, &QPushButton::clicked, this, &mainfrm::Command13_Click);
    connect(ui_->Command12, &QPushButton::clicked, this, &mainfrm::Command12_Click);
    connect(ui_->Command30, &QPushButton::clicked, this, &mainfrm::Command30_Click);
    connect(ui_->Command32, &QPushButton::clicked, this, &mainfrm::Command32_Click);
    for (QListWidget* list : {ui_->List1, ui_->List2, ui_->List3, ui_->List4})
        connect(list, &QListWidget::itemSelectionChanged, this, &mainfrm::listButtonStates);
}

// The buttons follow the selection: remove needs one, up and down its position.
void mainfrm::listButtonStates() {
    ui_->Command4->setEnabled(!ui_->List1->selectedItems().isEmpty());
    ui_->Command12->setEnabled(!ui_->List2->selectedItems().isEmpty());
    locationButtons(*ui_->List3, *ui_->Command3, *ui_->Command43, *ui_->Command42);
    locationButtons(*ui_->List4, *ui_->Command19, *ui_->Command48, *ui_->Command47);
}

void mainfrm::locationButtons(QListWidget& list, QWidget& remove, QWidget& up, QWidget& down) {
    const int row = list.selectedItems().isEmpty() ? -1 : list.currentRow();
    remove.setEnabled(row >= 0);
    up.setEnabled(row > 0);
    down.setEnabled(row >= 0 && row < list.count() - 1);
}

void mainfrm::Command5_Click() {
    ui_->Text30->show();
    ui_->Command46->show();
    ui_->Command5->hide();
    ui_->Command4->hide();
}

void mainfrm::Command46_Click() {
    const std::string name = textOf(*ui_->Text30);
    if (!name.empty()) {
        if (fileExists(context_.host, workingFolder() + "\\files\\" + name)) {
            auto* item = new QListWidgetItem(toQString(name), ui_->List1);
            item->setFlags(item->flags() | Qt::ItemIsUserCheckable);
            item->setCheckState(isControl(name) ? Qt::Checked : Qt::Unchecked);
        } else {
            context_.dialogs.messageBox(
                {"The dependency file with this name was not found on the project files root folder.",
                 MessageButtons::Ok, MessageIcon::Exclamation, "Orvanta"});
        }
    }
    ui_->Text30->clear();
    ui_->Text30->hide();
    ui_->Command46->hide();
    ui_->Command5->show();
    ui_->Command4->show();
}

void mainfrm::Command4_Click() {
    delete ui_->List1->takeItem(ui_->List1->currentRow());
    ui_->List1->clearSelection();
    listButtonStates();
}

void mainfrm::addLocation(QListWidget& list, const QString& text) {
    list.addItem(text);
    re_uninoptions();
    listButtonStates();
}

void mainfrm::removeLocation(QListWidget& list, QWidget& remove) {
    const int row = list.currentRow();
    if (row < 0) return;
    delete list.takeItem(row);
    re_uninoptions();
    if (list.count() == 0) {
        remove.setEnabled(false);
        return;
    }
    // The entry that moved into the place, or the last one.
    list.setCurrentRow(std::min(row, list.count() - 1));
    listButtonStates();
}

void mainfrm::moveLocation(QListWidget& list, int by) {
    const int row = list.currentRow();
    const int target = row + by;
    if (row < 0 || target < 0 || target >= list.count()) return;
    QListWidgetItem* item = list.takeItem(row);
    list.insertItem(target, item);
    list.setCurrentRow(target);
    listButtonStates();
}

void mainfrm::Command2_Click() {
    addLocation(*ui_->List3, ui_->Combo2->currentText() + ui_->Text3->text());
}

void mainfrm::Command18_Click() {
    addLocation(*ui_->List4, ui_->Combo3->currentText() + ui_->Text4->text());
}

void mainfrm::Command3_Click() {
    removeLocation(*ui_->List3, *ui_->Command3);
}

void mainfrm::Command19_Click() {
    removeLocation(*ui_->List4, *ui_->Command19);
}

void mainfrm::Command43_Click() {
    moveLocation(*ui_->List3, -1);
}

void mainfrm::Command42_Click() {
    moveLocation(*ui_->List3, 1);
}

void mainfrm::Command48_Click() {
    moveLocation(*ui_->List4, -1);
}

void mainfrm::Command47_Click() {
    moveLocation(*ui_->List4, 1);
}

void mainfrm::Command13_Click() {
    const std::string name =
        context_.dialogs.inputBox(InputBoxRequest{"Insert font file name", "Orvanta", ""});
    if (!name.empty()) ui_->List2->addItem(toQString(name));
}

void mainfrm::Command12_Click() {
    delete ui_->List2->takeItem(ui_->List2->currentRow());
    ui_->List2->clearSelection();
    listButtonStates();
}

void mainfrm::Command30_Click() {
    const std::string root = projectRootOnDisk(context_.host, workingFolder());
    shellOpen(context_.host, context_.dialogs, inFolder(root, projectfolder::kFonts), "");
}

// The same scan as the saver's: what is new is added, nothing is removed.
void mainfrm::Command32_Click() {
    mainfrmFields fields(*this);
    scanFontsFolder(context_.host, fields, workingFolder());
}

}  // namespace orvanta
