#pragma once
// The progress window of a build. It stands over the editor, which it disables while it is up;
// it cannot be closed by the user until the build closes it; and it holds the two choices of
// what happens to the package when the build is done.

#include <QPointer>
#include <QWidget>
#include <memory>

#include "builder/BuildProgress.h"
#include "core/Dialogs.h"
#include "platform/Host.h"

namespace Ui {
class packaging;
}

namespace orvanta {

class ctlProgressBar;

class packaging : public QWidget, public BuildProgress {
    Q_OBJECT
public:
    // `editor` owns the window; `packageDialog` is hidden before the archiver runs.
    packaging(Host& host, Dialogs& dialogs, QWidget* editor, QWidget* packageDialog);
    ~packaging() override;

    Ui::packaging& controls() { return *ui_; }
    ctlProgressBar* ProgressBar1 = nullptr;

    void show() override;
    int value() const override;
    void setValue(int value) override;
    void setCaption(const std::string& caption) override;
    void processPendingEvents() override;
    void pause(int milliseconds) override;
    void hidePackageDialog() override;
    bool openFolderWhenDone() const override;
    bool openPackageWhenDone() const override;
    void close() override;

public slots:
    void Check1_Click(bool checked);
    void Check2_Click(bool checked);

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    Host& host_;
    std::unique_ptr<Ui::packaging> ui_;
    QPointer<QWidget> editor_;
    QPointer<QWidget> packageDialog_;
    bool up_ = false;  // shown by the build and not yet closed by it
};

}  // namespace orvanta
