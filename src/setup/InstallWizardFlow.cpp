// The step machine: what the two bottom buttons, the back button and the links do at each step,
// the path check, the licence, and the roll that changes panels when the project asks for it.
#include "core/RegistryAPI.h"
#include "core/SpecialFolderAPI.h"
#include "core/commonFunctions.h"
#include "project/LineFile.h"
#include "setup/InstallLocation.h"
#include "setup/InstallWizard.h"

namespace orvanta {

namespace {

// A licence longer than this is not a short licence: the wizard has room for this many lines.
constexpr std::size_t kLicenseLines = 51;

}  // namespace

void InstallWizard::Command1_Click() {
    if (panelVisible(2)) return finish();
    if (screen_.text("Command1") == "Run " + settings_.appName) {
        shellOpen(host_, dialogs_, project_.workingFolder + "\\files\\" + settings_.mainExecutable, "");
        return window_.closeWindow();
    }
    if (panelVisible(1)) return accept();
    const std::string license = project_.projectFolder + "\\slicense.txt";
    if (panelVisible(0) && fileExists(host_, license) == kTrue) {
        if (pathChecked()) toLicense();
        return;
    }
    if (pathChecked()) skipLicense();
}

bool InstallWizard::pathChecked() {
    if (installPathAccepted(screen_.text("Text1"))) return true;
    tell(kInvalidPathMessage, MessageIcon::Exclamation);
    return false;
}

void InstallWizard::toLicense() {
    // The licence is read before anything changes, so that one too long leaves the start panel as it was.
    const std::string path = project_.projectFolder + "\\slicense.txt";
    auto lines = readLines(host_, path, kLicenseLines + 1).value_or(std::vector<std::string>{});
    if (lines.size() > kLicenseLines) {
        tell("The licence " + path +
                 " has more than 51 lines, and the wizard shows licences of at most 51 "
                 "lines. Shorten it, or give the full licence as a file or a link instead.",
             MessageIcon::Exclamation);
        return;
    }
    if (rollOn()) {
        screen_["Command1"].enabled = false;
        screen_["Command2"].enabled = false;
        setTimer(WizardTimer::Timer4, true);
    } else {
        showPanel(0, false);
        showPanel(1, true);
    }
    if (!fullLicenseSet()) screen_["Command2"].enabled = false;
    std::string& text = screen_["Label8"].text;
    text.clear();
    for (const std::string& line : lines) text += line + "\r\n";
    screen_["Command1"].text = "I accept these terms";
    screen_["Command2"].visible = true;
    screen_["Command2"].text = settings_.licenseButtonCaption;
    screen_["isButton2"].enabled = true;
    screen_["Label19"].visible = false;
    screen_["Label10"].visible = false;
    std::string& path1 = screen_["Text1"].text;
    if (!path1.empty() && path1.back() == '\\') path1.pop_back();
}

void InstallWizard::skipLicense() {
    ++rollIndex_;
    rollBack_ = 1;
    accept();
}

void InstallWizard::accept() {
    screen_.closeCommand = false;
    setTimer(WizardTimer::Timer7, false);
    for (const char* button : {"Command1", "Command2", "isButton2"}) screen_[button].visible = false;
    if (rollOn()) {
        screen_["Command1"].enabled = false;
        screen_["Command2"].enabled = false;
        screen_["mainzone(0)"].left = -10000;
        installPending_ = true;
        setTimer(WizardTimer::Timer4, true);
    } else {
        showPanel(1, false);
        showPanel(2, true);
        the_installation();
    }
}

void InstallWizard::finish() {
    rollBack_ = 0;
    setTimer(WizardTimer::Timer2, false);
    if (rollOn()) {
        screen_["Command1"].enabled = false;
        screen_["Command2"].enabled = false;
        setTimer(WizardTimer::Timer4, true);
    } else {
        showPanel(2, false);
        showPanel(3, true);
    }
    screen_["Label15"].text = settings_.appName + " was successfuly installed on: " + screen_.text("Text1");
    screen_["Command1"].visible = true;
    screen_["Command2"].visible = true;
    if (settings_.mainExecutable.empty()) screen_["Command1"].enabled = false;
    screen_["Command1"].text = "Run " + settings_.appName;
    screen_["Command2"].text = "Apply and exit";
}

void InstallWizard::Command2_Click() {
    const std::string& caption = screen_.text("Command2");
    if (caption == "Exit") return window_.closeWindow();
    if (caption == settings_.licenseButtonCaption) {
        const std::string& full = settings_.fullLicense;
        if (full.rfind("http", 0) == 0)
            shellOpen(host_, dialogs_, full, "");
        else
            shellOpen(host_, dialogs_, project_.workingFolder + "\\" + full, "");
        return;
    }
    if (caption == "Apply and exit") window_.closeWindow();
}

void InstallWizard::isButton2_Click() {
    if (!panelVisible(1)) return;
    screen_["Command2"].enabled = true;
    screen_["mainzone(0)"].height = kPanelHeight;
    --rollIndex_;
    showPanel(0, true);
    showPanel(1, false);
    screen_["isButton2"].enabled = false;
    const bool installed = screen_.visible("Label17") && screen_.text("Label17") == "Already installed!";
    screen_["Command1"].text = installed ? "Reinstall" : "Install";
    screen_["Command2"].text = "Exit";
    screen_["Label19"].visible = true;
    screen_["Label10"].visible = true;
}

void InstallWizard::isButton1_Click() {
    FolderBrowserRequest request;
    request.title = "Select where do you want to install " + settings_.appName;
    request.initialFolder = specialFolder(host_, kFolderProgramFiles);
    const FolderBrowserAnswer answer = dialogs_.browseForFolder(request);
    if (!answer.folder.empty()) Text1_Change(answer.folder + "\\" + settings_.appName);
}

void InstallWizard::Text1_Change(const std::string& text) {
    screen_["Text1"].text = text;
    diskspace();
}

void InstallWizard::Command6_Click() {
    if (screen_.text("Command6") == ">") {
        window_.showPackageChooser();
        screen_["Command6"].text = "<";
    } else {
        window_.closePackageChooser();
        screen_["Command6"].text = ">";
    }
}

void InstallWizard::packageChooserClosed() {
    screen_["Command6"].text = ">";
}

void InstallWizard::packagesRecounted() {
    screen_["Label21"].text = packagesToInstallText(counters_);
}

void InstallWizard::Label16_Click() {
    if (!settings_.website.empty()) shellOpen(host_, dialogs_, settings_.website, "");
}

void InstallWizard::Label10_Click() {
    if (screen_.text("Label10") != "Click here to uninstall " + settings_.appName) return;
    if (window_.unsavedChanges() &&
        dialogs_.messageBox({"The open project has changes that are not saved, and uninstalling ends Orvanta "
                             "without saving them. Uninstall and lose the changes?",
                             MessageButtons::YesNo, MessageIcon::Question, screen_.title}) !=
            DialogAnswer::Yes)
        return;
    RegistryAPI registry(host_);
    const std::string command = registry.readRegistryString(uninstallKey(), "UninstallString", "");
    const std::string& name = settings_.appName;
    if (command.size() >= name.size() &&
        command.compare(command.size() - name.size(), name.size(), name) == 0)
        shellOpen(host_, dialogs_,
                  specialFolder(host_, kFolderCommonProgramFiles) + kCommonFolderName + "\\uninstall.exe",
                  " -" + name);
    else
        shellOpen(host_, dialogs_, command, "");
    window_.endProgram();
}

void InstallWizard::Timer4_Timer() {
    const int old = rollIndex_ - rollBack_;
    if (old < 0 || old > 3 || rollIndex_ + 1 > 3) return setTimer(WizardTimer::Timer4, false);
    ControlState& panel = screen_[WizardScreen::panel(old)];
    panel.height -= 20;
    if (panel.height > 15) return;
    panel.visible = false;
    ControlState& next = screen_[WizardScreen::panel(rollIndex_ + 1)];
    next.height = 0;
    next.visible = true;
    setTimer(WizardTimer::Timer5, true);
    setTimer(WizardTimer::Timer4, false);
}

void InstallWizard::Timer5_Timer() {
    if (rollIndex_ + 1 > 3 || rollIndex_ + 1 < 0) return setTimer(WizardTimer::Timer5, false);
    ControlState& panel = screen_[WizardScreen::panel(rollIndex_ + 1)];
    panel.height += 10;
    if (panel.height < 230) return;
    screen_["Command1"].enabled = true;
    screen_["Command2"].enabled = true;
    if (panelVisible(1) && !fullLicenseSet()) screen_["Command2"].enabled = false;
    if (panelVisible(3) && settings_.mainExecutable.empty()) screen_["Command1"].enabled = false;
    ++rollIndex_;
    if (!panelVisible(3) && rollIndex_ + 1 <= 3)
        screen_[WizardScreen::panel(rollIndex_ + 1)].height = kPanelHeight;
    window_.processPendingEvents();
    if (installPending_) the_installation();
    setTimer(WizardTimer::Timer5, false);
}

}  // namespace orvanta
