#include "project/UninstallOptions.h"

#include "project/EditorControls.h"

namespace orvanta {

void re_uninoptions(ProjectFields& fields) {
    fields.setEnabled(ctrl::Option1, fields.listCount(ctrl::appDataLocations) > 0);
    fields.setEnabled(ctrl::Option2, fields.listCount(ctrl::registryLocations) > 0);
    fields.setEnabled(ctrl::Option3, true);
}

}  // namespace orvanta
