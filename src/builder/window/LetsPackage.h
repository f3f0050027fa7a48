#pragma once
// The package dialog: the archiver, the compression level and verbose mode, and the button that
// starts the build. A thin view over its model; the build itself is reached through a hook.

#include <QDialog>
#include <functional>
#include <memory>

#include "builder/BuildProgress.h"
#include "builder/BuildSetup.h"
#include "builder/PackageDialogModel.h"
#include "core/Dialogs.h"
#include "platform/Host.h"

namespace Ui {
class LetsPackage;
}

namespace orvanta {

struct LetsPackageContext {
    Host& host;
    Dialogs& dialogs;
    // Builds the open project with the setup given, reporting to the progress window.
    std::function<void(const BuildSetup&, BuildProgress&)> packageexe;
    int* packagerItemIndex = nullptr;  // the editor's, which a build resets
};

class LetsPackage : public QDialog {
    Q_OBJECT
public:
    // Loads at once: a machine without archivers is told so before the window shows.
    LetsPackage(LetsPackageContext context, QWidget* editor);
    ~LetsPackage() override;

    Ui::LetsPackage& controls() { return *ui_; }

public slots:
    void Option1_Click();
    void Option2_Click();
    void Combo1_Click(int index);
    void Check2_Click(bool checked);
    void Command1_Click();
    void Command2_Click();

private:
    void showState();

    LetsPackageContext context_;
    std::unique_ptr<Ui::LetsPackage> ui_;
    PackageDialogModel model_;
};

}  // namespace orvanta
