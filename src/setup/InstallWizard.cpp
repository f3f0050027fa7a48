#include "setup/InstallWizard.h"

#include "core/RegistryAPI.h"
#include "core/SpecialFolderAPI.h"
#include "core/commonFunctions.h"
#include "project/NumberText.h"
#include "setup/InstallLocation.h"
#include "setup/NumberWords.h"

namespace orvanta {

InstallWizard::InstallWizard(Host& host, Dialogs& dialogs, WizardWindow& window, WizardProject project,
                             PackageTables& tables, PackageCounters& counters)
    : host_(host),
      dialogs_(dialogs),
      window_(window),
      project_(std::move(project)),
      tables_(tables),
      counters_(counters) {
    const std::pair<WizardTimer, int> intervals[] = {
        {WizardTimer::Timer1, 1000}, {WizardTimer::Timer2, 1000}, {WizardTimer::Timer3, 50},
        {WizardTimer::Timer4, 1},    {WizardTimer::Timer5, 1},    {WizardTimer::Timer6, 100},
        {WizardTimer::Timer7, 100},  {WizardTimer::Timer8, 100},  {WizardTimer::NumberFilessleeper, 500}};
    for (const auto& [which, interval] : intervals) timerState(which).interval = interval;
}

void InstallWizard::Form_Initialize() {
    // The common controls of an old system are refreshed from the program's own copy, only where
    // the system already has that file. Hosts whose controls are Qt's have none, and nothing happens.
    const std::string system = specialFolder(host_, kFolderSystem32Bit);
    if (fileExists(host_, system + "comctl32.ocx") == kFalse) return;
    if (host_.copyFile(host_.applicationFolder() + "\\comctl32.ocx", system + "comctl32.ocx"))
        host_.startProcess("regsvr32 -s comctl32.ocx", kWindowHidden);
}

bool InstallWizard::Form_Load() {
    rollIndex_ = 0;
    rollBack_ = 0;
    paintBackground();
    commonFolder_ = specialFolder(host_, kFolderCommonProgramFiles) + kCommonFolderName;
    if (folderExists(host_, commonFolder_) == kFalse) host_.createFolder(commonFolder_);
    finishCountdown_ = 8;
    if (!readSettings()) {
        tell("The project's settings could not be read from " + project_.projectFolder +
                 "\\mainsettings.cfg. Save the project, then start the simulation again.",
             MessageIcon::Exclamation);
        return false;
    }
    screen_["Label18"].text = "Choose your desired options then run " + settings_.appName + " or just exit.";
    screen_["Label22"].text = "Version: " + settings_.appVersion;
    if (parseNumber(settings_.startupOption) == 0.0) {
        screen_["Label18"].visible = false;
        screen_["Line1"].visible = false;
    }
    if (!loadPackages()) return false;
    fillStartPanel();
    checkInstalled();
    diskspace();
    if (!checkWindowsVersion()) return false;
    if (flagOn(settings_.instantInstall)) {
        showPanel(0, false);
        showPanel(1, true);
        Command1_Click();
    }
    return true;
}

void InstallWizard::paintBackground() {
    const std::string background = project_.projectFolder + "\\1.jpg";
    if (fileExists(host_, background) == kTrue) screen_.background = background;
}

bool InstallWizard::readSettings() {
    auto read = readWizardSettings(host_, project_.projectFolder + "\\mainsettings.cfg");
    if (read) settings_ = std::move(*read);
    return read.has_value();
}

bool InstallWizard::loadPackages() {
    const std::string path = project_.workingFolder + "\\packages.cfg";
    const PackageReading reading = readPackages(host_, path, tables_);
    if (!reading.opened) {
        tell("The packages of this working set could not be read from " + path +
                 ". Save the project, then start the simulation again.",
             MessageIcon::Exclamation);
        return false;
    }
    if (!reading.error.empty()) {
        tell(reading.error + " Correct it in the packages manager, then start the simulation again.",
             MessageIcon::Exclamation);
        return false;
    }
    counters_ = reading.counters;
    const bool any = counters_.total > 0;
    screen_["Label21"].visible = any;
    screen_["Command6"].visible = any;
    if (any) screen_["Label21"].text = packagesToInstallText(counters_);
    return true;
}

void InstallWizard::fillStartPanel() {
    const WizardSettings& s = settings_;
    screen_["Label7"].text = s.licenseTitle;
    screen_["Label16"].text = s.website.empty() ? s.appAuthor : s.appAuthor + " - " + s.website;
    fillRows();
    screen_.title = s.appName + " Installation";
    screen_["Label1"].text = s.appName;
    screen_["Label6"].text = project_.introText;
    screen_["Label12"].text = project_.tipsText;
    screen_["Label3"].text = "Welcome to " + s.appName +
                             " installation program !\r\nChoose your preferred settings and when you\x92re "
                             "ready, click install.";
    const double megabytes = parseNumber(s.appSize).value_or(0.0) / 1024.0 / 1024.0;
    screen_["Label19"].text = "Installed size: " + roundedNumberText(megabytes, 2) + "MB";
    screen_["icone"].picture = project_.projectFolder + "\\logo.png";
    screen_["Text1"].text = proposedInstallPath(host_, s);
    screen_["Label14"].text = "Run " + s.appName + " at Windows startup";
}

void InstallWizard::fillRows() {
    const auto row = [this](const std::string& shown, const std::string& checked, const char* box,
                            const char* tick, const char* label) {
        ControlState& tickState = screen_[tick];
        const bool on = flagOn(shown) && parseNumber(checked) == 1.0;
        tickState.visible = on;
        tickState.opacity = on ? 100 : 0;
        if (flagOn(shown)) return;
        screen_[box].visible = false;
        screen_[label].visible = false;
    };
    row(settings_.startMenuShortcut, settings_.startMenuChecked, "Check1", "okay", "Label4");
    row(settings_.desktopShortcut, settings_.desktopChecked, "Check2", "okay2", "Label5");
    if (windowsVersionName(host_) == "Windows 7") screen_["Label20"].text = "Pin to taskbar";
    if (flagOn(settings_.quickLaunchShortcut)) {
        screen_["aicAlphaImage2"].visible = true;
        screen_["Label20"].visible = true;
        if (flagOn(settings_.quickLaunchChecked)) {
            screen_["okay4"].opacity = 100;
            screen_["okay4"].visible = true;
        }
    } else {
        screen_["aicAlphaImage2"].visible = false;
    }
}

std::string InstallWizard::uninstallKey() const {
    return "HKLM\\Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\" + settings_.appName;
}

void InstallWizard::checkInstalled() {
    RegistryAPI registry(host_);
    if (!registry.registryValueExists(uninstallKey(), "InstallLocation")) return;
    screen_["Label17"].text = "Already installed!";
    screen_["Label17"].visible = true;
    screen_["Text1"].text = registry.readRegistryString(uninstallKey(), "InstallLocation", "");
    screen_["Text1"].locked = true;
    screen_["Command1"].text = "Reinstall";
    screen_["isButton1"].enabled = false;
    screen_["Label3"].text = "Welcome to " + settings_.appName + " installation program !\r\nIt seems that " +
                             settings_.appName + " is already installed on your system ! ";
}

bool InstallWizard::checkWindowsVersion() {
    if (minimumWindowsMet(settings_.minWindowsVersion, windowsVersionName(host_))) return true;
    dialogs_.messageBox(
        {settings_.appName + " requires " + settings_.minWindowsVersion + " at least. Press OK to exit.",
         MessageButtons::Ok, MessageIcon::None, screen_.title});
    window_.closeWindow();
    return false;
}

void InstallWizard::tell(const std::string& text, MessageIcon icon) {
    dialogs_.messageBox({text, MessageButtons::Ok, icon, screen_.title});
}

void InstallWizard::setTimer(WizardTimer which, bool enabled) {
    timerState(which).enabled = enabled;
}

std::vector<FadeRequest> InstallWizard::takeFades() {
    return std::exchange(screen_.fades, {});
}

bool InstallWizard::linkCursor(const std::string& label) const {
    if (label == "Label16") return !settings_.website.empty();
    if (label == "Label10") return screen_.text("Label10") == "Click here to uninstall " + settings_.appName;
    return false;
}

void InstallWizard::rowClick(const std::string& control) {
    static const std::pair<const char*, const char*> kRows[] = {
        {"Check1", "okay"}, {"Check2", "okay2"}, {"Check3", "okay3"}, {"aicAlphaImage2", "okay4"}};
    for (const auto& [box, tick] : kRows) {
        if (control == box) {
            screen_[tick].visible = true;
            screen_.fades.push_back({tick, 100, 20});
        } else if (control == tick) {
            screen_[tick].opacity = 0;
            screen_[tick].visible = false;
        }
    }
}

}  // namespace orvanta
