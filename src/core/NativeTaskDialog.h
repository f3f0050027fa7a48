#pragma once
// The platform's own task dialog, on the host that has one (Windows). The dialogs service shows
// its task dialogs through it there, and its own elsewhere.

#include <string>
#include <utility>
#include <vector>

#include "core/Dialogs.h"

namespace orvanta {

// What the platform's dialog is given: the request's texts in UTF-16 (from the ANSI code page),
// its common-button flags, the buttons of its own, the icon's resource number and the flags.
struct NativeTaskDialogPlan {
    std::wstring windowTitle, mainInstruction, content, verificationText;
    std::wstring expandedInformation, expandedControlText, collapsedControlText;
    int commonButtons = 0;
    std::vector<std::pair<int, std::wstring>> buttons;
    int defaultButton = 0;
    int mainIcon = 0;  // 0 none; a negative stock icon of the task dialog; else a system icon number
    unsigned flags = 0;
};

NativeTaskDialogPlan planNativeTaskDialog(const TaskDialogExRequest& request);
// False when the dialog could not be shown; the caller then shows one of its own.
bool showNativeTaskDialog(const TaskDialogExRequest& request, TaskDialogExAnswer& answer);

}  // namespace orvanta
