#pragma once
// The installer's wizard without a window: start, licence, installing and finished, on the panels
// "mainzone(0)" to "mainzone(3)". It reads the saved project, fills a WizardScreen that a view
// draws, takes the view's clicks and the ticks of its timers, and asks the machine only through
// the host. What it really does to the machine is a short list: the common folder, the free space
// and process list it asks for, and the programs and pages the user's clicks open.

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "core/Dialogs.h"
#include "platform/Host.h"
#include "project/PackageTables.h"
#include "setup/PackageChoice.h"
#include "setup/WizardScreen.h"
#include "setup/WizardSettings.h"
#include "setup/WizardWindow.h"

namespace orvanta {

// The saved project the wizard plays, and the two texts it takes live from the editor.
struct WizardProject {
    std::string projectName;    // the name the editor holds
    std::string projectFolder;  // mainsettings.cfg, 1.jpg, logo.png, slicense.txt, preview.png
    std::string workingFolder;  // packages.cfg and the application's "\files"
    std::string introText;
    std::string tipsText;
};

enum class WizardTimer { Timer1, Timer2, Timer3, Timer4, Timer5, Timer6, Timer7, Timer8, NumberFilessleeper };
inline constexpr std::size_t kWizardTimers = 9;

struct TimerState {
    bool enabled = false;
    int interval = 0;  // milliseconds
};

// The common program files folder's own subfolder, where the uninstaller lives.
inline constexpr const char* kCommonFolderName = "O-Vanta";
inline constexpr int kPanelOffsetXTwips = 660;  // where the panels lie on the window's picture
inline constexpr int kPanelOffsetYTwips = 940;

class InstallWizard {
public:
    InstallWizard(Host& host, Dialogs& dialogs, WizardWindow& window, WizardProject project,
                  PackageTables& tables = packageTables, PackageCounters& counters = packageCounters);

    // The creation step, then the load step. False when the project cannot be played; the user
    // has been told why and the window is to close.
    void Form_Initialize();
    bool Form_Load();

    const WizardScreen& screen() const { return screen_; }
    const WizardSettings& settings() const { return settings_; }
    const TimerState& timer(WizardTimer which) const { return timers_[static_cast<std::size_t>(which)]; }
    const std::vector<std::string>& processes() const { return processes_; }
    std::int16_t rollIndex() const { return rollIndex_; }
    std::int16_t rollBack() const { return rollBack_; }
    std::int16_t finishCountdown() const { return finishCountdown_; }
    bool installFinished() const { return installFinished_; }
    std::int16_t fileCount() const { return fileCount_; }
    // The hand cursor over a link label.
    bool linkCursor(const std::string& label) const;
    // The fades the view is to play since it last asked.
    std::vector<FadeRequest> takeFades();

    // ---- Clicks and changes
    void Command1_Click();
    void Command2_Click();
    void isButton1_Click();
    void isButton2_Click();
    void Command6_Click();
    void Label10_Click();
    void Label16_Click();
    void Text1_Change(const std::string& text);
    // A box image (Check1, Check2, Check3, aicAlphaImage2) or a tick (okay, okay2, okay3, okay4).
    void rowClick(const std::string& control);
    // The package chooser went away by itself.
    void packageChooserClosed();
    // A row of the package chooser changed the count of chosen packages.
    void packagesRecounted();
    PackageTables& tables() { return tables_; }
    PackageCounters& counters() { return counters_; }
    void Command3_Click();
    void checks_startup();
    // Starts the watch for a running uninstaller, which the wizard's flow leaves idle.
    void startProcessWatch() { setTimer(WizardTimer::Timer8, true); }

    // ---- Timers, whose ticks the view delivers
    void tick(WizardTimer which);

private:
    // Load
    void paintBackground();
    bool readSettings();
    bool loadPackages();
    void fillStartPanel();
    void fillRows();
    void checkInstalled();
    bool checkWindowsVersion();
    std::string uninstallKey() const;

    // Flow
    bool pathChecked();
    void toLicense();
    void skipLicense();
    void accept();
    void finish();
    bool fullLicenseSet() const { return !settings_.fullLicense.empty(); }
    bool rollOn() const { return flagOn(settings_.rollEffect); }
    void showPanel(int index, bool visible) { screen_[WizardScreen::panel(index)].visible = visible; }
    bool panelVisible(int index) const { return screen_.visible(WizardScreen::panel(index)); }
    void endProgramAfterAsking();

    // Run
    void the_installation();
    void Timer1_Timer();
    void Timer2_Timer();
    void Timer3_Timer();
    void Timer4_Timer();
    void Timer5_Timer();
    void NumberFilessleeper_Timer();

    // Guards of the start panel
    void diskspace();
    void GetProcesses();
    void Timer8_Timer();

    void setTimer(WizardTimer which, bool enabled);
    TimerState& timerState(WizardTimer which) { return timers_[static_cast<std::size_t>(which)]; }
    void tell(const std::string& text, MessageIcon icon);

    Host& host_;
    Dialogs& dialogs_;
    WizardWindow& window_;
    WizardProject project_;
    PackageTables& tables_;
    PackageCounters& counters_;
    WizardScreen screen_;
    WizardSettings settings_;
    std::array<TimerState, kWizardTimers> timers_{};
    std::vector<std::string> processes_;
    std::vector<std::string> licenseLines_;

    std::int16_t rollIndex_ = 0;
    std::int16_t rollBack_ = 0;
    std::int16_t finishCountdown_ = 8;
    bool installFinished_ = false;
    bool installPending_ = false;
    std::int16_t fileCount_ = 0;
    std::int16_t fileStep_ = 0;
    std::string commonFolder_;
};

}  // namespace orvanta
