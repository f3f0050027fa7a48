#pragma once
// The dialogs of a build without windows: every message is written to standard error, and every
// question gets the answer that changes nothing (Cancel, No, Abort), so no file is overwritten or
// removed on the user's behalf.

#include "builder/command/ConsoleOutput.h"
#include "core/Dialogs.h"

namespace orvanta {

class ConsoleDialogs : public Dialogs {
public:
    explicit ConsoleDialogs(ConsoleOutput& output) : output_(output) {}

    DialogAnswer messageBox(const MessageBoxRequest& request) override;
    DialogAnswer taskDialog(const TaskDialogRequest& request) override;
    TaskDialogExAnswer taskDialogEx(const TaskDialogExRequest& request) override;
    std::string inputBox(const InputBoxRequest& request) override;
    std::string openFile(const OpenFileRequest& request) override;
    FolderBrowserAnswer browseForFolder(const FolderBrowserRequest& request) override;

private:
    ConsoleOutput& output_;
};

// The answer a build without a user gives to a question with these buttons.
DialogAnswer safeAnswer(MessageButtons buttons);

}  // namespace orvanta
