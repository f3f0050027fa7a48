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
    const std::string root = projectRoot(vars::workspaceFolder, context.fields.text(ctrl::appName));
    const auto choice = chooseWorkingSet(root, edition, version, [&context](const std::string& folder) {
        return folderExists(context.host, folder) == kTrue;
    });
    version = choice.version;
    std::optional<LoadOutcome> outcome;
    if (choice.folder) outcome = loadProject(context, *choice.folder, task);
    // The loader reads over the file's edition line, so the name comes from here alone.
    context.fields.setText(ctrl::editionName, choice.editionName);
    return outcome;
}

}  // namespace orvanta
