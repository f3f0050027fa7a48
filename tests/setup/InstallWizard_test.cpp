// The wizard without a window: what it shows after loading a project, how its steps follow one
// another, with and without the roll, and what it asks of the machine.
#include <gmock/gmock.h>

#include "core/SpecialFolderAPI.h"
#include "core/commonFunctions.h"
#include "setup/PackageChoice.h"
#include "setup/WizardFixture.h"

namespace orvanta::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

TEST_F(WizardTest, StartPanelShowsTheProjectAsSaved) {
    settings[9] = "https://demo.example";
    settings[11] = "1";
    settings[12] = "1";
    settings[7] = "0";
    ASSERT_TRUE(open());
    const WizardScreen& s = screen();
    EXPECT_EQ(s.title, "Demo App Installation");
    EXPECT_EQ(
        s.text("Label3"),
        "Welcome to Demo App installation program !\r\nChoose your preferred settings and when you\x92re "
        "ready, click install.");
    EXPECT_EQ(s.text("Label19"), "Installed size: 1MB");
    EXPECT_EQ(s.text("Label22"), "Version: 2.1");
    EXPECT_EQ(s.text("Label16"), "Ann - https://demo.example");
    EXPECT_EQ(s.text("Label6"), "Intro");
    EXPECT_EQ(s.text("Label12"), "Tips");
    EXPECT_EQ(s.text("Label14"), "Run Demo App at Windows startup");
    // Start menu shown and not ticked, desktop shown and ticked, quick launch ticked and pinned.
    EXPECT_TRUE(s.visible("Check1"));
    EXPECT_FALSE(s.visible("okay"));
    EXPECT_EQ(s.at("okay").opacity, 0);
    EXPECT_TRUE(s.visible("okay2"));
    EXPECT_TRUE(s.visible("okay4"));
    EXPECT_EQ(s.text("Label20"), "Pin to taskbar");
    // startupOption 0 hides the hint; the startup row is hidden whatever it says.
    EXPECT_FALSE(s.visible("Label18"));
    EXPECT_FALSE(s.visible("Check3"));
    EXPECT_FALSE(s.visible("Label21"));
    EXPECT_FALSE(s.visible("Command6"));
    EXPECT_EQ(s.at("icone").picture, projectFolder() + "\\logo.png");
    EXPECT_TRUE(s.at("Command1").enabled);
    EXPECT_THAT(s.text("Label10"), HasSubstr("Space available on disk C:\\ after install: "));
    // The only change to the machine so far: the common folder.
    EXPECT_EQ(
        folderExists(sandbox.host(), specialFolder(sandbox.host(), kFolderCommonProgramFiles) + "O-Vanta"),
        kTrue);
}

TEST_F(WizardTest, RowsFollowTheirFlagsAndClicks) {
    settings[3] = "0";
    settings[11] = "0";
    settings[12] = "1";
    ASSERT_TRUE(open());
    EXPECT_FALSE(screen().visible("Check1"));
    EXPECT_FALSE(screen().visible("Label4"));
    EXPECT_FALSE(screen().visible("Label20"));
    EXPECT_FALSE(screen().visible("okay4"));
    wizard->rowClick("okay2");
    EXPECT_FALSE(screen().visible("okay2"));
    wizard->rowClick("Check2");
    EXPECT_TRUE(screen().visible("okay2"));
    const auto fades = wizard->takeFades();
    ASSERT_EQ(fades.size(), 1u);
    EXPECT_EQ(fades[0].control, "okay2");
    EXPECT_EQ(fades[0].finalOpacity, 100);
    EXPECT_EQ(fades[0].stepPercent, 20);
}

struct PathCase {
    const char* installPath;
    const char* authorFolder;
    const char* author;
    const char* expectedBelowDrive;  // after "C:\"
};

class InstallPathTest : public WizardTest, public ::testing::WithParamInterface<PathCase> {};

TEST_P(InstallPathTest, ProposesWhereTheInstallerWillInstall) {
    settings[18] = GetParam().installPath;
    settings[20] = GetParam().authorFolder;
    settings[2] = GetParam().author;
    ASSERT_TRUE(open());
    const std::string path = screen().text("Text1");
    const std::string programFiles = specialFolder(host, kFolderProgramFiles);
    std::string expected = GetParam().expectedBelowDrive;
    if (expected.rfind("PF\\", 0) == 0)
        expected = programFiles + expected.substr(3);
    else
        expected = specialFolder(host, kFolderSystem32Bit).substr(0, 3) + expected;
    EXPECT_EQ(path, expected);
}

INSTANTIATE_TEST_SUITE_P(
    Rules, InstallPathTest,
    ::testing::Values(PathCase{"<>", "1", "Ann", "PF\\Ann\\Demo App"},
                      PathCase{"<>", "0", "Ann", "PF\\Demo App"},
                      // The doubled separator of an empty author stays.
                      PathCase{"<>", "1", "", "PF\\\\Demo App"},
                      // The system's drive replaces the stored one.
                      PathCase{"D:\\Tools\\App", "1", "Ann", "Tools\\App"},
                      // A root word is that folder of this machine, as the editor's preview shows it.
                      PathCase{"Program Files\\", "1", "Ann", "PF\\Ann\\Demo App"},
                      PathCase{"Program Files\\Suite\\", "0", "Ann", "PF\\Suite\\Demo App"},
                      PathCase{"Allusers ApplicationData\\", "1", "Ann", "ProgramData\\Ann\\Demo App"}));

TEST_F(WizardTest, AlreadyInstalledLocksThePathAndOffersTheUninstaller) {
    markInstalled("F:\\Elsewhere\\Demo", "C:\\uninstall.exe -Demo App");
    licenseLines = 3;
    host.freeClusters = 100;
    ASSERT_TRUE(open());
    EXPECT_EQ(screen().text("Text1"), "F:\\Elsewhere\\Demo");
    EXPECT_TRUE(screen().at("Text1").locked);
    EXPECT_FALSE(screen().at("isButton1").enabled);
    EXPECT_EQ(screen().text("Command1"), "Reinstall");
    EXPECT_EQ(screen().text("Label17"), "Already installed!");
    EXPECT_EQ(screen().text("Label10"), "Click here to uninstall Demo App");
    EXPECT_THAT(screen().text("Label3"),
                HasSubstr("It seems that Demo App is already installed on your system ! "));
    EXPECT_TRUE(wizard->timer(WizardTimer::Timer7).enabled);
    EXPECT_TRUE(wizard->linkCursor("Label10"));

    // "Reinstall" comes back from the licence while the label says so...
    wizard->Command1_Click();
    EXPECT_EQ(screen().text("Command1"), "I accept these terms");
    wizard->isButton2_Click();
    EXPECT_EQ(screen().text("Command1"), "Reinstall");
    // ...and not once the watch has found the uninstaller running.
    host.processes = {"explorer.exe", "UNINSTALL.EXE"};
    wizard->startProcessWatch();
    wizard->tick(WizardTimer::Timer8);
    EXPECT_EQ(screen().text("Label17"), "Close uninstaller before (re)installing.");
    EXPECT_FALSE(screen().at("Command1").enabled);
    EXPECT_FALSE(wizard->timer(WizardTimer::Timer7).enabled);
    EXPECT_EQ(wizard->timer(WizardTimer::Timer8).interval, 4000);
    host.processes = {"explorer.exe"};
    wizard->tick(WizardTimer::Timer8);
    EXPECT_EQ(screen().text("Label17"), "Already installed!");
    EXPECT_TRUE(screen().at("Command1").enabled);
    EXPECT_TRUE(wizard->timer(WizardTimer::Timer7).enabled);
    host.processes = {"uninstall.exe"};
    wizard->tick(WizardTimer::Timer8);
    wizard->Command1_Click();
    wizard->isButton2_Click();
    EXPECT_EQ(screen().text("Command1"), "Install");
}

TEST_F(WizardTest, UninstallLinkStartsTheUninstallerAndEndsTheProgramAfterAsking) {
    markInstalled("C:\\Demo", "C:\\Program Files\\Common Files\\O-Vanta\\uninstall.exe -Demo App");
    ASSERT_TRUE(open());
    window.unsaved = true;
    dialogs.answerNext(DialogAnswer::No);
    wizard->Label10_Click();
    EXPECT_FALSE(window.ended);
    EXPECT_TRUE(host.opened.empty());
    dialogs.answerNext(DialogAnswer::Yes);
    wizard->Label10_Click();
    EXPECT_TRUE(window.ended);
    EXPECT_THAT(host.opened,
                ElementsAre(specialFolder(host, kFolderCommonProgramFiles) + "O-Vanta\\uninstall.exe"));
}

TEST_F(WizardTest, EveryMinimumFailsOnAnOldSystemName) {
    host.version = VersionWords{10, 0};  // named "Windows old"
    for (const char* minimum : {"Windows 2000", "Windows XP", "Windows Vista", "Windows 7"}) {
        settings[19] = minimum;
        window.closed = false;
        EXPECT_FALSE(open()) << minimum;
        EXPECT_TRUE(window.closed);
        EXPECT_EQ(dialogs.messageTexts().back(),
                  std::string("Demo App requires ") + minimum + " at least. Press OK to exit.");
    }
    settings[19] = "Windows 95";
    EXPECT_TRUE(open());
}

TEST_F(WizardTest, PathCheckTakesDrivesCToKInUpperCaseOnly) {
    ASSERT_TRUE(open());
    for (const char* path : {"c:\\Demo", "L:\\Demo", "", "C:Demo"}) {
        wizard->Text1_Change(path);
        wizard->Command1_Click();
        EXPECT_EQ(visiblePanel(), 0) << path;
        EXPECT_EQ(dialogs.messageTexts().back(), "Invalid path or drive letter is not upper case.");
    }
    EXPECT_EQ(dialogs.messageBoxes.back().icon, MessageIcon::Exclamation);
    host.freeClusters = 100;
    wizard->Text1_Change("K:\\Demo");
    wizard->Command1_Click();
    EXPECT_EQ(visiblePanel(), 2);
}

TEST_F(WizardTest, FullDiskBlocksTheMainButtonUntilAPathHasRoom) {
    host.freeClusters = 0;
    ASSERT_TRUE(open());
    EXPECT_EQ(screen().text("Label17"), "Not enough disk space available!");
    EXPECT_TRUE(screen().visible("Label17"));
    EXPECT_FALSE(screen().at("Command1").enabled);
    host.freeClusters = 262'144;  // 1 GB in clusters of 4 KB
    wizard->Text1_Change("E:\\Demo");
    EXPECT_TRUE(screen().at("Command1").enabled);
    EXPECT_FALSE(screen().visible("Label17"));
    EXPECT_EQ(screen().text("Label10"), "Space available on disk E:\\ after install: 1 GB");
    EXPECT_EQ(host.askedSpace.back(), "E:\\");
}

TEST_F(WizardTest, LicenceOfFiftyOneLinesShowsAndFiftyTwoAreRefused) {
    licenseLines = 52;
    ASSERT_TRUE(open());
    wizard->Command1_Click();
    EXPECT_EQ(visiblePanel(), 0);
    EXPECT_THAT(dialogs.messageTexts().back(), HasSubstr("more than 51 lines"));
    EXPECT_EQ(screen().text("Command1"), "Install");

    licenseLines = 51;
    ASSERT_TRUE(open());
    wizard->Text1_Change("C:\\Demo\\");
    wizard->Command1_Click();
    EXPECT_EQ(visiblePanel(), 1);
    EXPECT_THAT(screen().text("Label8"), HasSubstr("Line 51\r\n"));
    EXPECT_EQ(screen().text("Command1"), "I accept these terms");
    EXPECT_EQ(screen().text("Command2"), "Read all");
    EXPECT_FALSE(screen().at("Command2").enabled);  // the full licence's line is always empty
    EXPECT_TRUE(screen().at("isButton2").enabled);
    EXPECT_EQ(screen().text("Text1"), "C:\\Demo");
}

// Each transition's rollIndex and the panel it leaves on screen, with the roll.
struct RollCase {
    bool license;
    std::vector<int> rollIndexes;  // at each click and after each roll, to the finished step
};

TEST_F(WizardTest, RollCountsThePanelsWithAndWithoutALicence) {
    settings[17] = "1";
    for (const RollCase& roll : {RollCase{true, {0, 1, 1, 2, 3}}, RollCase{false, {1, 2, 3}}}) {
        licenseLines.reset();
        if (roll.license) licenseLines = 2;
        ASSERT_TRUE(open());
        std::vector<int> seen;
        const auto step = [&] {
            seen.push_back(wizard->rollIndex());
            runTimers(1000, true);
            seen.push_back(wizard->rollIndex());
        };
        wizard->Command1_Click();
        EXPECT_FALSE(screen().at("Command1").enabled);
        step();
        if (roll.license) {
            EXPECT_EQ(visiblePanel(), 1);
            EXPECT_EQ(screen().at("mainzone(1)").height, 230);  // a rolled panel stops short
            EXPECT_EQ(screen().at("mainzone(2)").height, 233);
            EXPECT_TRUE(screen().at("Command1").enabled);
            EXPECT_EQ(wizard->rollBack(), 0);
            wizard->Command1_Click();
            step();
        } else {
            EXPECT_EQ(wizard->rollBack(), 1);
        }
        EXPECT_EQ(visiblePanel(), 2);
        EXPECT_EQ(screen().at("pb").value, 100);
        EXPECT_EQ(screen().at("mainzone(0)").left, -10000);
        wizard->Command1_Click();  // "Finish" before the countdown ends
        EXPECT_EQ(wizard->rollBack(), 0);
        runTimers();
        seen.push_back(wizard->rollIndex());
        EXPECT_EQ(seen, roll.rollIndexes);
        EXPECT_EQ(visiblePanel(), 3);
        EXPECT_EQ(screen().text("Command1"), "Run Demo App");
        EXPECT_FALSE(wizard->timer(WizardTimer::Timer2).enabled);
    }
}

TEST_F(WizardTest, BackFromTheLicenceRollsAgainFromTheStart) {
    settings[17] = "1";
    licenseLines = 2;
    ASSERT_TRUE(open());
    wizard->Command1_Click();
    runTimers();
    wizard->isButton2_Click();
    EXPECT_EQ(wizard->rollIndex(), 0);
    EXPECT_EQ(visiblePanel(), 0);
    EXPECT_EQ(screen().at("mainzone(0)").height, 233);
    EXPECT_EQ(screen().text("Command2"), "Exit");
    wizard->Command1_Click();
    runTimers();
    EXPECT_EQ(visiblePanel(), 1);
    EXPECT_EQ(wizard->rollIndex(), 1);
}

TEST_F(WizardTest, RunPlaysASecondThenCountsDownToTheFinishedStep) {
    settings[13] = "";
    ASSERT_TRUE(open());
    wizard->Command1_Click();
    EXPECT_EQ(visiblePanel(), 2);
    EXPECT_EQ(screen().at("pb").value, 20);
    EXPECT_EQ(screen().at("Image1").left, 800);
    EXPECT_TRUE(screen().busyPointer);
    EXPECT_FALSE(screen().closeCommand);
    EXPECT_FALSE(screen().visible("Command1"));
    wizard->tick(WizardTimer::Timer1);
    EXPECT_EQ(screen().at("pb").value, 100);
    EXPECT_EQ(screen().text("Label13"), "Complete!");
    EXPECT_EQ(screen().text("Command1"), "Finish");
    EXPECT_TRUE(wizard->timer(WizardTimer::Timer3).enabled);
    wizard->tick(WizardTimer::Timer3);
    EXPECT_EQ(screen().at("installing").rotation, 2);
    std::vector<std::string> captions;
    while (wizard->timer(WizardTimer::Timer2).enabled) {
        wizard->tick(WizardTimer::Timer2);
        if (visiblePanel() == 2) captions.push_back(screen().text("Command1"));
    }
    EXPECT_EQ(captions.front(), "Finish (8)");
    EXPECT_EQ(captions.back(), "Finish (1)");
    EXPECT_EQ(captions.size(), 8u);  // "Finish (0)" gives way in its own tick
    EXPECT_EQ(visiblePanel(), 3);
    EXPECT_EQ(screen().text("Label15"), "Demo App was successfuly installed on: " + screen().text("Text1"));
    EXPECT_FALSE(screen().at("Command1").enabled);  // no main executable to run
    EXPECT_EQ(screen().text("Command2"), "Apply and exit");
    wizard->Command2_Click();
    EXPECT_TRUE(window.closed);
}

TEST_F(WizardTest, RunButtonStartsTheApplicationOfTheWorkingSet) {
    ASSERT_TRUE(open());
    wizard->Command1_Click();
    wizard->tick(WizardTimer::Timer1);
    wizard->Command1_Click();
    wizard->Command1_Click();
    EXPECT_THAT(host.opened, ElementsAre(projectFolder() + "\\files\\demo.exe"));
    EXPECT_TRUE(window.closed);
}

TEST_F(WizardTest, InstantInstallClosesAtTheFirstTickWithoutShowingTheLicence) {
    settings[21] = "1";
    licenseLines = 2;
    ASSERT_TRUE(open());
    EXPECT_EQ(screen().text("Label8"), "");
    EXPECT_EQ(visiblePanel(), 2);
    EXPECT_FALSE(window.closed);
    wizard->tick(WizardTimer::Timer1);
    EXPECT_TRUE(window.closed);
}

TEST_F(WizardTest, FileCountPastTheSixteenBitStepIsToldNotFatal) {
    ASSERT_TRUE(open());
    std::string list;
    for (int file = 0; file < 400; ++file) list += "C:\\f" + std::to_string(file) + "\r\n";
    sandbox.writeFile("app\\myfiles.txt", list);
    wizard->Command3_Click();
    sandbox.writeFile("app\\myfiles.txt", list);  // the list as the finished batch file leaves it
    std::filesystem::remove(sandbox.hostRoot() / "app" / "numberfiles.bat");
    wizard->tick(WizardTimer::NumberFilessleeper);
    EXPECT_EQ(wizard->fileCount(), 400);
    wizard->Command1_Click();
    EXPECT_THAT(dialogs.messageTexts().back(), HasSubstr("400 files"));
    wizard->tick(WizardTimer::Timer1);
    EXPECT_EQ(screen().at("pb").value, 100);
}

}  // namespace
}  // namespace orvanta::testing

namespace orvanta::testing {
namespace {

// Every file and folder of the sandbox with its size and time, the registry's store included.
std::map<std::string, std::string> machineState(const std::filesystem::path& root) {
    std::map<std::string, std::string> state;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(root)) {
        std::string facts = entry.is_directory() ? "folder" : std::to_string(entry.file_size());
        if (!entry.is_directory())
            facts += " " + std::to_string(entry.last_write_time().time_since_epoch().count());
        state[entry.path().lexically_relative(root).generic_string()] = facts;
    }
    return state;
}

TEST_F(WizardTest, WholeWizardChangesNothingButTheCommonFolder) {
    settings[17] = "1";
    settings[11] = "1";
    settings[8] = "1";
    licenseLines = 5;
    packages = block("Docs", "1", "0");
    sandbox.writeFile(projectRelative() + "\\files\\demo.exe", "MZ");
    writeProject();
    (void)specialFolder(host, kFolderCommonProgramFiles);  // the host lays out its simulated drive first
    (void)specialFolder(host, kFolderProgramFiles);
    (void)specialFolder(host, kFolderSystem32Bit);
    const auto before = machineState(sandbox.hostRoot());

    ASSERT_TRUE(start());
    for (const char* row : {"Check1", "okay2", "aicAlphaImage2"}) wizard->rowClick(row);
    wizard->Command6_Click();
    PackageChooser(tables, counters).clickRow(0, false);
    wizard->Command1_Click();
    runTimers();
    wizard->Command1_Click();
    runTimers();
    EXPECT_EQ(visiblePanel(), 3);
    wizard->Command2_Click();
    EXPECT_TRUE(window.closed);

    auto after = machineState(sandbox.hostRoot());
    std::vector<std::string> changed;
    for (const auto& [path, facts] : after)
        if (!before.count(path) || before.at(path) != facts) changed.push_back(path);
    for (const auto& [path, facts] : before)
        if (!after.count(path)) changed.push_back("gone: " + path);
    // The common folder lies in the sandbox here; under Windows it is the machine's own.
    std::erase_if(changed, [](const std::string& path) { return path.find("O-Vanta") != std::string::npos; });
    EXPECT_THAT(changed, ::testing::IsEmpty());
    EXPECT_EQ(folderExists(host, specialFolder(host, kFolderCommonProgramFiles) + "O-Vanta"), kTrue);
    RegistryAPI registry(host);
    EXPECT_FALSE(registry.registryKeyExists(
        "HKLM\\Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\Demo App"));
    EXPECT_FALSE(
        registry.registryValueExists("HKLM\\SOFTWARE\\MICROSOFT\\WINDOWS\\CURRENTVERSION\\RUN", "Demo App"));
    EXPECT_TRUE(host.opened.empty());
}

}  // namespace
}  // namespace orvanta::testing
