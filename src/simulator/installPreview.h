#pragma once
// The simulator: the installer's wizard played in a window over a saved project. The wizard
// itself lives in InstallWizard; this window draws its screen, hands it clicks and typing, and
// runs its timers.

#include <QPointer>
#include <QWidget>
#include <array>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>

#include "core/Dialogs.h"
#include "platform/Host.h"
#include "setup/InstallWizard.h"

class QTimer;

namespace Ui {
class installPreview;
}

namespace orvanta {

class WizardPanel;
class installPackages;

struct installPreviewContext {
    installPreviewContext(Host& hostIn, Dialogs& dialogsIn) : host(hostIn), dialogs(dialogsIn) {}

    Host& host;
    Dialogs& dialogs;
    WizardProject project;
    std::function<bool()> unsavedChanges;  // of the open project
    std::function<void()> endProgram;      // ends the whole program, editor included
};

class installPreview : public QWidget, public WizardWindow {
    Q_OBJECT
public:
    explicit installPreview(installPreviewContext context, QWidget* parent = nullptr);
    ~installPreview() override;

    // Creation and load; false when the project cannot be played and the window has closed.
    bool start();
    // The backgrounds manager's viewer: the wizard shows another picture and cannot be left.
    void showBackground(const std::string& picture);
    void lockAsViewer();

    Ui::installPreview& controls() { return *ui_; }
    InstallWizard& wizard() { return wizard_; }
    // The control the wizard knows by `name` ("mainzone(0)", "Label11(1)"); nullptr for none.
    QWidget* control(const std::string& name) const;
    std::array<WizardPanel*, 4> mainzone{};
    QTimer* timer(WizardTimer which) { return timers_[static_cast<std::size_t>(which)]; }
    // A tick of one of the wizard's timers, as the timer gives it; the tests give their own.
    void deliverTick(WizardTimer which);
    installPackages* packageChooser() const;
    // Draws the wizard's screen into the controls; the tests call it after driving the model.
    void sync();

    // WizardWindow
    void processPendingEvents() override;
    void closeWindow() override;
    void endProgram() override;
    bool unsavedChanges() override;
    void showPackageChooser() override;
    void closePackageChooser() override;

public slots:
    void Command1_Click();
    void Command2_Click();
    void isButton1_Click();
    void isButton2_Click();
    void Command6_Click();
    void Text1_Change(const QString& text);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void mapControls();
    void connectEvents();
    void loadDeliveredPictures();
    void syncControl(const std::string& name, const ControlState& state);
    void syncPicture(QWidget& widget, const ControlState& state);
    void syncTimers();
    void syncBackground();
    template <typename Event>
    void handle(Event event);

    installPreviewContext context_;
    std::unique_ptr<Ui::installPreview> ui_;
    InstallWizard wizard_;
    std::map<std::string, QWidget*, std::less<>> widgets_;
    std::map<QWidget*, std::string> loadedPictures_;
    std::array<QTimer*, kWizardTimers> timers_{};
    QPointer<installPackages> chooser_;
    std::string shownBackground_;
    std::optional<std::string> viewerBackground_;
    bool viewer_ = false;
    bool closing_ = false;
};

}  // namespace orvanta
