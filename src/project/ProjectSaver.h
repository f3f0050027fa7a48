#pragma once
// Writes the editor's controls back into the working set and seals the result with the integrity
// record. Writing is in place: a file written before a failure stays.

#include "project/EditorContext.h"
#include "project/ProjectTask.h"

namespace orvanta {

enum class SaveOutcome {
    Saved,      // "Project Saved!" is shown, even if a piece of the sealing failed
    Cancelled,  // a file could not be written and the user chose Cancel
    Refused,    // another save, load or switch is running; nothing was done
};

// A failure while writing the files asks the user Retry or Cancel; Retry saves again from the
// start. Once the files are written, failures are skipped without a word.
// Writes only below the project root that the working folder lies in, whatever name the project
// carries: a hand-copied folder whose settings name another project gets its own marker, named
// after that name ("<appName>.ovproj"), since opening a marker strips exactly that name from its
// path and so opens the folder the marker lies in. Refused while another project task runs.
SaveOutcome project_saver(EditorContext& context);
// The same save for a caller that holds the task already: the switch of working sets.
SaveOutcome project_saver(EditorContext& context, const ProjectTask& task);

}  // namespace orvanta
