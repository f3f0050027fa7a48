#pragma once
// The one service through which the system asks the user anything. Production shows real
// dialogs; tests give a scripted service that answers as they say and records what was asked.
// Every string is ANSI and every path a Windows path, as everywhere else inside the system.

#include <string>
#include <vector>

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

// The plain task dialog: instruction, content and title; an empty title is the platform's own.
struct TaskDialogRequest {
    std::string instruction;
    std::string content;
    std::string title;
    MessageButtons buttons = MessageButtons::Ok;
    MessageIcon icon = MessageIcon::None;
};

struct TaskDialogButton {
    std::string text;
    int id = 0;
};

// The rich task dialog, filled from a task dialog model.
struct TaskDialogExRequest {
    std::string windowTitle;
    MessageIcon mainIcon = MessageIcon::None;
    std::string mainInstruction;
    std::string content;
    std::string verificationText;  // empty: no verification box
    bool verificationChecked = false;
    std::string expandedInformation;
    std::string expandedControlText;
    std::string collapsedControlText;
    MessageIcon footerIcon = MessageIcon::None;
    MessageButtons commonButtons = MessageButtons::Ok;  // used when `buttons` is empty
    std::vector<TaskDialogButton> buttons;
    int defaultButton = 0;
};

struct TaskDialogExAnswer {
    int button = 0;  // the id of the button pressed; 0 when the dialog failed
    int radioButton = 0;
    bool verificationChecked = false;
};

struct InputBoxRequest {
    std::string prompt;
    std::string title;
    std::string defaultText;
};

// The open-file dialog: a "|"-separated filter ("Executable files|*.exe;*.bat"), default
// extensions ("*.exe,*.bat"), the folder it starts in and its title.
struct OpenFileRequest {
    std::string filter;
    std::string defaultExtensions;
    std::string initialFolder;
    std::string title;
};

struct FolderBrowserRequest {
    std::string title;
    std::string initialFolder;
    bool showRecurse = false;  // the "INCLUDE SUBFOLDERS" box
    bool showCreate = false;   // the "Create" button
};

struct FolderBrowserAnswer {
    std::string folder;  // empty when the user cancelled
    bool recurse = false;
};

class Dialogs {
public:
    virtual ~Dialogs() = default;
    virtual DialogAnswer messageBox(const MessageBoxRequest& request) = 0;
    virtual DialogAnswer taskDialog(const TaskDialogRequest& request) = 0;
    virtual TaskDialogExAnswer taskDialogEx(const TaskDialogExRequest& request) = 0;
    // The text entered; empty when the user cancelled, as an input box gives it.
    virtual std::string inputBox(const InputBoxRequest& request) = 0;
    // The chosen file's Windows path; empty when the user cancelled.
    virtual std::string openFile(const OpenFileRequest& request) = 0;
    virtual FolderBrowserAnswer browseForFolder(const FolderBrowserRequest& request) = 0;
};

}  // namespace orvanta
