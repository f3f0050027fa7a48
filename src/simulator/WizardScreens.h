#pragma once
// The screens of an installer without a window: the wizard played over a saved project, one PNG a
// step the end user sees, and "screens.json" with every visible control's name, rectangle and text.

#include <QString>
#include <string>
#include <vector>

#include "core/Dialogs.h"
#include "platform/Host.h"
#include "setup/InstallWizard.h"

namespace orvanta {

struct WizardScreensResult {
    std::vector<QString> files;  // written, in the order of the steps
    std::string error;           // why the wizard stopped early; empty when it reached its end
};

// Needs a QApplication (the offscreen platform will do). `folder` is a host path.
WizardScreensResult writeWizardScreens(Host& host, Dialogs& dialogs, const WizardProject& project,
                                       const QString& folder);

}  // namespace orvanta
