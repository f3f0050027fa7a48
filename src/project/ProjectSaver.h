#pragma once
// Writes the editor's controls back into the working set and seals the result with the integrity
// record. Writing is in place: a file written before a failure stays.

#include "project/EditorContext.h"

namespace orvanta {

enum class SaveOutcome {
    Saved,      // "Project Saved!" is shown, even if a piece of the sealing failed
    Cancelled,  // a file could not be written and the user chose Cancel
};

// A failure while writing the files asks the user Retry or Cancel; Retry saves again from the
// start. Once the files are written, failures are skipped without a word.
SaveOutcome project_saver(EditorContext& context);

}  // namespace orvanta
