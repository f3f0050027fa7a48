#pragma once
// Brings a working set into the editor: reads every file of the folder in a fixed order and puts
// each value into its control, reporting its progress on the project index window.

#include <string>

#include "project/EditorContext.h"

namespace orvanta {

enum class LoadOutcome {
    Loaded,                  // the editor is shown and enabled: hide the project index, enable it
    MainSettingsMissing,     // the user was told; unload the editor, the index stays disabled
    MainSettingsUnreadable,  // the same, with the error's description
};

// `folder` is the working set's path without a trailing backslash. Lists are only cleared where
// their file says so, so a second load into the same editor builds on what the first left.
LoadOutcome loadProject(EditorContext& context, const std::string& folder);

}  // namespace orvanta
