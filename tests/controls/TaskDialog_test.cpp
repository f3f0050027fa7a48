#include <gtest/gtest.h>

#include "core/CommondialogBox.h"
#include "core/cTaskDialog.h"
#include "support/ScriptedDialogs.h"

namespace orvanta {
namespace {

TEST(cTaskDialog, DialogExSendsTheModelAndGivesBackTheBoxAsItStood) {
    testing::ScriptedDialogs dialogs;
    cTaskDialog task(dialogs);
    task.OwnerHandle = 77;
    cTaskDialogModel model;
    model.MainInstruction() = "Save changes?";
    model.VerificationText() = "Do not ask again";
    model.ExpandedInformation() = "details";
    model.CreateButton("Save", 100);
    model.CreateButton("Discard", 101);
    dialogs.answerNextTaskDialogEx({101, 0, true});
    int radio = -1;
    bool verified = false;
    EXPECT_EQ(task.DialogEx(model, radio, verified), 101);
    EXPECT_TRUE(verified);
    EXPECT_EQ(radio, 0);
    EXPECT_EQ(model.OwnerhWnd, 77u) << "a model without owner takes the dialog's";
    ASSERT_EQ(dialogs.taskDialogsEx.size(), 1u);
    EXPECT_EQ(dialogs.taskDialogsEx[0].buttons.size(), 2u);
    EXPECT_EQ(dialogs.taskDialogsEx[0].expandedInformation, "details");

    // Unanswered, the box comes back as the caller set it.
    EXPECT_EQ(task.DialogEx(model, radio, verified), 1);
    EXPECT_TRUE(verified);
}

TEST(OpenFileDialog, KeepsTheBareNameOfTheAnswerPassesTheRequestAndSplitsTheFilter) {
    testing::ScriptedDialogs dialogs;
    // Trailing blanks go, and so does whatever follows a NUL in the dialog's buffer.
    dialogs.answerNextOpenFile(std::string("C:\\p\\files\\setup.exe  \0x", 24));
    const OpenFileResult result =
        openFileDialog(dialogs, "Executable files|*.exe;*.bat", "*.exe,*.bat", "C:\\p\\files", "Pick");
    EXPECT_EQ(result.path, "C:\\p\\files\\setup.exe");
    EXPECT_EQ(result.fileName, "setup.exe");
    ASSERT_EQ(dialogs.openFiles.size(), 1u);
    EXPECT_EQ(dialogs.openFiles[0].filter, "Executable files|*.exe;*.bat");
    EXPECT_EQ(openFileDialog(dialogs, "", "", "", "").path, "") << "cancelled";

    const auto entries = splitDialogFilter("Executables|*.exe;*.bat|All|*.*|Dangling");
    ASSERT_EQ(entries.size(), 2u);
    EXPECT_EQ(entries[0].description, "Executables");
    EXPECT_EQ(entries[0].patterns, "*.exe;*.bat");
    EXPECT_EQ(entries[1].patterns, "*.*");
    EXPECT_TRUE(splitDialogFilter("").empty());
}

}  // namespace
}  // namespace orvanta
