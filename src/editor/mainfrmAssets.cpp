// The single files of a working set beside its lists: logo, any-file, background, full licence,
// preview image and the settings sets. Each button copies a picked file into the working set; a
// step that fails ends the action silently, and what was done before it stays.
#include <QPushButton>

#include "core/CommondialogBox.h"
#include "core/commonFunctions.h"
#include "core/vars.h"
#include "editor/FormText.h"
#include "editor/Mnemonics.h"
#include "editor/mainfrm.h"
#include "image/widget/aicAlphaImage.h"
#include "platform/CaseFolding.h"
#include "project/ProjectPaths.h"
#include "ui_mainfrm.h"

namespace orvanta {

namespace {

std::string nameBehindLastSlash(const std::string& path) {
    const std::size_t slash = path.rfind('\\');
    return slash == std::string::npos ? path : path.substr(slash + 1);
}

// A web address or a full path is opened as it stands; anything else names a file of the working set.
bool standsAlone(const std::string& target) {
    return target.rfind("http", 0) == 0 || target.rfind("www.", 0) == 0 ||
           target.find(":\\") != std::string::npos;
}

}  // namespace

void mainfrm::connectAssets() {
    const std::pair<QPushButton*, void (mainfrm::*)()> buttons[] = {
        {ui_->Command15, &mainfrm::Command15_Click}, {ui_->Command40, &mainfrm::Command40_Click},
        {ui_->Command14, &mainfrm::Command14_Click}, {ui_->Command38, &mainfrm::Command38_Click},
        {ui_->Command16, &mainfrm::Command16_Click}, {ui_->Command8, &mainfrm::Command8_Click},
        {ui_->Command41, &mainfrm::Command41_Click}, {ui_->Command26, &mainfrm::Command26_Click},
        {ui_->Command39, &mainfrm::Command39_Click}, {ui_->Command36, &mainfrm::Command36_Click},
        {ui_->Command37, &mainfrm::Command37_Click}, {ui_->Command44, &mainfrm::Command44_Click}};
    for (const auto& [button, slot] : buttons) connect(button, &QPushButton::clicked, this, slot);
    connect(ui_->Command1, &QPushButton::clicked, this, [this] {
        if (context_.showBackgrounds) context_.showBackgrounds();
    });
    // A project that opens, or a switch of working set, brings its own preview.
    connect(ui_->Text2, &QLineEdit::textChanged, this, &mainfrm::loadPreview);
}

std::string mainfrm::pickFile(const std::string& title, const std::string& filter, const std::string& pattern,
                              const std::string& folder) {
    return openFileDialog(context_.dialogs, filter, pattern, folder, title).path;
}

void mainfrm::Command15_Click() {
    const std::string picked = pickFile("Select a logo image", "PNG Image|*.png", "*.png", "");
    if (picked.empty()) return;
    if (!ui_->logo->LoadImage_FromFile(picked)) {
        reportUnreadablePicture(*ui_->logo, picked);
        showAgain(*ui_->logo, workingFolder() + "\\logo.png");
        return;
    }
    if (!ui_->logo2->LoadImage_FromFile(picked)) return;
    if (!context_.host.copyFile(picked, workingFolder() + "\\logo.png")) return;
    ui_->Command40->setEnabled(true);
    noway[1]->hide();
    setCaptionKeepingMnemonic(*ui_->Command15, QStringLiteral("Replace logo"));
}

void mainfrm::Command40_Click() {
    ui_->logo2->ClearImage();
    ui_->logo->ClearImage();
    context_.host.deleteFile(workingFolder() + "\\logo.png");
    ui_->Command40->setEnabled(false);
    noway[1]->show();
    setCaptionKeepingMnemonic(*ui_->Command15, QStringLiteral("Add logo"));
}

void mainfrm::Command14_Click() {
    const std::string picked =
        pickFile("Select a executable or any kind of file type", "All files|*.*", "*.*", "");
    if (picked.empty()) return;
    const std::string name = nameBehindLastSlash(picked);
    setTextOf(*ui_->Text27, name);
    // A file of the working set itself cannot be copied onto itself: the field stays filled all the same.
    const std::string copy = workingFolder() + "\\" + name;
    if (equalsIgnoringCase(picked, copy) || !context_.host.copyFile(picked, copy)) return;
    ui_->Command38->setEnabled(true);
}

void mainfrm::Command38_Click() {
    const std::string file = workingFolder() + "\\" + textOf(*ui_->Text27);
    if (!ui_->Text27->text().isEmpty() && fileExists(context_.host, file)) context_.host.deleteFile(file);
    ui_->Text27->clear();
    ui_->Command38->setEnabled(false);
}

void mainfrm::Command16_Click() {
    const std::string picked = pickFile("Select a full license file", "All files|*.*", "*.*", "");
    if (picked.empty()) return;
    const std::string name = nameBehindLastSlash(picked);
    const std::string copy = workingFolder() + "\\" + name;
    // A file picked from the working set itself cannot be copied onto itself, but is there all the same.
    if (!context_.host.copyFile(picked, copy) && !fileExists(context_.host, copy)) return;
    setTextOf(*ui_->Text5, name);
}

void mainfrm::Command8_Click() {
    const std::string target = textOf(*ui_->Text5);
    if (target.empty()) return;
    shellOpen(context_.host, context_.dialogs, standsAlone(target) ? target : workingFolder() + "\\" + target,
              "");
}

void mainfrm::Command41_Click() {
    const std::string target = textOf(*ui_->Text5);
    const std::string file = workingFolder() + "\\" + target;
    if (!target.empty() && !standsAlone(target) && fileExists(context_.host, file))
        context_.host.deleteFile(file);
    ui_->Text5->clear();
}

void mainfrm::Command26_Click() {
    const std::string picked = pickFile("Select a preview image", "PNG Image|*.png", "*.png", "");
    if (picked.empty()) return;
    if (!ui_->aicAlphaImage1->LoadImage_FromFile(picked)) {
        reportUnreadablePicture(*ui_->aicAlphaImage1, picked);
        showAgain(*ui_->aicAlphaImage1, workingFolder() + "\\preview.png");
        return;
    }
    if (!context_.host.copyFile(picked, workingFolder() + "\\preview.png")) return;
    ui_->Command39->setEnabled(true);
    noway[0]->hide();
}

void mainfrm::Command39_Click() {
    ui_->aicAlphaImage1->ClearImage();
    context_.host.deleteFile(workingFolder() + "\\preview.png");
    ui_->Command39->setEnabled(false);
    noway[0]->show();
}

void mainfrm::loadPreview() {
    if (workingFolder().empty()) return;
    const std::string file = workingFolder() + "\\preview.png";
    const bool shown = fileExists(context_.host, file) && ui_->aicAlphaImage1->LoadImage_FromFile(file);
    if (!shown) ui_->aicAlphaImage1->ClearImage();
    noway[0]->setVisible(!shown);
    ui_->Command39->setEnabled(shown);
}

// A picked picture that fails to load leaves the working set's own picture on show.
void mainfrm::showAgain(aicAlphaImage& control, const std::string& file) {
    if (fileExists(context_.host, file)) control.LoadImage_FromFile(file);
}

void mainfrm::reportUnreadablePicture(const aicAlphaImage& control, const std::string& path) {
    const std::string& error = control.image().LoadError();
    if (error.empty()) return;
    context_.dialogs.messageBox({"The picture " + path + " could not be shown.\r\n" + error,
                                 MessageButtons::Ok, MessageIcon::Exclamation, "Orvanta"});
}

void mainfrm::Command36_Click() {
    shellOpen(context_.host, context_.dialogs,
              backgroundsFolder(vars::workspaceFolder) + "\\installationBackground.psd", "");
}

void mainfrm::Command37_Click() {
    shellOpen(context_.host, context_.dialogs,
              backgroundsFolder(vars::workspaceFolder) + "\\installationBackground2.psd", "");
}

void mainfrm::Command44_Click() {
    auto* window = new settingsSetsfrm(context_.host, context_.dialogs, workingFolder(), settingsSets, this);
    window->setAttribute(Qt::WA_DeleteOnClose);
    window->show();
}

}  // namespace orvanta
