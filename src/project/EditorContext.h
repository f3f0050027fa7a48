#pragma once
// What the loader, the saver and the switch of working sets work with: the machine, the user and
// the editor's controls.

#include "core/Dialogs.h"
#include "platform/Host.h"
#include "project/ProjectFields.h"
#include "project/RecordName.h"

namespace orvanta {

struct EditorContext {
    Host& host;
    Dialogs& dialogs;
    ProjectFields& fields;
    // Draws the integrity record's last letter; empty: seeded afresh from the host's timer.
    UnitRandom random = {};
};

}  // namespace orvanta
