#pragma once
// The packages manager: lists the project's optional packages, adds, changes and removes them,
// keeps the list in "packages.cfg" of the working folder and each package's files in a folder of
// its own below the project's "\packages". The package tables it fills are the process-wide ones.

#include <QDialog>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>

#include "core/Dialogs.h"
#include "editor/PackagesContext.h"
#include "platform/Host.h"
#include "project/PackageTables.h"

namespace Ui {
class packages;
}

namespace orvanta {

class ctlListView;

inline constexpr const char* kPackagesTipCombo5 =
    "You must input the package full path. The package title does not interfer with the package "
    "install location";

class packages : public QDialog {
    Q_OBJECT
public:
    packages(Host& host, Dialogs& dialogs, PackagesContext context, PackageTables& tables = packageTables,
             QWidget* parent = nullptr);
    ~packages() override;

    std::int16_t packageCount() const { return packageCount_; }
    ctlListView* List1() const { return List1_; }

    // Closing by any way writes the editor's button caption.
    void done(int result) override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private slots:
    void Form_Load();
    void Form_Unload();
    void List1_ItemClick(int index);
    void List1_ItemCheck(int index, bool checked);
    void Check1_Click();
    void Check2_Click();
    void Check3_Click();
    void Combo5_Change();
    void Field_Change();
    void Text3_GotFocus();
    void Combo5_MouseMove();
    void Command1_Click();
    void Command2_Click();
    void Command3_Click();
    void Command4_Click();
    void Command5_Click();

private:
    // ---- Steps shared by the events
    void readPackages();
    void readBack();
    void fillFields(int index, bool withCheck1);
    void enableEditControls(bool enabled);
    void showNoPackage();
    void message(std::string_view text);
    // Runs an event's code; a bounds error of the tables is shown as the run-time error it is.
    void trapped(const std::function<void()>& code);

    // ---- The commands
    void enterAddMode();
    void addPackage();
    void leaveAddMode();
    void removePackage();
    void savePackage();
    bool ensurePackageFolder();
    void storeFields(int index);
    void writePackages(std::size_t count, bool skipEmptyNames);

    // ---- Places
    std::string packagesFile() const;
    std::string packageFolder() const;
    std::string packageFolderSize() const;

    bool inAddMode() const;

    Host& host_;
    Dialogs& dialogs_;
    PackagesContext context_;
    PackageTables& tables_;
    std::unique_ptr<Ui::packages> ui_;
    ctlListView* List1_ = nullptr;
    std::int16_t packageCount_ = 0;
    bool checkFromForm_ = false;
};

}  // namespace orvanta
