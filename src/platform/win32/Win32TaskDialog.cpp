// The task dialog of the common controls, version 6.
#include <windows.h>
// windows.h first: the common controls header needs its types.
#include <commctrl.h>

#include <optional>
#include <vector>

#include "platform/win32/WideText.h"
#include "platform/win32/Win32Host.h"

namespace orvanta {

namespace {

// The dialog's texts in UTF-16, kept alive for the length of the call.
struct WideTexts {
    explicit WideTexts(const NativeTaskDialog& plan)
        : windowTitle(ansiToUtf16(plan.windowTitle)),
          mainInstruction(ansiToUtf16(plan.mainInstruction)),
          content(ansiToUtf16(plan.content)),
          verificationText(ansiToUtf16(plan.verificationText)),
          expandedInformation(ansiToUtf16(plan.expandedInformation)),
          expandedControlText(ansiToUtf16(plan.expandedControlText)),
          collapsedControlText(ansiToUtf16(plan.collapsedControlText)) {
        for (const auto& button : plan.buttons) buttonTexts.push_back(ansiToUtf16(button.second));
    }
    std::wstring windowTitle, mainInstruction, content, verificationText;
    std::wstring expandedInformation, expandedControlText, collapsedControlText;
    std::vector<std::wstring> buttonTexts;
};

const wchar_t* textOrNull(const std::wstring& text) {
    return text.empty() ? nullptr : text.c_str();
}

}  // namespace

std::optional<NativeTaskDialogAnswer> Win32Host::showTaskDialog(const NativeTaskDialog& plan) {
    const WideTexts texts(plan);
    std::vector<TASKDIALOG_BUTTON> buttons;
    for (std::size_t i = 0; i < plan.buttons.size(); ++i)
        buttons.push_back({plan.buttons[i].first, texts.buttonTexts[i].c_str()});
    TASKDIALOGCONFIG config{};
    config.cbSize = sizeof config;
    config.hwndParent = GetActiveWindow();
    config.dwFlags = static_cast<TASKDIALOG_FLAGS>(plan.flags);
    config.dwCommonButtons = static_cast<TASKDIALOG_COMMON_BUTTON_FLAGS>(plan.commonButtons);
    config.pszWindowTitle = textOrNull(texts.windowTitle);
    if (plan.mainIcon > 0)
        config.hMainIcon = LoadIconW(nullptr, MAKEINTRESOURCEW(plan.mainIcon));
    else if (plan.mainIcon < 0)
        config.pszMainIcon = MAKEINTRESOURCEW(static_cast<WORD>(plan.mainIcon));
    config.pszMainInstruction = textOrNull(texts.mainInstruction);
    config.pszContent = textOrNull(texts.content);
    config.cButtons = static_cast<UINT>(buttons.size());
    config.pButtons = buttons.empty() ? nullptr : buttons.data();
    config.nDefaultButton = plan.defaultButton;
    config.pszVerificationText = textOrNull(texts.verificationText);
    config.pszExpandedInformation = textOrNull(texts.expandedInformation);
    config.pszExpandedControlText = textOrNull(texts.expandedControlText);
    config.pszCollapsedControlText = textOrNull(texts.collapsedControlText);
    int button = 0, radio = 0;
    BOOL verification = FALSE;
    if (FAILED(TaskDialogIndirect(&config, &button, &radio, &verification))) return std::nullopt;
    return NativeTaskDialogAnswer{button, radio, verification != FALSE};
}

}  // namespace orvanta
