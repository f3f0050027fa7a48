// Creating a project, filling it in, saving it and opening it again, from the index's list and
// from the command line.
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <filesystem>

#include "UserDay.h"
#include "core/vars.h"
#include "editor/mainfrm.h"
#include "editor/mainfrmFields.h"
#include "project/EditorControls.h"
#include "project/window/start.h"

namespace orvanta::testing {
namespace {

// What the loader brings back differently by design: the button caption (line 23) returns as
// the window's default, and the full licence file has no line of its own.
const std::map<std::string, std::string> kNotRestored = {{"licenseButtonCaption", "Read full license"},
                                                         {"fullLicenseFile", ""}};

class ProjectDay : public UserDay {
protected:
    void expectRestored(const Snapshot& saved, const char* how) {
        const Snapshot now = snapshot();
        for (const auto& [field, seen] : saved) {
            const auto exception = kNotRestored.find(field);
            const std::string expected = exception == kNotRestored.end() ? seen : exception->second;
            EXPECT_EQ(now.at(field), expected) << field << ", " << how;
        }
    }
    int integrityRecords() {
        int count = 0;
        for (const auto& entry : std::filesystem::directory_iterator(box.hostRoot() / "Documents" /
                                                                     "Orvanta" / "myinstallers" / kProject))
            count += entry.path().extension() == ".hsh" ? 1 : 0;
        return count;
    }
};

TEST_F(ProjectDay, ANewProjectIsMadeFromAFolderAndSavedAtOnce) {
    ASSERT_EQ(startProgram(), MainOutcome::StartShown);
    EXPECT_TRUE(dialogs.messageBoxes.empty() && dialogs.taskDialogs.empty());
    EXPECT_EQ(in<QComboBox>(index(), "Combo1").count(), 1);
    createProject();

    EXPECT_EQ(windows->startWindow(), nullptr) << "the index goes once the project is made";
    ASSERT_TRUE(editor().isVisible());
    EXPECT_EQ(editor().windowTitle().toStdString(), "Orvanta ~ My App");
    EXPECT_EQ(fields().text(ctrl::workingFolder), root());
    EXPECT_EQ(bytes("My App.ovproj"), crlf({"My App", "No Editions", "No Versions", "deployLocal", "f"}));
    const auto settings = lines("mainsettings.cfg");
    ASSERT_EQ(settings.size(), 49u);
    EXPECT_EQ(settings[0], "My App");
    EXPECT_EQ(settings[1], "Ann Author");
    EXPECT_EQ(settings[12], ".exe");
    EXPECT_EQ(settings[15], "1.0");
    EXPECT_EQ(settings[23], "NONE");
    EXPECT_EQ(settings[39], "No editions");
    EXPECT_EQ(settings[43], "s");
    EXPECT_EQ(bytes("registrylocations.cfg"), "<>\r\n");
    EXPECT_EQ(bytes("packages.cfg"), "");
    EXPECT_EQ(bytes("logo.png"), box.readFile("app\\i\\default.png"));
    for (const char* folder : {"files", "executables", "fonts", "packages", "settingsset", "msi"})
        EXPECT_TRUE(box.exists(rel(folder))) << folder;
    EXPECT_EQ(integrityRecords(), 1);

    waitForTheCopy();
    EXPECT_EQ(bytes("files\\prog.exe"), "MZ-prog");
    EXPECT_EQ(bytes("files\\lib\\x.dll"), "dll-x");
}

TEST_F(ProjectDay, WhatTheUserFilledInIsSavedLineByLine) {
    startProgram();
    createProject();
    waitForTheCopy();
    fillEditor();
    saveWithTheButton();
    EXPECT_EQ(in<QLabel>(editor(), "controlTips").text().toStdString(), "Project Saved!");

    EXPECT_EQ(lines("mainsettings.cfg"),
              (std::vector<std::string>{"My App",
                                        "Ann Author",
                                        " 1 ",  // start menu shortcut
                                        " 1 ",  // desktop shortcut, ticked with its "checked"
                                        "",     // the full licence file has no line
                                        "Start My App",
                                        " 1 ",  // startup, ticked with "Required Option"
                                        " 1 ",
                                        "http://myapp.example",
                                        "15",  // the bytes of \files
                                        " 0 ",
                                        " 0 ",
                                        "prog.exe",
                                        " 1 ",  // no repair
                                        " 0 ",
                                        "2.5",
                                        " 1 ",  // roll effect
                                        "Allusers ApplicationData\\My App",
                                        "Windows 7",
                                        " 0 ",
                                        " 0 ",
                                        "Terms",
                                        "Show terms",
                                        "REGDEL",
                                        " 1 ",  // clean it all
                                        "",
                                        " 0 ",
                                        " 1 ",  // desktop shortcut checked
                                        " 0 ",
                                        "",  // startup arguments: only the placeholder
                                        " 0 ",
                                        "",
                                        "http://help.example",
                                        "",
                                        "myapp-%version.exe",
                                        "",
                                        " 1 ",  // required option
                                        " 0 ",
                                        " 0 ",
                                        "No editions",
                                        " 0 ",
                                        " 0 ",
                                        " 0 ",
                                        "i",
                                        " 0 ",
                                        " 0 ",
                                        " 1 ",  // silent update
                                        " 1 ",  // restore point
                                        " 0 "}));
    EXPECT_EQ(vars::finalPackageFile, "myapp-2.5.exe");
    EXPECT_EQ(bytes("registrylocations.cfg"),
              crlf({"HKLM\\Software\\My App", "HKCU\\Software\\My App Shared"}));
    EXPECT_EQ(bytes("appdatalocations.cfg"), crlf({"ROAMING\\My App"}));
    EXPECT_EQ(bytes("dependencies.cfg"), crlf({"helper.ocx", " 1 ", "lib\\x.dll", " 0 "}));
    EXPECT_EQ(bytes("fonts.cfg"), crlf({"myfont.ttf"}));
    EXPECT_EQ(bytes("intro.cfg"), crlf({"Welcome to My App.", "", "Enjoy."}));
    EXPECT_EQ(bytes("slicense.txt"), crlf({"Short licence"}));
    EXPECT_EQ(bytes("eula.rtf"), "{\\rtf1 eula}");
    EXPECT_EQ(bytes("files.cfg"), crlf({"helper.ocx", "prog.exe", "lib\\x.dll"}));
    EXPECT_EQ(bytes("folders.cfg"), crlf({"lib"}));
    EXPECT_EQ(integrityRecords(), 1) << "the record of the first save is replaced";
    EXPECT_TRUE(dialogs.messageBoxes.empty());
}

TEST_F(ProjectDay, ReopenedFromTheListAndFromTheCommandLineEveryFieldIsBack) {
    startProgram();
    createProject();
    waitForTheCopy();
    fillEditor();
    saveWithTheButton();
    const Snapshot saved = snapshot();
    backToTheIndex();

    EXPECT_EQ(windows->editorWindow(), nullptr);
    ASSERT_TRUE(index().isVisible());
    EXPECT_EQ(in<QComboBox>(index(), "Combo1").count(), 2);
    chooseProject(kProject);
    EXPECT_EQ(in<QLabel>(index(), "Label7").text().toStdString(), "Ann Author");
    in<QPushButton>(index(), "Command4").click();
    ASSERT_TRUE(editor().isVisible());
    EXPECT_TRUE(editor().isEnabled());
    EXPECT_FALSE(index().isVisible());
    EXPECT_TRUE(index().isEnabled());
    EXPECT_EQ(editor().windowTitle().toStdString(), "Orvanta ~ " + root());
    expectRestored(saved, "opened from the list");

    // The next run of the program is given the marker, as the shell does on a double click.
    editor().close();
    EXPECT_EQ(startProgram(box.windowsPath(rel("My App.ovproj"))), MainOutcome::ProjectLoaded);
    EXPECT_EQ(windows->startWindow(), nullptr);
    ASSERT_TRUE(editor().isVisible());
    expectRestored(saved, "opened from the command line");
    EXPECT_TRUE(dialogs.messageBoxes.empty());
}

TEST_F(ProjectDay, AFailedOpenUnloadsTheEditorAndLeavesTheIndexDisabled) {
    box.writeFile("Documents\\Orvanta\\myinstallers\\Broken\\Broken.ovproj",
                  crlf({"Broken", "No Editions", "No Versions", "deployLocal", "f"}));
    startProgram();
    chooseProject("Broken");
    in<QPushButton>(index(), "Command4").click();

    ASSERT_EQ(dialogs.messageBoxes.size(), 1u);
    EXPECT_EQ(dialogs.messageBoxes[0].text,
              "mainsettings.cfg file not found. The mainsettings file stores most of the settings of the "
              "project.");
    EXPECT_EQ(dialogs.messageBoxes[0].icon, MessageIcon::Critical);
    letEventsRun();
    EXPECT_EQ(windows->editorWindow(), nullptr);
    EXPECT_TRUE(index().isVisible());
    EXPECT_FALSE(index().isEnabled());
    EXPECT_FALSE(box.exists("Documents\\Orvanta\\myinstallers\\Broken\\mainsettings.cfg"));
}

}  // namespace
}  // namespace orvanta::testing
