#pragma once
// Between the editor's controls and the lines of "mainsettings.cfg".

#include "project/MainSettings.h"
#include "project/ProjectFields.h"

namespace orvanta {

// Every line as the saver writes it: placeholders as empty lines, the licence file's slot empty,
// `anyFile` only when that file exists in the working set, each option group from its first
// selected button (none: no line).
MainSettings mainSettingsOf(const ProjectFields& fields, bool anyFileExists);

// What the loader takes from the file into the controls. Each value goes on its own, so a
// control that refuses one keeps its value and the others still arrive.
void applyMainSettings(ProjectFields& fields, const MainSettings& settings);

}  // namespace orvanta
