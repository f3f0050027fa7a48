// The item lists, the view of the application's files and the choice of the main executable.
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>

#include "EditorFixture.h"
#include "controls/QtText.h"

namespace orvanta::testing {
namespace {

using Lists = EditorFixture;

std::vector<std::string> entries(QListWidget& list) {
    std::vector<std::string> texts;
    for (int row = 0; row < list.count(); ++row) texts.push_back(fromQString(list.item(row)->text()));
    return texts;
}

// The day adds a control and a library; these are the spellings of the extension and the refusal.
TEST_F(Lists, DependenciesMustLieBelowFilesAndControlsAreMarkedForRegistration) {
    sandbox.writeFile(projectRelative("files\\GRID2.OCX"), "x");
    sandbox.writeFile(projectRelative("files\\odd.Ocx"), "x");
    auto& list = get<QListWidget>("List1");
    for (const char* name : {"GRID2.OCX", "odd.Ocx", "missing.dll"}) {
        window->Command5_Click();
        EXPECT_TRUE(get<QWidget>("Command5").isHidden());
        setText("Text30", name);
        window->Command46_Click();
    }
    ASSERT_EQ(entries(list), (std::vector<std::string>{"GRID2.OCX", "odd.Ocx"}));
    EXPECT_EQ(list.item(0)->checkState(), Qt::Checked);
    EXPECT_EQ(list.item(1)->checkState(), Qt::Unchecked);
    ASSERT_EQ(dialogs.messageBoxes.size(), 1u);
    EXPECT_EQ(dialogs.messageBoxes[0].text,
              "The dependency file with this name was not found on the project files root folder.");
    EXPECT_EQ(dialogs.messageBoxes[0].icon, MessageIcon::Exclamation);
    EXPECT_EQ(text("Text30"), "");
    EXPECT_TRUE(get<QWidget>("Text30").isHidden());
    EXPECT_FALSE(get<QWidget>("Command4").isHidden());

    list.setCurrentRow(0);
    EXPECT_TRUE(enabled("Command4"));
    window->Command4_Click();
    EXPECT_EQ(entries(list), (std::vector<std::string>{"odd.Ocx"}));
    EXPECT_FALSE(enabled("Command4"));
}

TEST_F(Lists, LocationButtonsFollowTheSelectedEntry) {
    auto& list = get<QListWidget>("List3");
    get<QComboBox>("Combo2").setCurrentIndex(1);
    for (const char* key : {"\\Software\\A", "\\Software\\B", "\\Software\\C"}) {
        setText("Text3", key);
        window->Command2_Click();
    }
    EXPECT_FALSE(enabled("Command3"));
    list.setCurrentRow(0);
    EXPECT_TRUE(enabled("Command3"));
    EXPECT_FALSE(enabled("Command43"));
    window->Command42_Click();
    window->Command42_Click();
    EXPECT_EQ(list.currentRow(), 2);
    EXPECT_FALSE(enabled("Command42"));
    window->Command43_Click();
    EXPECT_EQ(entries(list),
              (std::vector<std::string>{"HKCU\\Software\\B", "HKCU\\Software\\A", "HKCU\\Software\\C"}));
    EXPECT_TRUE(enabled("Command42") && enabled("Command43"));

    // Removing selects the entry that moved into the place, or the last one.
    list.setCurrentRow(0);
    window->Command3_Click();
    EXPECT_EQ(fromQString(list.currentItem()->text()), "HKCU\\Software\\A");
    list.setCurrentRow(1);
    window->Command3_Click();
    EXPECT_EQ(fromQString(list.currentItem()->text()), "HKCU\\Software\\A");
    // With a single entry neither up nor down is open.
    EXPECT_FALSE(enabled("Command43") || enabled("Command42"));
    window->Command3_Click();
    EXPECT_FALSE(enabled("Command3"));
}

TEST_F(Lists, FontScanAddsNewVisibleFontFilesOnlyAndRemovesNothing) {
    auto& list = get<QListWidget>("List2");
    dialogs.answerNextInput("Old.ttf");
    dialogs.answerNextInput("");
    window->Command13_Click();
    window->Command13_Click();
    ASSERT_EQ(dialogs.inputBoxes.size(), 2u);
    EXPECT_EQ(dialogs.inputBoxes[0].prompt, "Insert font file name");
    for (const char* name : {"a.TTF", "b.otf", "c.fon", "d.fnt", "notes.txt", "e.ttf.bak"})
        sandbox.writeFile(projectRelative("fonts\\") + name, "x");
    sandbox.makeFolder(projectRelative("fonts\\sub.ttf"));
    // The button scans as the saver does: a hidden file is not seen.
    sandbox.writeFile(projectRelative("fonts\\hidden.ttf"), "x");
    sandbox.host().setFileAttributes(projectRoot() + "\\fonts\\hidden.ttf", kAttributeHidden);
    window->Command32_Click();
    std::vector<std::string> found = entries(list);
    ASSERT_EQ(found.size(), 5u);
    EXPECT_EQ(found[0], "Old.ttf");
    std::sort(found.begin() + 1, found.end());
    EXPECT_EQ(found, (std::vector<std::string>{"Old.ttf", "a.TTF", "b.otf", "c.fon", "d.fnt"}));
    window->Command32_Click();
    EXPECT_EQ(list.count(), 5);
}

// What the lists hold is the project layer's test; here, which folder the window lists.
TEST_F(Lists, FilesViewListsTheProjectsFilesFolderFromAnyWorkingSet) {
    sandbox.writeFile(projectRelative("files\\lib\\p.dll"), "x");
    setText("Text2", projectRoot() + "\\editions\\Pro");
    get<QListWidget>("List6").addItem(QStringLiteral("stale.txt"));
    window->Command33_Click();
    window->Command34_Click();
    EXPECT_EQ(entries(get<QListWidget>("List6")), std::vector<std::string>{"lib\\p.dll"});
    EXPECT_EQ(entries(get<QListWidget>("List7")), std::vector<std::string>{"lib"});

    // The base follows the name field.
    setText("Text1", "Other");
    window->Command33_Click();
    window->Command34_Click();
    EXPECT_EQ(get<QListWidget>("List6").count() + get<QListWidget>("List7").count(), 0);
}

// The day answers the question an empty box asks; here, what it asks and when it does not.
TEST_F(Lists, AnEmptyMainExecutableAsksOnceAndTheChoiceIsKeptBelowTheFilesFolder) {
    focus("Text21", true);  // still ".exe"
    ASSERT_EQ(dialogs.openFiles.size(), 1u);
    EXPECT_EQ(dialogs.openFiles[0].title, "Select the application main executable");
    EXPECT_EQ(dialogs.openFiles[0].initialFolder, projectRoot() + "\\files");
    EXPECT_EQ(dialogs.openFiles[0].filter, "Executable files|*.exe;*.bat");
    // The focus that returns when a dialog closes does not open it again.
    QFocusEvent back(QEvent::FocusIn, Qt::ActiveWindowFocusReason);
    QCoreApplication::sendEvent(&get<QWidget>("Text21"), &back);
    dialogs.answerNextOpenFile(projectRoot() + "\\files\\bin\\app.exe");
    window->Command45_Click();
    EXPECT_EQ(text("Text21"), "bin\\app.exe");
    focus("Text21", true);
    window->Command45_Click();  // cancelled
    EXPECT_EQ(text("Text21"), "bin\\app.exe");
    EXPECT_EQ(dialogs.openFiles.size(), 3u);
}

}  // namespace
}  // namespace orvanta::testing
