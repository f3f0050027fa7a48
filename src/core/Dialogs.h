#pragma once
// The one service through which the system asks the user anything. Production shows real
// dialogs; tests give a scripted service that answers as they say and records what was asked.

#include <string>

namespace orvanta {

enum class MessageIcon { None, Critical, Question, Exclamation, Information };
enum class MessageButtons { Ok, OkCancel, AbortRetryIgnore, YesNoCancel, YesNo, RetryCancel };
// The numbers of the answers are those a message box returns.
enum class DialogAnswer { Ok = 1, Cancel = 2, Abort = 3, Retry = 4, Ignore = 5, Yes = 6, No = 7 };

struct MessageBoxRequest {
    std::string text;
    MessageButtons buttons = MessageButtons::Ok;
    MessageIcon icon = MessageIcon::None;
    std::string title;
};

struct TaskDialogRequest {
    std::string instruction;
    std::string content;
    std::string title;
    MessageButtons buttons = MessageButtons::Ok;
    MessageIcon icon = MessageIcon::None;
};

class Dialogs {
public:
    virtual ~Dialogs() = default;
    virtual DialogAnswer messageBox(const MessageBoxRequest& request) = 0;
    virtual DialogAnswer taskDialog(const TaskDialogRequest& request) = 0;
};

}  // namespace orvanta
