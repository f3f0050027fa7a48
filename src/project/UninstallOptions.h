#pragma once
// The uninstall options follow the location lists: deleting all settings files needs application
// data locations, deleting registry settings needs registry locations, and "None" is always open.

#include "project/ProjectFields.h"

namespace orvanta {

// Enables or disables Option1 and Option2 by the lists; a disabled option may stay selected.
void re_uninoptions(ProjectFields& fields);

}  // namespace orvanta
