#pragma once
// A saved project in a sandbox, and the wizard over it with a window that records what the wizard
// asked of it. Settings are given by line number; every other line of mainsettings.cfg stays empty.

#include <gtest/gtest.h>

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "core/RegistryAPI.h"
#include "setup/InstallWizard.h"
#include "support/FailingHost.h"
#include "support/Sandbox.h"
#include "support/ScriptedDialogs.h"

namespace orvanta::testing {

// Free space and running processes as the test says, the rest as the sandbox has it.
class WizardHost : public FailingHost {
public:
    using FailingHost::FailingHost;
    std::optional<DiskSpace> diskSpace(const std::string& root) override {
        askedSpace.push_back(root);
        if (freeClusters) return DiskSpace{8, 512, *freeClusters, 1'000'000};
        return FailingHost::diskSpace(root);
    }
    std::vector<std::string> processNames() override { return processes; }
    VersionWords versionWords() override { return version ? *version : FailingHost::versionWords(); }

    std::optional<std::uint32_t> freeClusters;
    std::vector<std::string> processes;
    std::vector<std::string> askedSpace;
    std::optional<VersionWords> version;
};

class RecordingWindow : public WizardWindow {
public:
    void processPendingEvents() override { ++pumps; }
    void closeWindow() override { closed = true; }
    void endProgram() override { ended = true; }
    bool unsavedChanges() override { return unsaved; }
    void showPackageChooser() override { chooserShown = true; }
    void closePackageChooser() override { chooserShown = false; }

    int pumps = 0;
    bool closed = false;
    bool ended = false;
    bool unsaved = false;
    bool chooserShown = false;
};

// One block of packages.cfg.
inline std::string block(const std::string& name, const std::string& chosen, const std::string& required) {
    return name + "\r\n<>\r\nAbout " + name + "\r\n" + chosen + "\r\n" + required + "\r\n100\r\n0\r\n";
}

class WizardTest : public ::testing::Test {
protected:
    WizardTest() {
        settings = {{1, "Demo App"}, {2, "Ann"},         {3, "1"},    {4, "1"},
                    {10, "1048576"}, {13, "demo.exe"},   {16, "2.1"}, {17, "0"},
                    {18, "<>"},      {19, "Windows XP"}, {20, "1"},   {21, "0"},
                    {22, "Licence"}, {23, "Read all"},   {28, "1"},   {29, "0"}};
    }

    std::string projectRelative() const { return "Documents\\Orvanta\\myinstallers\\Demo App"; }
    std::string projectFolder() { return sandbox.windowsPath(projectRelative()); }

    void writeProject() {
        std::string text;
        for (int line = 1; line <= 49; ++line) text += (settings.count(line) ? settings[line] : "") + "\r\n";
        sandbox.writeFile(projectRelative() + "\\mainsettings.cfg", text);
        sandbox.writeFile(projectRelative() + "\\packages.cfg", packages);
        std::filesystem::remove(sandbox.hostRoot() / "Documents/Orvanta/myinstallers/Demo App/slicense.txt");
        if (licenseLines) {
            std::string license;
            for (int line = 1; line <= *licenseLines; ++line)
                license += "Line " + std::to_string(line) + "\r\n";
            sandbox.writeFile(projectRelative() + "\\slicense.txt", license);
        }
    }

    void markInstalled(const std::string& location, const std::string& uninstallString) {
        RegistryAPI registry(sandbox.host());
        registry.createMissingKeys = true;
        const std::string key = "HKLM\\Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\Demo App";
        registry.writeRegistryString(key, "InstallLocation", location);
        registry.writeRegistryString(key, "UninstallString", uninstallString);
    }

    // Writes the project and loads the wizard over it; false when the wizard refused to start.
    bool open() {
        writeProject();
        return start();
    }

    // Loads the wizard over the project as it stands.
    bool start() {
        host.answerShell(42);
        wizard.emplace(host, dialogs, window,
                       WizardProject{"Demo App", projectFolder(), projectFolder(), "Intro", "Tips"}, tables,
                       counters);
        wizard->Form_Initialize();
        return wizard->Form_Load();
    }

    // Delivers ticks of the running timers, the fastest first, until none runs or `limit` ticks.
    int runTimers(int limit = 1000, bool stopAtCountdown = false) {
        int ticks = 0;
        for (; ticks < limit; ++ticks) {
            std::optional<WizardTimer> next;
            for (WizardTimer which :
                 {WizardTimer::Timer4, WizardTimer::Timer5, WizardTimer::Timer1, WizardTimer::Timer2}) {
                if (wizard->timer(which).enabled) {
                    next = which;
                    break;
                }
            }
            if (!next || (stopAtCountdown && *next == WizardTimer::Timer2)) break;
            wizard->tick(*next);
        }
        return ticks;
    }

    const WizardScreen& screen() const { return wizard->screen(); }
    int visiblePanel() const {
        for (int panel = 3; panel >= 0; --panel)
            if (screen().visible(WizardScreen::panel(panel)) &&
                screen().at(WizardScreen::panel(panel)).left == 0)
                return panel;
        return -1;
    }

    Sandbox sandbox;
    WizardHost host{sandbox.host()};
    ScriptedDialogs dialogs;
    RecordingWindow window;
    PackageTables tables;
    PackageCounters counters;
    std::map<int, std::string> settings;
    std::string packages;
    std::optional<int> licenseLines;
    std::optional<InstallWizard> wizard;
};

}  // namespace orvanta::testing
