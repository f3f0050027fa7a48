#include "controls/frmButton.h"

#include <QFileSystemModel>

#include "controls/QtText.h"
#include "controls/rules/ModBrowse.h"
#include "ui_frmButton.h"

namespace orvanta {

frmButton::frmButton(Host& host, Dialogs& dialogs, QWidget* parent)
    : QDialog(parent),
      host_(host),
      dialogs_(dialogs),
      ui_(std::make_unique<Ui::frmButton>()),
      model_(new QFileSystemModel(this)) {
    ui_->setupUi(this);
    model_->setFilter(QDir::AllDirs | QDir::Drives | QDir::NoDotAndDotDot);
    model_->setRootPath(QString());
    ui_->Tree1->setModel(model_);
    for (int column = 1; column < model_->columnCount(); ++column) ui_->Tree1->hideColumn(column);
    connect(ui_->Tree1->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &frmButton::selectionChanged);
    connect(ui_->Command1, &QPushButton::clicked, this, &frmButton::Command1_Click);
    connect(ui_->buttonBox, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(ui_->buttonBox, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

frmButton::~frmButton() = default;

void frmButton::prepare(const FolderBrowserRequest& request) {
    setWindowTitle(toQString(request.title));
    ui_->lblTitle->setText(toDisplayText(request.title));
    ui_->Check1->setVisible(request.showRecurse);
    ui_->Check1->setChecked(false);
    ui_->Command1->setVisible(request.showCreate);
    currentPath_ = request.initialFolder;
    selectFolder(request.initialFolder);
}

FolderBrowserAnswer frmButton::Browse(const FolderBrowserRequest& request) {
    prepare(request);
    if (exec() != QDialog::Accepted) return {};
    return answer();
}

FolderBrowserAnswer frmButton::answer() const {
    return {currentPath_, !ui_->Check1->isHidden() && ui_->Check1->isChecked()};
}

void frmButton::selectFolder(const std::string& windowsPath) {
    const QModelIndex index = model_->index(toQtPath(host_, windowsPath));
    if (!index.isValid()) return;
    ui_->Tree1->setCurrentIndex(index);
    ui_->Tree1->scrollTo(index);
}

void frmButton::selectionChanged() {
    const QModelIndex index = ui_->Tree1->currentIndex();
    if (index.isValid()) currentPath_ = fromQtPath(host_, model_->filePath(index));
}

void frmButton::Command1_Click() {
    // The dialog stays open whatever happens; only a new folder moves the selection.
    if (const auto created = createFolderAsked(host_, dialogs_, currentPath_)) {
        currentPath_ = *created;
        selectFolder(*created);
    }
}

}  // namespace orvanta
