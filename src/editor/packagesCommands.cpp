// The packages manager's buttons: add, cancel, remove, save, open the folder, close; and where
// the package's list and files lie.
#include <cstdio>

#include "controls/QtText.h"
#include "controls/ctlListView.h"
#include "core/DirRecurse.h"
#include "core/commonFunctions.h"
#include "core/vars.h"
#include "editor/packages.h"
#include "editor/rules/PackageLocation.h"
#include "project/ProjectPaths.h"
#include "ui_packages.h"

namespace orvanta {

namespace {

std::string wholeNumberText(double value) {
    char text[32];
    std::snprintf(text, sizeof text, "%.0f", value);
    return text;
}

std::string call(const std::function<std::string()>& field) {
    return field ? field() : std::string();
}

}  // namespace

void packages::Command1_Click() {
    close();
}

void packages::Command2_Click() {
    trapped([this] { inAddMode() ? addPackage() : enterAddMode(); });
}

void packages::Command3_Click() {
    trapped([this] { ui_->Command3->text() == QLatin1String("C") ? leaveAddMode() : removePackage(); });
}

void packages::Command4_Click() {
    trapped([this] { savePackage(); });
}

void packages::Command5_Click() {
    const std::string folder = inFolder(inFolder(call(context_.workingFolder), projectfolder::kPackages),
                                        fromQString(ui_->Text1->text()));
    shellOpen(host_, dialogs_, folder, "");
}

// ---- Adding

void packages::enterAddMode() {
    ui_->Command4->setEnabled(false);
    ui_->Command5->setEnabled(false);
    enableEditControls(true);
    ui_->Command2->setText(QStringLiteral("OK"));
    ui_->Command3->setEnabled(true);
    ui_->Command3->setText(QStringLiteral("C"));
    ui_->Text1->clear();
    ui_->Text2->clear();
    ui_->Combo5->setEditText(QStringLiteral("<>\\"));
    ui_->Text3->setText(QStringLiteral("0"));
    ui_->Text1->setFocus();
}

void packages::addPackage() {
    const std::string location = fromQString(ui_->Combo5->currentText());
    if (!hasLocationStructure(location)) return message(kLocationStructureMessage);
    if (isRootLocation(location)) return message(kRootLocationMessage);
    // Made before add mode ends, so that a project without its "\packages" folder keeps the
    // user in the edit instead of losing what was typed.
    if (!ensurePackageFolder()) return;
    ui_->Command2->setText(QStringLiteral("+"));
    ui_->Command3->setText(QStringLiteral("-"));
    ui_->Command3->setEnabled(false);
    const int rows = List1_->ListItemsCount();
    storeFields(rows);
    writePackages(static_cast<std::size_t>(rows) + 1, false);
    host_.processPendingMessages();
    readBack();
    List1_->Refresh();
    showNoPackage();
}

void packages::leaveAddMode() {
    ui_->Command2->setText(QStringLiteral("+"));
    ui_->Command3->setEnabled(false);
    ui_->Command3->setText(QStringLiteral("-"));
    ui_->Text1->clear();
    ui_->Text2->clear();
    ui_->Command2->setFocus();
}

// ---- Removing and saving

void packages::removePackage() {
    const int selected = List1_->SelectedItemIndex();
    if (selected == -1) return;
    const int rows = List1_->ListItemsCount();
    tables_.slot(selected) = Package{};
    List1_->ListItemsRemove(selected);
    // The package's folder and files stay on the disk.
    writePackages(static_cast<std::size_t>(rows), true);
    readBack();
    showNoPackage();
}

void packages::savePackage() {
    const int selected = List1_->SelectedItemIndex();
    if (selected == -1) return;
    const std::string location = fromQString(ui_->Combo5->currentText());
    if (!hasLocationStructure(location) || isRootLocation(location)) return message(kLocationMessage);
    // These roots alone are refused just above; the rule only bites if that test is ever relaxed.
    if (clearsRemoveByDefaultOnSave(location)) ui_->Check3->setChecked(false);
    if (!ensurePackageFolder()) return;
    ui_->Text3->setText(toQString(packageFolderSize()));
    storeFields(selected);
    writePackages(static_cast<std::size_t>(List1_->ListItemsCount()), false);
    readBack();
    List1_->Refresh();
    // The saved row stays the one in the fields.
    List1_->setListItemsSelected(selected, true);
    List1_ItemClick(selected);
}

// After a package has gone in or out no row is selected, so nothing can be changed.
void packages::showNoPackage() {
    ui_->Text1->clear();
    ui_->Text2->clear();
    ui_->Text3->clear();
    ui_->Combo5->setEditText(QStringLiteral("<>\\"));
    enableEditControls(false);
    ui_->Command3->setEnabled(false);
    ui_->Command4->setEnabled(false);
    ui_->Command5->setEnabled(false);
}

void packages::storeFields(int index) {
    Package& package = tables_.slot(index);
    package.name = fromQString(ui_->Text1->text());
    package.installLocation = fromQString(ui_->Combo5->currentText());
    package.description = fromQString(ui_->Text2->text());
    package.installByDefault = ui_->Check1->isChecked() ? "1" : "0";
    package.required = ui_->Check2->isChecked() ? "1" : "0";
    package.occupiedSpace = fromQString(ui_->Text3->text());
    package.removeByDefault = ui_->Check3->isChecked() ? "1" : "0";
}

void packages::writePackages(std::size_t count, bool skipEmptyNames) {
    const std::string path = packagesFile();
    if (!tables_.write(host_, path, count, skipEmptyNames)) message("Could not write \"" + path + "\".");
}

bool packages::ensurePackageFolder() {
    const std::string folder = packageFolder();
    if (folderExists(host_, folder) == kTrue || host_.createFolder(folder)) return true;
    message("Could not create the package folder \"" + folder +
            "\": the project's \"packages\" folder is missing.");
    return false;
}

// ---- Places

std::string packages::packagesFile() const {
    return inFolder(call(context_.workingFolder), projectfile::kPackages);
}

// Below the project's root, whichever working set is open.
std::string packages::packageFolder() const {
    const std::string root = projectRootOnDisk(host_, call(context_.workingFolder));
    return inFolder(inFolder(root, projectfolder::kPackages), fromQString(ui_->Text1->text()));
}

std::string packages::packageFolderSize() const {
    return wholeNumberText(folderSize(host_, packageFolder(), true));
}

}  // namespace orvanta
