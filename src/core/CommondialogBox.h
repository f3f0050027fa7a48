#pragma once
// The open-file dialog: the string rules of the routine here, the dialog itself a call on the
// dialogs service.

#include <string>
#include <vector>

#include "core/Dialogs.h"

namespace orvanta {

// One entry of a filter: what the user reads and the patterns it stands for ("*.exe;*.bat").
struct DialogFilterEntry {
    std::string description;
    std::string patterns;
};
// The "|"-separated filter as pairs; a description without patterns is dropped.
std::vector<DialogFilterEntry> splitDialogFilter(const std::string& filter);

struct OpenFileResult {
    std::string path;      // empty when the user cancelled
    std::string fileName;  // what stands behind the last backslash
};

// The dialog's answer as the routine gives it: trimmed on the right, the bare name kept aside.
OpenFileResult finishOpenFileResult(const std::string& chosen);

OpenFileResult openFileDialog(Dialogs& dialogs, const std::string& filter,
                              const std::string& defaultExtensions, const std::string& initialFolder,
                              const std::string& title);

}  // namespace orvanta
