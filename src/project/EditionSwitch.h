#pragma once
// Switching the editor to the working set of another edition or version.

#include <optional>
#include <string>

#include "project/EditorContext.h"
#include "project/ProjectLoader.h"

namespace orvanta {

// Saves the current working set, loads the one the two words address and shows the edition's
// word in `editionName`. An edition without a version first turns `version` into "No versions".
// The load's outcome, or nothing when no working set answered and the editor stays as it was.
// A failed load leaves the editor enabled on the working set it came from, nothing saved over;
// Refused, with nothing done, while another save, load or switch runs.
std::optional<LoadOutcome> changes_edition(EditorContext& context, std::string& edition,
                                           std::string& version);

}  // namespace orvanta
