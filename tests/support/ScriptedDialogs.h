#pragma once
// A dialogs service for tests: answers from queues the test fills and keeps every question it
// was asked. An empty queue answers as a user who pressed Ok or cancelled would.

#include <deque>
#include <string>
#include <vector>

#include "core/Dialogs.h"

namespace orvanta::testing {

class ScriptedDialogs : public Dialogs {
public:
    void answerNext(DialogAnswer answer) { answers_.push_back(answer); }
    void answerNextTaskDialogEx(TaskDialogExAnswer answer) { taskAnswers_.push_back(answer); }
    void answerNextInput(std::string text) { inputs_.push_back(std::move(text)); }
    void answerNextOpenFile(std::string path) { files_.push_back(std::move(path)); }
    void answerNextFolder(FolderBrowserAnswer answer) { folders_.push_back(std::move(answer)); }

    DialogAnswer messageBox(const MessageBoxRequest& request) override {
        messageBoxes.push_back(request);
        return next(answers_, DialogAnswer::Ok);
    }
    DialogAnswer taskDialog(const TaskDialogRequest& request) override {
        taskDialogs.push_back(request);
        return next(answers_, DialogAnswer::Ok);
    }
    TaskDialogExAnswer taskDialogEx(const TaskDialogExRequest& request) override {
        taskDialogsEx.push_back(request);
        return next(taskAnswers_, TaskDialogExAnswer{1, 0, request.verificationChecked});
    }
    std::string inputBox(const InputBoxRequest& request) override {
        inputBoxes.push_back(request);
        return next(inputs_, std::string());
    }
    std::string openFile(const OpenFileRequest& request) override {
        openFiles.push_back(request);
        return next(files_, std::string());
    }
    FolderBrowserAnswer browseForFolder(const FolderBrowserRequest& request) override {
        folderBrowsers.push_back(request);
        return next(folders_, FolderBrowserAnswer());
    }

    std::vector<std::string> messageTexts() const {
        std::vector<std::string> texts;
        for (const auto& request : messageBoxes) texts.push_back(request.text);
        return texts;
    }

    std::vector<MessageBoxRequest> messageBoxes;
    std::vector<TaskDialogRequest> taskDialogs;
    std::vector<TaskDialogExRequest> taskDialogsEx;
    std::vector<InputBoxRequest> inputBoxes;
    std::vector<OpenFileRequest> openFiles;
    std::vector<FolderBrowserRequest> folderBrowsers;

private:
    template <typename T>
    static T next(std::deque<T>& queue, T fallback) {
        if (queue.empty()) return fallback;
        T answer = std::move(queue.front());
        queue.pop_front();
        return answer;
    }

    std::deque<DialogAnswer> answers_;
    std::deque<TaskDialogExAnswer> taskAnswers_;
    std::deque<std::string> inputs_;
    std::deque<std::string> files_;
    std::deque<FolderBrowserAnswer> folders_;
};

}  // namespace orvanta::testing
