#include "project/EditionSwitch.h"

#include "core/commonFunctions.h"
#include "core/vars.h"
#include "project/EditorControls.h"
#include "project/ProjectPaths.h"
#include "project/ProjectSaver.h"
#include "project/WorkingSetChoice.h"

namespace orvanta {

std::optional<LoadOutcome> changes_edition(EditorContext& context, std::string& edition,
                                           std::string& version) {
    const ProjectTask task;
    if (!task.running()) return LoadOutcome::Refused;
    project_saver(context, task);
    context.fields.processPendingEvents();
    const std::string before = context.fields.text(ctrl::workingFolder);
    const std::string root = projectRootOnDisk(context.host, before);
    const auto choice = chooseWorkingSet(root, edition, version, [&context](const std::string& folder) {
        return folderExists(context.host, folder) == kTrue;
    });
    version = choice.version;
    std::optional<LoadOutcome> outcome;
    if (choice.folder) outcome = loadProject(context, *choice.folder, task);
    if (outcome && *outcome != LoadOutcome::Loaded) {
        // The loader failed before it read a value: the window still holds the working set it
        // came from, so it goes back to it, usable, and a later save writes there.
        context.fields.setText(ctrl::workingFolder, before);
        context.fields.showStatus(StatusLabel::ControlTips, "");
        context.fields.setEnabled(ctrl::mainfrm, true);
        return outcome;
    }
    // The loader reads over the file's edition line, so the name comes from here alone.
    context.fields.setText(ctrl::editionName, choice.editionName);
    return outcome;
}

}  // namespace orvanta
