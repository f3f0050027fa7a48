#pragma once
// Brings a working set into the editor: reads every file of the folder in a fixed order and puts
// each value into its control, reporting its progress on the project index window.

#include <string>

#include "project/EditorContext.h"
#include "project/ProjectTask.h"

namespace orvanta {

enum class LoadOutcome {
    Loaded,                  // the editor is shown and enabled: hide the project index, enable it
    MainSettingsMissing,     // the user was told; unload the editor, the index stays disabled
    MainSettingsUnreadable,  // the same, with the error's description
    Refused,                 // another save, load or switch is running; nothing was done
};

// `folder` is the working set's path without a trailing backslash. The location lists are only
// cleared where their file says so, so a second load into the same editor builds on what the
// first left there. What could not be read is told in one message once the editor shows, and so
// is a project name that differs from its folder's. Refused while another project task runs.
LoadOutcome loadProject(EditorContext& context, const std::string& folder);
// The same load for a caller that holds the task already: the switch of working sets.
LoadOutcome loadProject(EditorContext& context, const std::string& folder, const ProjectTask& task);

}  // namespace orvanta
