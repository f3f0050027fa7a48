#pragma once
// The folder dialog of the folder chooser: a folder tree with the "INCLUDE SUBFOLDERS" box and
// the "Create" button on it. It lives for one call of Browse.

#include <QDialog>
#include <memory>
#include <string>

#include "core/Dialogs.h"
#include "platform/Host.h"

class QFileSystemModel;
namespace Ui {
class frmButton;
}

namespace orvanta {

class frmButton : public QDialog {
    Q_OBJECT
public:
    frmButton(Host& host, Dialogs& dialogs, QWidget* parent = nullptr);
    ~frmButton() override;

    // Runs the whole session: the chosen folder and the box's state, or an empty folder.
    FolderBrowserAnswer Browse(const FolderBrowserRequest& request);

    // The steps of Browse, apart so that a test can act on the dialog without running it.
    void prepare(const FolderBrowserRequest& request);
    FolderBrowserAnswer answer() const;
    const std::string& currentPath() const { return currentPath_; }

private slots:
    void Command1_Click();

private:
    void selectFolder(const std::string& windowsPath);
    void selectionChanged();

    Host& host_;
    Dialogs& dialogs_;
    std::unique_ptr<Ui::frmButton> ui_;
    QFileSystemModel* model_;
    std::string currentPath_;
};

}  // namespace orvanta
