// The view of the application's files: two lists mirroring the project's "\files" folder, and the
// choice of the main executable from it.
#include <QListWidget>
#include <QPushButton>

#include "core/CommondialogBox.h"
#include "core/vars.h"
#include "editor/FormText.h"
#include "editor/mainfrm.h"
#include "editor/rules/MainExecutable.h"
#include "project/ApplicationFiles.h"
#include "ui_mainfrm.h"

namespace orvanta {

namespace {

void fill(QListWidget& list, const std::vector<std::string>& entries) {
    list.clear();
    QStringList texts;
    texts.reserve(static_cast<qsizetype>(entries.size()));
    for (const std::string& entry : entries) texts.push_back(toQString(entry));
    list.addItems(texts);
}

}  // namespace

void mainfrm::connectFilesView() {
    connect(ui_->Command33, &QPushButton::clicked, this, &mainfrm::Command33_Click);
    connect(ui_->Command34, &QPushButton::clicked, this, &mainfrm::Command34_Click);
    connect(ui_->Command45, &QPushButton::clicked, this, &mainfrm::Command45_Click);
}

// The lists always mirror the project's top folder, whatever working set is open.
void mainfrm::Command33_Click() {
    const std::string base = applicationFilesBase(vars::workspaceFolder, textOf(*ui_->Text1));
    fill(*ui_->List6, refreshedFiles(context_.host, base));
}

void mainfrm::Command34_Click() {
    const std::string base = applicationFilesBase(vars::workspaceFolder, textOf(*ui_->Text1));
    fill(*ui_->List7, refreshedFolders(context_.host, base));
}

void mainfrm::Command45_Click() {
    const std::string folder = workingFolder() + "\\files";
    choosingExecutable_ = true;
    const OpenFileResult picked =
        openFileDialog(context_.dialogs, "Executable files|*.exe;*.bat", "*.exe,*.bat", folder,
                       "Select the application main executable");
    choosingExecutable_ = false;
    if (picked.path.empty()) return;
    setTextOf(*ui_->Text21, mainExecutableName(picked.path, folder));
}

}  // namespace orvanta
