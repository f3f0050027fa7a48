#pragma once
// The platform's own task dialog, as the host shows it where it has one (Windows). Texts are ANSI,
// numbers are those of the Windows API, so the plan reads the same on every host.

#include <string>
#include <utility>
#include <vector>

namespace orvanta {

// Common buttons, flags and stock icons, with the values TaskDialogIndirect gives them.
inline constexpr int kTaskButtonOk = 0x01;
inline constexpr int kTaskButtonYes = 0x02;
inline constexpr int kTaskButtonNo = 0x04;
inline constexpr int kTaskButtonCancel = 0x08;
inline constexpr int kTaskButtonRetry = 0x10;
inline constexpr unsigned kTaskFlagIconIsHandle = 0x0002;
inline constexpr unsigned kTaskFlagVerificationChecked = 0x0100;
inline constexpr unsigned kTaskFlagRelativeToWindow = 0x1000;
inline constexpr int kTaskIconWarning = -1;
inline constexpr int kTaskIconError = -2;
inline constexpr int kTaskIconInformation = -3;
inline constexpr int kSystemIconQuestion = 32514;  // the task dialog has no stock question icon

struct NativeTaskDialog {
    std::string windowTitle, mainInstruction, content, verificationText;
    std::string expandedInformation, expandedControlText, collapsedControlText;
    int commonButtons = 0;
    std::vector<std::pair<int, std::string>> buttons;  // id and text
    int defaultButton = 0;
    int mainIcon = 0;  // 0 none; a negative stock icon of the task dialog; else a system icon number
    unsigned flags = 0;
};

struct NativeTaskDialogAnswer {
    int button = 0;
    int radioButton = 0;
    bool verificationChecked = false;
};

}  // namespace orvanta
