#include <gtest/gtest.h>
#include <QCheckBox>
#include <QPushButton>

#include "controls/frmButton.h"
#include "support/Sandbox.h"
#include "support/ScriptedDialogs.h"

namespace orvanta {
namespace {

class FolderBrowserDialog : public ::testing::Test {
protected:
    void SetUp() override {
        box.makeFolder("start\\Existing");
        dialog = std::make_unique<frmButton>(box.host(), dialogs);
        dialog->prepare({"Pick", box.windowsPath("start"), true, true});
    }
    void clickCreate() { dialog->findChild<QPushButton*>("Command1")->click(); }

    testing::Sandbox box;
    testing::ScriptedDialogs dialogs;
    std::unique_ptr<frmButton> dialog;
};

TEST_F(FolderBrowserDialog, RefusesAnExistingNameWithAWarningAndCreatesANewOneAndSelectsIt) {
    dialogs.answerNextInput("Existing");
    clickCreate();
    ASSERT_EQ(dialogs.inputBoxes.size(), 1u);
    EXPECT_EQ(dialogs.inputBoxes[0].title, "Create Folder");
    EXPECT_EQ(dialogs.inputBoxes[0].prompt, "Enter a name for your new folder");
    ASSERT_EQ(dialogs.messageBoxes.size(), 1u);
    EXPECT_EQ(dialogs.messageBoxes[0].title, "Brindle Works Folder Browser");
    EXPECT_EQ(dialogs.messageBoxes[0].text,
              "A Folder of that name already exists.\r\nPlease enter a different name");
    EXPECT_EQ(dialog->currentPath(), box.windowsPath("start"));

    dialogs.answerNextInput("Fresh");
    clickCreate();
    EXPECT_TRUE(box.exists("start\\Fresh"));
    EXPECT_EQ(dialogs.messageBoxes.size(), 1u);
    EXPECT_EQ(dialog->answer().folder, box.windowsPath("start\\Fresh"));

    clickCreate();  // an empty answer does nothing
    EXPECT_EQ(dialogs.inputBoxes.size(), 3u);
    EXPECT_EQ(dialogs.messageBoxes.size(), 1u);
}

TEST_F(FolderBrowserDialog, HidesWhatWasNotAskedFor) {
    dialog->prepare({"Pick", box.windowsPath("start"), false, false});
    auto* check = dialog->findChild<QCheckBox*>("Check1");
    check->setChecked(true);
    EXPECT_TRUE(check->isHidden());
    EXPECT_TRUE(dialog->findChild<QPushButton*>("Command1")->isHidden());
    EXPECT_FALSE(dialog->answer().recurse);
    EXPECT_EQ(check->text(), "    INCLUDE SUBFOLDERS");
}

}  // namespace
}  // namespace orvanta
