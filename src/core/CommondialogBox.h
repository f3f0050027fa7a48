#pragma once
// The string side of the open-file dialog; the dialog itself is a call on the dialogs service.

#include <string>

namespace orvanta {

// "Executable files|*.exe;*.bat" -> the NUL-separated form the dialog takes, ended by two NULs.
std::string toDialogFilter(std::string filter);

struct OpenFileResult {
    std::string path;      // empty when the user cancelled
    std::string fileName;  // what stands behind the last backslash
};

// The dialog's answer as the routine gives it: trimmed on the right, the bare name kept aside.
OpenFileResult finishOpenFileResult(const std::string& chosen);

}  // namespace orvanta
