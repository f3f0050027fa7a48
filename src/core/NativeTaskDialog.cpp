#include "core/NativeTaskDialog.h"

namespace orvanta {

namespace {

int iconNumber(MessageIcon icon) {
    switch (icon) {
        case MessageIcon::Critical:
            return kTaskIconError;
        case MessageIcon::Exclamation:
            return kTaskIconWarning;
        case MessageIcon::Information:
            return kTaskIconInformation;
        case MessageIcon::Question:
            return kSystemIconQuestion;
        case MessageIcon::None:
            break;
    }
    return 0;
}

int answerId(DialogAnswer answer) {
    return static_cast<int>(answer);
}

// Common buttons as flags; abort and ignore are no common buttons, so those come as buttons of
// their own with the answers' numbers.
void addButtons(MessageButtons buttons, NativeTaskDialog& plan) {
    switch (buttons) {
        case MessageButtons::Ok:
            plan.commonButtons = kTaskButtonOk;
            break;
        case MessageButtons::OkCancel:
            plan.commonButtons = kTaskButtonOk | kTaskButtonCancel;
            break;
        case MessageButtons::YesNoCancel:
            plan.commonButtons = kTaskButtonYes | kTaskButtonNo | kTaskButtonCancel;
            break;
        case MessageButtons::YesNo:
            plan.commonButtons = kTaskButtonYes | kTaskButtonNo;
            break;
        case MessageButtons::RetryCancel:
            plan.commonButtons = kTaskButtonRetry | kTaskButtonCancel;
            break;
        case MessageButtons::AbortRetryIgnore:
            plan.buttons = {{answerId(DialogAnswer::Abort), "&Abort"},
                            {answerId(DialogAnswer::Retry), "&Retry"},
                            {answerId(DialogAnswer::Ignore), "&Ignore"}};
            break;
    }
}

}  // namespace

NativeTaskDialog planNativeTaskDialog(const TaskDialogExRequest& request) {
    NativeTaskDialog plan;
    plan.windowTitle = request.windowTitle;
    plan.mainInstruction = request.mainInstruction;
    plan.content = request.content;
    plan.verificationText = request.verificationText;
    plan.expandedInformation = request.expandedInformation;
    plan.expandedControlText = request.expandedControlText;
    plan.collapsedControlText = request.collapsedControlText;
    if (request.buttons.empty()) addButtons(request.commonButtons, plan);
    for (const TaskDialogButton& button : request.buttons) plan.buttons.emplace_back(button.id, button.text);
    plan.defaultButton = request.defaultButton;
    plan.mainIcon = iconNumber(request.mainIcon);
    plan.flags = kTaskFlagRelativeToWindow;
    if (request.verificationChecked) plan.flags |= kTaskFlagVerificationChecked;
    if (plan.mainIcon > 0) plan.flags |= kTaskFlagIconIsHandle;
    return plan;
}

bool showNativeTaskDialog(Host& host, const TaskDialogExRequest& request, TaskDialogExAnswer& answer) {
    const auto shown = host.showTaskDialog(planNativeTaskDialog(request));
    if (!shown) return false;
    answer.button = shown->button;
    answer.radioButton = shown->radioButton;
    answer.verificationChecked = shown->verificationChecked;
    return true;
}

}  // namespace orvanta
