// The installing step as the simulator plays it: a second of progress, then the countdown of the
// finish button. The file count and the startup entry of the real installer stay here, unreached
// by the wizard's flow.
#include <cmath>
#include <limits>

#include "core/RegistryAPI.h"
#include "core/commonFunctions.h"
#include "project/LineFile.h"
#include "setup/InstallWizard.h"

namespace orvanta {

namespace {

constexpr int kFullProgress = 100;

}  // namespace

void InstallWizard::the_installation() {
    installPending_ = false;
    screen_.busyPointer = true;
    for (const char* button : {"Command1", "Command2", "isButton2"}) screen_[button].visible = false;
    showPanel(0, true);
    screen_["preview"].picture = project_.projectFolder + "\\preview.png";
    window_.processPendingEvents();
    for (int step = 0; step < 4; ++step) screen_["pb"].value += 5;
    screen_["Image1"].left += 800;
    // The step is a 16-bit product: past 327 files it cannot be held, and the bar then fills in
    // one step instead of ending the program.
    const int product = fileCount_ * 100;
    if (product > std::numeric_limits<std::int16_t>::max()) {
        tell("The installation counts " + std::to_string(fileCount_) +
                 " files, more than its progress step can follow (327 at most); the progress bar fills "
                 "in one step.",
             MessageIcon::Information);
        fileStep_ = 0;
    } else {
        fileStep_ = static_cast<std::int16_t>(std::lround(product / 80.0));
    }
    setTimer(WizardTimer::Timer1, true);
}

void InstallWizard::Timer1_Timer() {
    ControlState& progress = screen_["pb"];
    if (progress.value != kFullProgress) progress.value += fileStep_;
    setTimer(WizardTimer::Timer3, true);
    progress.value = kFullProgress;
    screen_["Label13"].text = "Complete!";
    installFinished_ = true;
    setTimer(WizardTimer::Timer2, true);
    screen_["Command1"].text = "Finish";
    screen_["Command1"].visible = true;
    screen_["Command2"].enabled = true;
    screen_.busyPointer = false;
    setTimer(WizardTimer::Timer1, false);
    if (flagOn(settings_.instantInstall)) window_.closeWindow();
}

void InstallWizard::Timer2_Timer() {
    screen_["Command1"].text = "Finish (" + std::to_string(finishCountdown_) + ")";
    --finishCountdown_;
    if (finishCountdown_ != -1) return;
    Command1_Click();
    setTimer(WizardTimer::Timer2, false);
}

void InstallWizard::Timer3_Timer() {
    screen_["installing"].rotation += installFinished_ ? 2 : 12;
}

void InstallWizard::checks_startup() {
    if (!screen_.visible("okay3")) return;
    RegistryAPI(host_).writeRegistryString("HKLM\\SOFTWARE\\MICROSOFT\\WINDOWS\\CURRENTVERSION\\RUN\\",
                                           settings_.appName, project_.projectName);
}

void InstallWizard::Command3_Click() {
    const std::string folder = host_.applicationFolder();
    const std::string batch = folder + "\\numberfiles.bat";
    const std::string text = "Dir /B /s \"" + folder + "\\files\" > \"" + folder + "\\myfiles.txt\"\r\n" +
                             "del \"" + batch + "\"\r\n";
    if (!host_.writeFileAtomic(batch, text)) return;
    host_.shellExecute(batch, "", kWindowHidden);
    setTimer(WizardTimer::NumberFilessleeper, true);
}

void InstallWizard::NumberFilessleeper_Timer() {
    const std::string folder = host_.applicationFolder();
    if (fileExists(host_, folder + "\\numberfiles.bat") == kTrue) return;
    setTimer(WizardTimer::NumberFilessleeper, false);
    const auto lines = readLines(host_, folder + "\\myfiles.txt", kContentListLines);
    const std::size_t count = static_cast<std::size_t>(fileCount_) + (lines ? lines->size() : 0);
    // A 16-bit count: more files than it holds are told, not a reason to end the program.
    if (count > static_cast<std::size_t>(std::numeric_limits<std::int16_t>::max())) {
        tell("The installation holds " + std::to_string(count) +
                 " files, more than the file count can hold (" +
                 std::to_string(std::numeric_limits<std::int16_t>::max()) + ").",
             MessageIcon::Exclamation);
        return;
    }
    fileCount_ = static_cast<std::int16_t>(count);
    tell(std::to_string(fileCount_), MessageIcon::None);
}

void InstallWizard::tick(WizardTimer which) {
    if (!timer(which).enabled) return;  // a tick queued before its timer stopped
    switch (which) {
        case WizardTimer::Timer1:
            return Timer1_Timer();
        case WizardTimer::Timer2:
            return Timer2_Timer();
        case WizardTimer::Timer3:
            return Timer3_Timer();
        case WizardTimer::Timer4:
            return Timer4_Timer();
        case WizardTimer::Timer5:
            return Timer5_Timer();
        case WizardTimer::Timer6:
            return;
        case WizardTimer::Timer7:
            timerState(which).interval = 4000;
            return;
        case WizardTimer::Timer8:
            return Timer8_Timer();
        case WizardTimer::NumberFilessleeper:
            return NumberFilessleeper_Timer();
    }
}

}  // namespace orvanta
