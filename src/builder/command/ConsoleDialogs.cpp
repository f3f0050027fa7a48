#include "builder/command/ConsoleDialogs.h"

namespace orvanta {

namespace {

const char* answerWord(DialogAnswer answer) {
    switch (answer) {
        case DialogAnswer::Ok:
            return "OK";
        case DialogAnswer::Cancel:
            return "Cancel";
        case DialogAnswer::Abort:
            return "Abort";
        case DialogAnswer::Retry:
            return "Retry";
        case DialogAnswer::Ignore:
            return "Ignore";
        case DialogAnswer::Yes:
            return "Yes";
        case DialogAnswer::No:
            return "No";
    }
    return "";
}

// Tells what was answered on the user's behalf; a plain message needs no word.
DialogAnswer answered(ConsoleOutput& output, MessageButtons buttons) {
    const DialogAnswer answer = safeAnswer(buttons);
    if (buttons != MessageButtons::Ok) output.line(std::string("(answered: ") + answerWord(answer) + ")");
    return answer;
}

}  // namespace

DialogAnswer safeAnswer(MessageButtons buttons) {
    switch (buttons) {
        case MessageButtons::Ok:
            return DialogAnswer::Ok;
        case MessageButtons::OkCancel:
        case MessageButtons::YesNoCancel:
        case MessageButtons::RetryCancel:
            return DialogAnswer::Cancel;
        case MessageButtons::AbortRetryIgnore:
            return DialogAnswer::Abort;
        case MessageButtons::YesNo:
            return DialogAnswer::No;
    }
    return DialogAnswer::Cancel;
}

DialogAnswer ConsoleDialogs::messageBox(const MessageBoxRequest& request) {
    output_.line(request.text);
    return answered(output_, request.buttons);
}

DialogAnswer ConsoleDialogs::taskDialog(const TaskDialogRequest& request) {
    output_.line(request.instruction);
    if (!request.content.empty()) output_.line(request.content);
    return answered(output_, request.buttons);
}

TaskDialogExAnswer ConsoleDialogs::taskDialogEx(const TaskDialogExRequest& request) {
    output_.line(request.mainInstruction);
    if (!request.content.empty()) output_.line(request.content);
    if (!request.buttons.empty()) {
        output_.line("(answered: closed)");
        return {static_cast<int>(DialogAnswer::Cancel), 0, request.verificationChecked};
    }
    return {static_cast<int>(answered(output_, request.commonButtons)), 0, request.verificationChecked};
}

std::string ConsoleDialogs::inputBox(const InputBoxRequest& request) {
    output_.line(request.prompt);
    output_.line("(answered: Cancel)");
    return {};
}

std::string ConsoleDialogs::openFile(const OpenFileRequest& request) {
    output_.line(request.title + " (answered: Cancel)");
    return {};
}

FolderBrowserAnswer ConsoleDialogs::browseForFolder(const FolderBrowserRequest& request) {
    output_.line(request.title + " (answered: Cancel)");
    return {};
}

}  // namespace orvanta
