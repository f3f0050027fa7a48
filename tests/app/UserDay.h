#pragma once
// A user's day with the whole program in a sandbox: the program is started through its entry
// routine, and the user works the windows with clicks, typing and scripted answers to the
// questions. The account is new: it has no documents folder yet. The project of the day is
// "My App", made from the folder "my program", large enough that its copy is watched.

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QWidget>
#include <functional>
#include <map>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "app/ApplicationWindows.h"
#include "core/StartBitch.h"
#include "support/Sandbox.h"
#include "support/ScriptedDialogs.h"

namespace orvanta {

class mainfrm;
class mainfrmFields;
class editionsfrm;
class packages;
class start;

namespace testing {

class UserDay : public ::testing::Test {
protected:
    static constexpr const char* kProject = "My App";
    // The files of "my program": three named ones and a crowd in subfolders.
    static constexpr std::size_t kProgramFiles = 131;

    void SetUp() override;
    void TearDown() override;

    // ---- The program: started as from the desktop (no command line) or with a marker's path.
    MainOutcome startProgram(const std::string& commandLine = "");
    void endProgram();
    // What the event loop does between two actions of the user: deferred deletions included.
    static void letEventsRun();

    start& index();
    mainfrm& editor();
    mainfrmFields& fields();

    // ---- The user's hands
    template <typename T>
    static T& in(QWidget& window, const char* name) {
        T* control = window.findChild<T*>(QString::fromLatin1(name));
        if (control == nullptr) throw std::runtime_error(std::string("no control ") + name);
        return *control;
    }
    static void focusIn(QWidget& field);
    static void focusOut(QWidget& field);
    // Clicks into the field, replaces what it shows by `text` and leaves it; line breaks as Enter.
    static void typeInto(QWidget& field, const std::string& text);
    void typeInEditor(const char* name, const std::string& text);
    void clickInEditor(const char* name);
    void chooseProject(const std::string& name);

    // ---- Stretches of the day
    // What the user sees of the copy while it runs, each time the windows get their turn.
    struct CopyWatch {
        bool editorShownFirst = false;    // the editor was up when the copy began
        bool savedEarly = false;          // a project file was written before the copy ended
        std::vector<std::string> counts;  // the progress window's texts
        std::vector<int> bar;             // and its bar
    };
    // Fills in the new-project form and creates the project; `duringCopy` acts in the progress
    // window each time it gets its turn.
    CopyWatch createProject(const std::function<void(QWidget& progress)>& duringCopy = {});
    void fillEditor();
    void saveWithTheButton();
    void backToTheIndex();
    // Opens the packages manager over the editor, lets `work` act in it and closes it.
    void inPackagesManager(const std::function<void(packages&)>& work);
    // Opens the editions window from the editor, lets `work` act in it, and closes it.
    void inEditionsWindow(const std::function<void(editionsfrm&)>& work);

    // ---- What is on disk, below the project root
    std::string root();
    static std::string rel(const std::string& below);
    std::string bytes(const std::string& below) { return box.readFile(rel(below)); }
    // The lines of a file whose every line ends in CR LF; a line without it fails the test.
    std::vector<std::string> lines(const std::string& below);
    static std::string crlf(const std::vector<std::string>& lines);

    // Every field of the open project as the user sees it: text or value, enabled, placeholder look.
    using Snapshot = std::map<std::string, std::string>;
    Snapshot snapshot();
    // Compares the fields with a snapshot taken before the project was opened again. An open brings
    // back the button caption as the window's default and no full licence file, which has no line
    // of its own; a switch back from an edition keeps them but grows the content lists until the
    // next save refreshes them.
    void expectRestored(const Snapshot& saved, const std::string& how, bool switchedBack = false);

    Sandbox box;
    ScriptedDialogs dialogs;
    std::unique_ptr<ApplicationWindows> windows;
};

}  // namespace testing
}  // namespace orvanta
