#pragma once
// A dialogs service for tests: answers from a queue the test fills (Ok when it is empty) and
// keeps every question it was asked.

#include <deque>
#include <vector>

#include "core/Dialogs.h"

namespace orvanta::testing {

class ScriptedDialogs : public Dialogs {
public:
    void answerNext(DialogAnswer answer) { answers_.push_back(answer); }

    DialogAnswer messageBox(const MessageBoxRequest& request) override {
        messageBoxes.push_back(request);
        return nextAnswer();
    }
    DialogAnswer taskDialog(const TaskDialogRequest& request) override {
        taskDialogs.push_back(request);
        return nextAnswer();
    }

    std::vector<MessageBoxRequest> messageBoxes;
    std::vector<TaskDialogRequest> taskDialogs;

private:
    DialogAnswer nextAnswer() {
        if (answers_.empty()) return DialogAnswer::Ok;
        const DialogAnswer answer = answers_.front();
        answers_.pop_front();
        return answer;
    }

    std::deque<DialogAnswer> answers_;
};

}  // namespace orvanta::testing
