#pragma once
// The task dialog as the windows call it: `Dialog` for a plain question, `DialogEx` with a model
// for a richer one. Both end in the dialogs service, which shows what it is asked.

#include <cstdint>
#include <string>

#include "core/Dialogs.h"

namespace orvanta {

class cTaskDialogModel {
public:
    void CreateButton(const std::string& text, int id) { request_.buttons.push_back({text, id}); }

    std::uintptr_t OwnerhWnd = 0;
    std::string& WindowTitle() { return request_.windowTitle; }
    MessageIcon& MainIcon() { return request_.mainIcon; }
    std::string& MainInstruction() { return request_.mainInstruction; }
    std::string& Content() { return request_.content; }
    std::string& VerificationText() { return request_.verificationText; }
    std::string& ExpandedInformation() { return request_.expandedInformation; }
    std::string& ExpandedControlText() { return request_.expandedControlText; }
    std::string& CollapsedControlText() { return request_.collapsedControlText; }
    MessageIcon& FooterIcon() { return request_.footerIcon; }
    int& DefaultButton() { return request_.defaultButton; }
    MessageButtons& CommonButtons() { return request_.commonButtons; }

    const TaskDialogExRequest& request() const { return request_; }

private:
    TaskDialogExRequest request_;
};

class cTaskDialog {
public:
    explicit cTaskDialog(Dialogs& dialogs) : dialogs_(dialogs) {}

    // The owner goes into a model that names none.
    std::uintptr_t OwnerHandle = 0;

    int Dialog(const std::string& prompt, const std::string& content, const std::string& title,
               MessageButtons buttons, MessageIcon icon);
    // The pressed button; the radio button and the verification box come back by reference.
    int DialogEx(cTaskDialogModel& p_TaskModel, int& r_RadioButton, bool& r_VerificationFlagChecked);

private:
    Dialogs& dialogs_;
};

}  // namespace orvanta
