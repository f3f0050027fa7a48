#pragma once
// The automatic fill of the font list from the working set's "\fonts" folder.

#include <string>

#include "platform/Host.h"
#include "project/ProjectFields.h"

namespace orvanta {

// Adds each font file of the folder ("otf", "ttf", "fon", "fnt" in any case) that the list does
// not hold yet, in the order of the listing. Removes nothing, so a vanished file stays listed.
void scanFontsFolder(Host& host, ProjectFields& fields, const std::string& workingFolder);

}  // namespace orvanta
