#include "core/cTaskDialog.h"

namespace orvanta {

int cTaskDialog::Dialog(const std::string& prompt, const std::string& content, const std::string& title,
                        MessageButtons buttons, MessageIcon icon) {
    return static_cast<int>(dialogs_.taskDialog({prompt, content, title, buttons, icon}));
}

int cTaskDialog::DialogEx(cTaskDialogModel& p_TaskModel, int& r_RadioButton,
                          bool& r_VerificationFlagChecked) {
    if (p_TaskModel.OwnerhWnd == 0) p_TaskModel.OwnerhWnd = OwnerHandle;
    TaskDialogExRequest request = p_TaskModel.request();
    request.verificationChecked = r_VerificationFlagChecked;
    const TaskDialogExAnswer answer = dialogs_.taskDialogEx(request);
    r_RadioButton = answer.radioButton;
    r_VerificationFlagChecked = answer.verificationChecked;
    return answer.button;
}

}  // namespace orvanta
