// Creating a project on a new account, filling it in, saving it and opening it again, from the
// index's list and from the command line.
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <filesystem>

#include "UserDay.h"
#include "core/vars.h"
#include "editor/mainfrm.h"
#include "editor/mainfrmFields.h"
#include "platform/WindowsPath.h"
#include "project/EditorControls.h"
#include "project/window/start.h"

namespace orvanta::testing {
namespace {

class ProjectDay : public UserDay {
protected:
    int integrityRecords() {
        int count = 0;
        for (const auto& entry : std::filesystem::directory_iterator(box.hostRoot() / "Documents" /
                                                                     "Orvanta" / "myinstallers" / kProject))
            count += entry.path().extension() == ".hsh" ? 1 : 0;
        return count;
    }
    std::string status() { return index().loading()->text().toStdString(); }
};

TEST_F(ProjectDay, ANewAccountsFirstProjectIsSavedOnceItsFilesAreCopied) {
    ASSERT_EQ(startProgram(), MainOutcome::StartShown);
    letEventsRun();
    EXPECT_TRUE(dialogs.messageBoxes.empty() && dialogs.taskDialogs.empty());
    EXPECT_EQ(in<QComboBox>(index(), "Combo1").count(), 0);
    // A long status text is shortened, whole in its tip, and the window keeps its width.
    const int width = index().width();
    typeInto(in<QLineEdit>(index(), "Text1"), std::string(150, 'n') + "?");
    letEventsRun();
    EXPECT_EQ(index().loading()->toolTip().toStdString(), status());
    EXPECT_EQ(index().width(), width);
    // A name whose project would hold paths longer than Windows allows is refused as it is typed.
    typeInto(in<QLineEdit>(index(), "Text1"), std::string(150, 'n'));
    EXPECT_EQ(status().rfind("This name is too long", 0), 0u) << status();
    EXPECT_FALSE(in<QPushButton>(index(), "Command1").isEnabled());

    const CopyWatch copy = createProject();
    ASSERT_EQ(dialogs.folderBrowsers.size(), 1u);
    EXPECT_EQ(dialogs.folderBrowsers[0].initialFolder, parentFolder(box.documentsFolder()))
        << "without a documents folder the browser opens on the folder above it";
    EXPECT_TRUE(copy.editorShownFirst);
    EXPECT_FALSE(copy.savedEarly) << "the first save waits for the copy";
    ASSERT_GE(copy.counts.size(), 3u) << "the progress is shown while the copy runs";
    EXPECT_EQ(copy.counts.back(), "131 of 131 files copied");
    EXPECT_LT(copy.bar.front(), copy.bar.back());
    EXPECT_EQ(copy.bar.back(), 1000);

    EXPECT_EQ(windows->startWindow(), nullptr) << "the index goes once the project is made";
    ASSERT_TRUE(editor().isVisible());
    EXPECT_TRUE(editor().isEnabled());
    EXPECT_EQ(editor().windowTitle().toStdString(), "Orvanta ~ My App");
    EXPECT_EQ(fields().text(ctrl::workingFolder), root());
    EXPECT_EQ(bytes("My App.ovproj"), crlf({"My App", "No Editions", "No Versions", "deployLocal", "f"}));
    const auto settings = lines("mainsettings.cfg");
    ASSERT_EQ(settings.size(), 49u);
    EXPECT_EQ(settings[0], "My App");
    EXPECT_EQ(settings[1], "Ann Author");
    EXPECT_EQ(settings[9], "143") << "the bytes of all copied files";
    EXPECT_EQ(settings[34], "installMy App.exe") << "defaults that carry the name have it";
    EXPECT_EQ(bytes("uninstallEnd.cfg"), crlf({"Thanks for using My App!"}));
    EXPECT_EQ(in<QLineEdit>(editor(), "Text3").text().toStdString(), "\\Software\\My App");
    EXPECT_EQ(lines("files.cfg").size(), kProgramFiles);
    EXPECT_EQ(lines("folders.cfg").size(), 5u);
    EXPECT_EQ(bytes("registrylocations.cfg"), "<>\r\n");
    EXPECT_EQ(bytes("logo.png"), box.readFile("app\\i\\default.png"));
    for (const char* folder : {"executables", "fonts", "packages", "settingsset", "msi"})
        EXPECT_TRUE(box.exists(rel(folder))) << folder;
    EXPECT_EQ(bytes("files\\lib\\x.dll"), "dll-x");
    EXPECT_EQ(integrityRecords(), 1);
    EXPECT_TRUE(dialogs.messageBoxes.empty());
}

TEST_F(ProjectDay, ACancelledCopyLeavesAUsableProjectAndSaysWhatWasCopied) {
    startProgram();
    createProject([](QWidget& progress) {
        if (in<QLabel>(progress, "Label1").text().startsWith(QStringLiteral("64 of")))
            in<QPushButton>(progress, "Command1").click();
    });
    EXPECT_EQ(dialogs.messageTexts(),
              std::vector<std::string>{"The copy was cancelled. 64 of 131 files were copied into\n" + root() +
                                       "\\files\nThe project is saved with them; copy the others "
                                       "into that folder and save again."});
    ASSERT_TRUE(editor().isVisible());
    EXPECT_TRUE(editor().isEnabled());
    EXPECT_EQ(lines("files.cfg").size(), 64u);
    EXPECT_EQ(integrityRecords(), 1);
}

TEST_F(ProjectDay, WhatTheUserFilledInIsSavedLineByLine) {
    startProgram();
    createProject();
    std::vector<std::string> created = lines("mainsettings.cfg");
    fillEditor();
    saveWithTheButton();
    EXPECT_EQ(in<QLabel>(editor(), "controlTips").text().toStdString(), "Project Saved!");

    // The lines the user changed, over what the new project saved: the desktop shortcut is ticked with
    // its "checked" (4, 28), startup with "Required Option" (7, 8, 37).
    for (const std::size_t line : {3u, 4u, 7u, 8u, 14u, 17u, 25u, 28u, 37u, 47u, 48u})
        created[line - 1] = " 1 ";
    for (const std::string change :
         {"6 Start My App", "9 http://myapp.example", "13 prog.exe", "16 2.5",
          "18 Allusers ApplicationData\\My App", "19 Windows 7", "22 Terms", "23 Show terms", "24 REGDEL",
          "33 http://help.example", "35 myapp-%version.exe", "44 i"}) {
        const std::size_t blank = change.find(' ');
        created[std::stoul(change.substr(0, blank)) - 1] = change.substr(blank + 1);
    }
    EXPECT_EQ(lines("mainsettings.cfg"), created);
    EXPECT_EQ(vars::finalPackageFile, "myapp-2.5.exe");
    // The first key and the data folder are the ones the new project offered.
    EXPECT_EQ(bytes("registrylocations.cfg"),
              crlf({"HKLM\\Software\\My App", "HKCU\\Software\\My App Shared"}));
    EXPECT_EQ(bytes("appdatalocations.cfg"), crlf({"ROAMING\\My App"}));
    EXPECT_EQ(bytes("dependencies.cfg"), crlf({"helper.ocx", " 1 ", "lib\\x.dll", " 0 "}));
    EXPECT_EQ(bytes("fonts.cfg"), crlf({"myfont.ttf"}));
    EXPECT_EQ(bytes("intro.cfg"), crlf({"Welcome to My App.", "", "Enjoy."}));
    EXPECT_EQ(bytes("slicense.txt"), crlf({"Short licence"}));
    EXPECT_EQ(bytes("eula.rtf"), "{\\rtf1 eula}");
    const auto files = lines("files.cfg");
    ASSERT_EQ(files.size(), kProgramFiles);
    EXPECT_EQ(std::vector<std::string>(files.begin(), files.begin() + 3),
              (std::vector<std::string>{"helper.ocx", "prog.exe", "lib\\x.dll"}));
    EXPECT_EQ(lines("folders.cfg").front(), "lib");
    EXPECT_EQ(integrityRecords(), 1) << "the record of the first save is replaced";
    EXPECT_TRUE(dialogs.messageBoxes.empty());
}

TEST_F(ProjectDay, ReopenedFromTheListAndFromTheCommandLineEveryFieldIsBack) {
    startProgram();
    createProject();
    fillEditor();
    saveWithTheButton();
    const Snapshot saved = snapshot();
    backToTheIndex();

    EXPECT_EQ(windows->editorWindow(), nullptr);
    ASSERT_TRUE(index().isVisible());
    EXPECT_EQ(in<QComboBox>(index(), "Combo1").count(), 1);
    chooseProject(kProject);
    EXPECT_EQ(in<QLabel>(index(), "Label7").text().toStdString(), "Ann Author");
    in<QPushButton>(index(), "Command4").click();
    ASSERT_TRUE(editor().isVisible());
    EXPECT_TRUE(editor().isEnabled());
    EXPECT_FALSE(index().isVisible());
    EXPECT_TRUE(index().isEnabled());
    EXPECT_EQ(editor().windowTitle().toStdString(), "Orvanta ~ My App");
    expectRestored(saved, "opened from the list");

    // The next run of the program is given the marker, as the shell does on a double click.
    editor().close();
    EXPECT_EQ(startProgram(box.windowsPath(rel("My App.ovproj"))), MainOutcome::ProjectLoaded);
    EXPECT_EQ(windows->startWindow(), nullptr);
    ASSERT_TRUE(editor().isVisible());
    expectRestored(saved, "opened from the command line");
    EXPECT_TRUE(dialogs.messageBoxes.empty());
}

TEST_F(ProjectDay, AFailedOpenSaysWhyAndLeavesTheIndexUsable) {
    startProgram();
    letEventsRun();
    const int width = index().width();
    // A folder copied by hand without its settings, under a name longer than the window is wide.
    const std::string broken(120, 'B');
    const std::string folder = "Documents\\Orvanta\\myinstallers\\" + broken;
    box.writeFile(folder + "\\" + broken + ".ovproj",
                  crlf({broken, "No Editions", "No Versions", "deployLocal", "f"}));
    startProgram();
    letEventsRun();
    EXPECT_EQ(index().width(), width);
    chooseProject(broken);
    in<QPushButton>(index(), "Command4").click();

    ASSERT_EQ(dialogs.messageBoxes.size(), 1u);  // its words are the loader's test
    EXPECT_EQ(dialogs.messageBoxes[0].text.rfind("mainsettings.cfg file not found.", 0), 0u);
    letEventsRun();
    EXPECT_EQ(windows->editorWindow(), nullptr);
    EXPECT_TRUE(index().isVisible());
    EXPECT_TRUE(index().isEnabled());
    EXPECT_FALSE(box.exists(folder + "\\mainsettings.cfg"));

    // Given on the command line, the same marker leaves the user at the index, not nowhere.
    startProgram(box.windowsPath(folder + "\\" + broken + ".ovproj"));
    EXPECT_EQ(dialogs.messageBoxes.size(), 2u);
    EXPECT_TRUE(index().isVisible());
    EXPECT_TRUE(index().isEnabled());
}

}  // namespace
}  // namespace orvanta::testing
