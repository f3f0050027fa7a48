#include "project/WorkingSetChoice.h"

#include "project/ProjectPaths.h"

namespace orvanta {

WorkingSetChoice chooseWorkingSet(const std::string& projectRoot, const std::string& edition,
                                  const std::string& version,
                                  const std::function<bool(const std::string&)>& folderExists) {
    WorkingSetChoice choice{std::nullopt, version, edition};
    if (edition == kNoEditions) {
        choice.folder = projectRoot;
    } else if (version == kNoVersions) {
        choice.version = std::string(kNoVersions);
        const std::string editionFolder = editionWorkingSet(projectRoot, edition);
        const std::string versionFolder = versionWorkingSet(projectRoot, choice.version, edition);
        if (folderExists(editionFolder)) {
            choice.folder = editionFolder;
        } else if (folderExists(versionFolder)) {
            choice.folder = versionFolder;
        }
    } else {
        choice.folder = versionWorkingSet(projectRoot, version, edition);
    }
    return choice;
}

}  // namespace orvanta
