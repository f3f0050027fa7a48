#include "core/NativeTaskDialog.h"

#include <windows.h>
// windows.h first: the common controls header needs its types.
#include <commctrl.h>

namespace orvanta {

namespace {

std::wstring wide(const std::string& ansi) {
    if (ansi.empty()) return {};
    const int length = MultiByteToWideChar(CP_ACP, 0, ansi.data(), static_cast<int>(ansi.size()), nullptr, 0);
    std::wstring text(static_cast<std::size_t>(length), L'\0');
    MultiByteToWideChar(CP_ACP, 0, ansi.data(), static_cast<int>(ansi.size()), text.data(), length);
    return text;
}

int iconNumber(MessageIcon icon) {
    switch (icon) {
        case MessageIcon::Critical:
            return -2;  // TD_ERROR_ICON
        case MessageIcon::Exclamation:
            return -1;  // TD_WARNING_ICON
        case MessageIcon::Information:
            return -3;  // TD_INFORMATION_ICON
        case MessageIcon::Question:
            return 32514;  // IDI_QUESTION: the task dialog has no stock one
        case MessageIcon::None:
            break;
    }
    return 0;
}

// Common buttons as flags; abort and ignore are no common buttons, so those come as buttons of
// their own with the answers' numbers.
void addButtons(MessageButtons buttons, NativeTaskDialogPlan& plan) {
    switch (buttons) {
        case MessageButtons::Ok:
            plan.commonButtons = TDCBF_OK_BUTTON;
            break;
        case MessageButtons::OkCancel:
            plan.commonButtons = TDCBF_OK_BUTTON | TDCBF_CANCEL_BUTTON;
            break;
        case MessageButtons::YesNoCancel:
            plan.commonButtons = TDCBF_YES_BUTTON | TDCBF_NO_BUTTON | TDCBF_CANCEL_BUTTON;
            break;
        case MessageButtons::YesNo:
            plan.commonButtons = TDCBF_YES_BUTTON | TDCBF_NO_BUTTON;
            break;
        case MessageButtons::RetryCancel:
            plan.commonButtons = TDCBF_RETRY_BUTTON | TDCBF_CANCEL_BUTTON;
            break;
        case MessageButtons::AbortRetryIgnore:
            plan.buttons = {{IDABORT, L"&Abort"}, {IDRETRY, L"&Retry"}, {IDIGNORE, L"&Ignore"}};
            break;
    }
}

}  // namespace

NativeTaskDialogPlan planNativeTaskDialog(const TaskDialogExRequest& request) {
    NativeTaskDialogPlan plan;
    plan.windowTitle = wide(request.windowTitle);
    plan.mainInstruction = wide(request.mainInstruction);
    plan.content = wide(request.content);
    plan.verificationText = wide(request.verificationText);
    plan.expandedInformation = wide(request.expandedInformation);
    plan.expandedControlText = wide(request.expandedControlText);
    plan.collapsedControlText = wide(request.collapsedControlText);
    if (request.buttons.empty()) addButtons(request.commonButtons, plan);
    for (const TaskDialogButton& button : request.buttons)
        plan.buttons.emplace_back(button.id, wide(button.text));
    plan.defaultButton = request.defaultButton;
    plan.mainIcon = iconNumber(request.mainIcon);
    plan.flags = TDF_POSITION_RELATIVE_TO_WINDOW;
    if (request.verificationChecked) plan.flags |= TDF_VERIFICATION_FLAG_CHECKED;
    if (plan.mainIcon > 0) plan.flags |= TDF_USE_HICON_MAIN;
    return plan;
}

bool showNativeTaskDialog(const TaskDialogExRequest& request, TaskDialogExAnswer& answer) {
    const NativeTaskDialogPlan plan = planNativeTaskDialog(request);
    std::vector<TASKDIALOG_BUTTON> buttons;
    for (const auto& [id, text] : plan.buttons) buttons.push_back({id, text.c_str()});
    const auto textOrNull = [](const std::wstring& text) { return text.empty() ? nullptr : text.c_str(); };
    TASKDIALOGCONFIG config{};
    config.cbSize = sizeof config;
    config.hwndParent = GetActiveWindow();
    config.dwFlags = static_cast<TASKDIALOG_FLAGS>(plan.flags);
    config.dwCommonButtons = static_cast<TASKDIALOG_COMMON_BUTTON_FLAGS>(plan.commonButtons);
    config.pszWindowTitle = textOrNull(plan.windowTitle);
    if (plan.mainIcon > 0)
        config.hMainIcon = LoadIconW(nullptr, MAKEINTRESOURCEW(plan.mainIcon));
    else if (plan.mainIcon < 0)
        config.pszMainIcon = MAKEINTRESOURCEW(static_cast<WORD>(plan.mainIcon));
    config.pszMainInstruction = textOrNull(plan.mainInstruction);
    config.pszContent = textOrNull(plan.content);
    config.cButtons = static_cast<UINT>(buttons.size());
    config.pButtons = buttons.empty() ? nullptr : buttons.data();
    config.nDefaultButton = plan.defaultButton;
    config.pszVerificationText = textOrNull(plan.verificationText);
    config.pszExpandedInformation = textOrNull(plan.expandedInformation);
    config.pszExpandedControlText = textOrNull(plan.expandedControlText);
    config.pszCollapsedControlText = textOrNull(plan.collapsedControlText);
    int button = 0, radio = 0;
    BOOL verification = FALSE;
    if (FAILED(TaskDialogIndirect(&config, &button, &radio, &verification))) return false;
    answer.button = button;
    answer.radioButton = radio;
    answer.verificationChecked = verification != FALSE;
    return true;
}

}  // namespace orvanta
