// The simulator from the editor: the project is saved first, the wizard shows what was saved, its
// run cannot be cut short by the window's frame, and leaving by the uninstall link asks first
// when the project has changed since.
#include <QCloseEvent>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include "UserDay.h"
#include "core/RegistryAPI.h"
#include "core/vars.h"
#include "editor/mainfrm.h"
#include "editor/themesmanager.h"
#include "image/widget/aicAlphaImage.h"
#include "simulator/WizardPanel.h"
#include "simulator/installPackages.h"
#include "simulator/installPreview.h"

namespace orvanta::testing {
namespace {

class SimulationDay : public UserDay {
protected:
    void SetUp() override {
        UserDay::SetUp();
        startProgram();
        createProject();
        fillEditor();
    }
    installPreview& simulate() {
        auto& image = in<aicAlphaImage>(editor(), "pre");
        QTest::mouseClick(&image, Qt::LeftButton, {}, image.rect().center());
        letEventsRun();
        if (windows->simulator() == nullptr) throw std::runtime_error("no simulator");
        return *windows->simulator();
    }
    static void tick(installPreview& window, WizardTimer which) { window.deliverTick(which); }
    // The ticks of a roll, if the project rolls its panels.
    static void rollToTheEnd(installPreview& window) {
        for (int step = 0; step < 100; ++step) {
            if (window.timer(WizardTimer::Timer4)->isActive())
                tick(window, WizardTimer::Timer4);
            else if (window.timer(WizardTimer::Timer5)->isActive())
                tick(window, WizardTimer::Timer5);
            else
                return;
        }
    }
};

TEST_F(SimulationDay, TheWizardPlaysTheSavedProjectAndCannotBeClosedDuringItsRun) {
    installPreview& window = simulate();
    ASSERT_TRUE(window.isVisible());
    EXPECT_EQ(window.windowTitle(), QStringLiteral("My App Installation"));
    EXPECT_EQ(in<QLabel>(window, "Label1").text(), QStringLiteral("My App"));
    // The simulation saved the project first: the settings file names it.
    EXPECT_EQ(lines("mainsettings.cfg").at(0), kProject);
    auto& path = in<QLineEdit>(window, "Text1");
    QTest::keyClicks(&path, "x");
    EXPECT_TRUE(path.text().endsWith(QLatin1Char('x')));

    QTest::mouseClick(&in<QPushButton>(window, "Command1"), Qt::LeftButton);
    rollToTheEnd(window);
    if (window.mainzone[1]->isVisible()) {  // the day's project has a licence
        EXPECT_EQ(in<QPushButton>(window, "Command1").text(), QStringLiteral("I accept these terms"));
        QTest::mouseClick(&in<QPushButton>(window, "Command1"), Qt::LeftButton);
        rollToTheEnd(window);
    }
    EXPECT_TRUE(window.mainzone[2]->isVisible());
    EXPECT_FALSE(in<QPushButton>(window, "Command1").isVisible());
    EXPECT_TRUE(window.timer(WizardTimer::Timer1)->isActive());
    EXPECT_FALSE(window.close());  // the frame cannot end the run
    tick(window, WizardTimer::Timer1);
    EXPECT_EQ(in<QLabel>(window, "Label13").text(), QStringLiteral("Complete!"));
    QTest::mouseClick(&in<QPushButton>(window, "Command1"), Qt::LeftButton);
    rollToTheEnd(window);
    EXPECT_TRUE(window.mainzone[3]->isVisible());
    EXPECT_FALSE(window.timer(WizardTimer::Timer2)->isActive());
    QTest::mouseClick(&in<QPushButton>(window, "Command2"), Qt::LeftButton);  // "Apply and exit"
    letEventsRun();
    EXPECT_EQ(windows->simulator(), nullptr);
    EXPECT_TRUE(editor().isEnabled());
}

TEST_F(SimulationDay, ThePackageChooserCountsWhatTheUserTicks) {
    box.writeFile(rel("packages.cfg"),
                  "Samples\r\n<>\r\nExamples\r\n1\r\n0\r\n10\r\n0\r\n"
                  "Runtime\r\n<>\r\nNeeded\r\nFalse\r\n1\r\n10\r\n0\r\n");
    installPreview& window = simulate();
    ASSERT_TRUE(in<QPushButton>(window, "Command6").isVisible());
    EXPECT_EQ(in<QLabel>(window, "Label21").text(), QStringLiteral("1/2 packages to install"));
    QTest::mouseClick(&in<QPushButton>(window, "Command6"), Qt::LeftButton);
    installPackages* chooser = window.packageChooser();
    ASSERT_NE(chooser, nullptr);
    chooser->List1_Click(1);  // the required package, chosen and kept so
    chooser->List1_Click(1);
    EXPECT_EQ(chooser->List1->item(1)->checkState(), Qt::Checked);
    EXPECT_EQ(in<QLabel>(window, "Label21").text(), QStringLiteral("2/2 packages to install"));
    chooser->Timer1_Timer();
    letEventsRun();
    EXPECT_EQ(in<QPushButton>(window, "Command6").text(), QStringLiteral(">"));
}

TEST_F(SimulationDay, TheUninstallLinkAsksBeforeLosingChangesAndEndsTheProgram) {
    RegistryAPI registry(box.host());
    registry.createMissingKeys = true;
    const std::string key = "HKLM\\Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\My App";
    registry.writeRegistryString(key, "InstallLocation", "C:\\Apps\\My App");
    registry.writeRegistryString(key, "UninstallString", "C:\\nowhere\\uninstall.exe -My App");
    installPreview& window = simulate();
    auto& link = in<QLabel>(window, "Label10");
    ASSERT_EQ(link.text(), QStringLiteral("Click here to uninstall My App"));
    EXPECT_TRUE(in<QLineEdit>(window, "Text1").isReadOnly());
    typeInEditor("Text9", "Someone Else");  // a change the save before the simulation did not see
    dialogs.answerNext(DialogAnswer::No);
    QTest::mouseClick(&link, Qt::LeftButton);
    letEventsRun();
    ASSERT_NE(windows->simulator(), nullptr);
    EXPECT_EQ(dialogs.messageBoxes.back().buttons, MessageButtons::YesNo);
}

// The backgrounds manager from the editor's "Change" button, with the simulator as its viewer.
TEST_F(SimulationDay, TheBackgroundsManagerShowsEachPictureInTheLockedSimulatorAndApplies) {
    box.makeFolder("Documents\\Orvanta\\backgrounds");
    for (const auto& [name, colour] : {std::pair{"dawn.png", Qt::red}, std::pair{"noon.png", Qt::blue}}) {
        QImage picture(96, 54, QImage::Format_ARGB32);
        picture.fill(colour);
        picture.save(
            QString::fromStdString((box.hostRoot() / "Documents/Orvanta/backgrounds" / name).string()));
    }
    RegistryAPI registry(box.host());
    registry.createRegistryKey(vars::settingsKey());
    registry.writeSettingNumber(vars::settingsKey(), "backPreview", 1);

    QTest::mouseClick(&in<QPushButton>(editor(), "Command1"), Qt::LeftButton);
    letEventsRun();
    themesmanager* manager = windows->backgroundsManager();
    ASSERT_NE(manager, nullptr);
    ASSERT_NE(windows->simulator(), nullptr);
    EXPECT_TRUE(windows->simulator()->isVisible());
    EXPECT_FALSE(in<QPushButton>(*windows->simulator(), "Command2").isEnabled());
    EXPECT_FALSE(windows->simulator()->close());  // a viewer, not a wizard

    const installPreview* first = windows->simulator();
    QTest::mouseClick(&in<QPushButton>(*manager, "Command1"), Qt::LeftButton);
    letEventsRun();
    ASSERT_NE(windows->simulator(), nullptr);
    EXPECT_NE(windows->simulator(), first);  // opened anew over the new background
    const std::string shown = in<QLineEdit>(*manager, "label1").text().toStdString();
    EXPECT_EQ(bytes("1.jpg"), box.readFile("Documents\\Orvanta\\backgrounds\\" + shown));

    QTest::mouseClick(&in<QPushButton>(*manager, "Command3"), Qt::LeftButton);
    letEventsRun();
    EXPECT_EQ(windows->backgroundsManager(), nullptr);
    EXPECT_EQ(windows->simulator(), nullptr);
    EXPECT_NE(in<aicAlphaImage>(editor(), "aicAlphaImage3").image().Width(), 0);
}

}  // namespace
}  // namespace orvanta::testing
