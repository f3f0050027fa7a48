// The two guards of the start panel: the free space of the target drive, and the watch for a
// running uninstaller.
#include <algorithm>

#include "platform/CaseFolding.h"
#include "setup/InstallWizard.h"
#include "setup/NumberWords.h"

namespace orvanta {

void InstallWizard::diskspace() {
    const std::string& path = screen_.text("Text1");
    double freeBytes = 0;
    if (!path.empty()) {
        // Taken wide: a drive with more free sectors than 31 bits hold shows its space instead of
        // ending the program.
        if (const auto space = host_.diskSpace(std::string(1, path[0]) + ":\\"))
            freeBytes = static_cast<double>(static_cast<std::uint64_t>(space->sectorsPerCluster) *
                                            space->freeClusters) *
                        space->bytesPerSector;
    }
    if (freeBytes <= 0) {
        screen_["Label17"].text = "Not enough disk space available!";
        screen_["Label17"].visible = true;
        screen_["Command1"].enabled = false;
    } else {
        screen_["Label17"].visible = false;
        screen_["Command1"].enabled = true;
        const double gigabytes = freeBytes / 1024.0 / 1024.0 / 1024.0;
        screen_["Label10"].text = "Space available on disk " + path.substr(0, 3) +
                                  " after install: " + roundedNumberText(gigabytes, 3) + " GB";
    }
    if (screen_.text("Label17") == "Already installed!") {
        screen_["Label17"].visible = true;
        screen_["Label10"].text = "Click here to uninstall " + settings_.appName;
        setTimer(WizardTimer::Timer7, true);
    }
}

void InstallWizard::GetProcesses() {
    for (std::string& name : host_.processNames()) processes_.push_back(std::move(name));
}

void InstallWizard::Timer8_Timer() {
    timerState(WizardTimer::Timer8).interval = 4000;
    processes_.clear();
    GetProcesses();
    const bool uninstallerRuns =
        std::any_of(processes_.begin(), processes_.end(),
                    [](const std::string& name) { return toLowerCase(name) == "uninstall.exe"; });
    if (uninstallerRuns) {
        setTimer(WizardTimer::Timer7, false);
        screen_["Label17"].text = "Close uninstaller before (re)installing.";
        screen_["Command1"].enabled = false;
        return;
    }
    screen_["Label17"].text = "Already installed!";
    screen_["Command1"].enabled = true;
    timerState(WizardTimer::Timer7).interval = 100;
    setTimer(WizardTimer::Timer7, true);
}

}  // namespace orvanta
