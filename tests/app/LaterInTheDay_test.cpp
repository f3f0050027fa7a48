// Later in the day: an edition of the project, its optional packages, and at last its removal.
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTest>
#include <filesystem>

#include "UserDay.h"
#include "controls/ctlListView.h"
#include "editor/editionsfrm.h"
#include "editor/mainfrm.h"
#include "editor/mainfrmFields.h"
#include "editor/packages.h"
#include "project/EditorControls.h"
#include "project/PackageTables.h"
#include "project/window/start.h"

namespace orvanta::testing {
namespace {

using namespace ctrl;

class LaterInTheDay : public UserDay {
protected:
    void SetUp() override {
        UserDay::SetUp();
        startProgram();
        createProject();
    }
    // Through the editions window, as the user switches: the row of the working set, then "Open".
    void switchTo(int row) {
        inEditionsWindow([row](editionsfrm& window) {
            window.List1->setCurrentRow(row);
            window.Command3->click();
        });
    }
    static void clickRow(packages& manager, int row) {
        QTreeWidget* view = manager.List1()->hwnd();
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {},
                          view->visualItemRect(view->topLevelItem(row)).center());
    }
};

TEST_F(LaterInTheDay, AnEditionKeepsItsOwnValuesAndTheRootKeepsTheirs) {
    fillEditor();
    saveWithTheButton();
    const Snapshot rootSaved = snapshot();
    inEditionsWindow([](editionsfrm& window) {
        window.Text1->setText(QStringLiteral("Pro"));
        window.Command1->click();
        EXPECT_EQ(window.List1->count(), 2);
    });
    EXPECT_TRUE(dialogs.messageBoxes.empty()) << "files the project never had are no failed copies";
    EXPECT_EQ(bytes("editions\\Pro\\mainsettings.cfg"), bytes("mainsettings.cfg"));
    EXPECT_EQ(bytes("editions\\Pro\\eula.rtf"), "{\\rtf1 eula}");
    EXPECT_EQ(bytes("editions\\Pro\\My App.ovproj"), bytes("My App.ovproj"));

    switchTo(1);
    EXPECT_EQ(fields().text(workingFolder), root() + "\\editions\\Pro");
    EXPECT_EQ(fields().text(editionName), "Pro");
    EXPECT_EQ(fields().text(website), "http://myapp.example");
    typeInEditor("Text6", "http://pro.example");
    clickInEditor("Check13");  // no repair, off in this edition

    switchTo(0);
    EXPECT_EQ(fields().text(workingFolder), root());
    expectRestored(rootSaved, "back at the root", true);
    // The root's own values came back above; the edition's file holds its changes.
    const auto editionLines = lines("editions\\Pro\\mainsettings.cfg");
    ASSERT_EQ(editionLines.size(), 49u);
    EXPECT_EQ(editionLines[8], "http://pro.example");
    EXPECT_EQ(editionLines[13], " 0 ");
    EXPECT_EQ(editionLines[39], "Pro");

    switchTo(1);
    EXPECT_EQ(fields().text(website), "http://pro.example");
    EXPECT_EQ(fields().value(noRepair), 0);
    EXPECT_EQ(fields().text(appVersion), "2.5") << "what the edition did not change is the root's";

    // The edition's copy of the marker opens the edition from the shell.
    EXPECT_EQ(startProgram(box.windowsPath(rel("editions\\Pro\\My App.ovproj"))), MainOutcome::ProjectLoaded);
    EXPECT_EQ(fields().text(workingFolder), root() + "\\editions\\Pro");
    EXPECT_EQ(fields().text(website), "http://pro.example");

    // Back at the root, the edition goes after the question.
    switchTo(0);
    dialogs.answerNext(DialogAnswer::Yes);
    inEditionsWindow([](editionsfrm& window) {
        window.List1->setCurrentRow(1);
        window.Command2->click();
        EXPECT_EQ(window.List1->count(), 1);
    });
    EXPECT_FALSE(box.exists(rel("editions")));
    EXPECT_EQ(lines("mainsettings.cfg")[8], "http://myapp.example");
}

TEST_F(LaterInTheDay, AFailedSwitchLeavesTheEditorOnItsWorkingSetAndSavesNothingOver) {
    inEditionsWindow([&](editionsfrm& window) {
        window.Text1->setText(QStringLiteral("Pro"));
        window.Command1->click();
        // The edition loses its settings behind the window's back.
        std::filesystem::remove(box.hostRoot() / "Documents" / "Orvanta" / "myinstallers" / kProject /
                                "editions" / "Pro" / "mainsettings.cfg");
        window.List1->setCurrentRow(1);
        window.Command3->click();
    });
    ASSERT_EQ(dialogs.messageBoxes.size(), 1u);
    EXPECT_EQ(dialogs.messageBoxes[0].text.rfind("mainsettings.cfg file not found.", 0), 0u);
    EXPECT_TRUE(editor().isEnabled());
    EXPECT_EQ(fields().text(workingFolder), root());
    EXPECT_EQ(fields().text(editionName), "No editions");
    EXPECT_EQ(editor().windowTitle().toStdString(), "Orvanta ~ My App");

    typeInEditor("Text6", "http://still.example");
    editor().close();
    letEventsRun();
    EXPECT_FALSE(box.exists(rel("editions\\Pro\\mainsettings.cfg")));
    EXPECT_EQ(lines("mainsettings.cfg")[8], "http://still.example");
}

TEST_F(LaterInTheDay, PackagesAddedAndRemovedInTheManagerAreWrittenAtOnce) {
    inPackagesManager([&](packages& manager) {
        in<QPushButton>(manager, "Command2").click();
        typeInto(in<QLineEdit>(manager, "Text1"), "Extras");
        typeInto(in<QComboBox>(manager, "Combo5"), "Themes\\");
        typeInto(in<QLineEdit>(manager, "Text2"), "More tools");
        in<QCheckBox>(manager, "Check2").click();  // required: installed by default too
        in<QPushButton>(manager, "Command2").click();
        ASSERT_EQ(dialogs.messageBoxes.size(), 1u) << "a root folder alone is refused";
        EXPECT_EQ(dialogs.messageBoxes[0].text,
                  "Root folders not allowed or wrong folder location! Change your package folder location.");
        typeInto(in<QComboBox>(manager, "Combo5"), "Program Files\\Extras");
        in<QPushButton>(manager, "Command2").click();
        EXPECT_EQ(manager.List1()->ListItemsCount(), 1);
    });
    const std::string extras = crlf({"Extras", "Program Files\\Extras", "More tools", "1", "1", "0", "1"});
    EXPECT_EQ(bytes("packages.cfg"), extras);
    EXPECT_TRUE(box.exists(rel("packages\\Extras")));
    EXPECT_EQ(in<QPushButton>(editor(), "Command35").text().remove(QLatin1Char('&')).toStdString(),
              "Manage packages \n1 package(s)");

    // A save leaves the list alone, and the reopened project counts the package.
    saveWithTheButton();
    backToTheIndex();
    chooseProject(kProject);
    in<QPushButton>(index(), "Command4").click();
    EXPECT_EQ(bytes("packages.cfg"), extras);
    EXPECT_EQ(packageTables.count, 1);
    EXPECT_EQ(in<QPushButton>(editor(), "Command35").text().remove(QLatin1Char('&')).toStdString(),
              "Manage packages \n1 package(s)");

    inPackagesManager([&](packages& manager) {
        ASSERT_EQ(manager.List1()->ListItemsCount(), 1);
        clickRow(manager, 0);
        EXPECT_EQ(in<QLineEdit>(manager, "Text1").text().toStdString(), "Extras");
        in<QPushButton>(manager, "Command3").click();
    });
    EXPECT_EQ(bytes("packages.cfg"), "");
    EXPECT_TRUE(box.exists(rel("packages\\Extras"))) << "a package's files stay on the disk";
    EXPECT_EQ(in<QPushButton>(editor(), "Command35").text().remove(QLatin1Char('&')).toStdString(),
              "Manage packages \n0 package(s)");
}

TEST_F(LaterInTheDay, RemovingTheProjectFromTheIndexDeletesItsFolder) {
    backToTheIndex();
    chooseProject(kProject);
    dialogs.answerNext(DialogAnswer::No);
    in<QPushButton>(index(), "command5").click();
    EXPECT_TRUE(box.exists(rel("mainsettings.cfg")));

    dialogs.answerNext(DialogAnswer::Yes);
    in<QPushButton>(index(), "command5").click();
    ASSERT_EQ(dialogs.taskDialogs.size(), 2u);
    EXPECT_EQ(dialogs.taskDialogs[1].instruction, "Remove selected project");
    EXPECT_EQ(
        dialogs.taskDialogs[1].content,
        "Are you sure you want to remove all the files from this project? This operation is irreversible.");
    EXPECT_FALSE(box.exists(rel("")));
    EXPECT_FALSE(box.exists("Documents\\Orvanta\\deleteproject.bat"));
    auto& list = in<QComboBox>(index(), "Combo1");
    EXPECT_EQ(list.count(), 0);
    EXPECT_EQ(list.currentIndex(), -1) << "after the last project nothing is selected";
    EXPECT_EQ(index().loading()->text().toStdString(), "Project removel successfuly!");
}

}  // namespace
}  // namespace orvanta::testing
