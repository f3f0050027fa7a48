#pragma once
// The working sets a project has, and making or removing one as the editions window asks.

#include <string>
#include <vector>

#include "platform/Host.h"
#include "project/WorkingSetFiles.h"

namespace orvanta {

struct WorkingSet {
    std::string edition;  // "No editions" for the project root
    std::string version;  // "No versions" for the root and for "\editions\<edition>"
    std::string subPath;  // below the project root; empty for the root itself
};

// "\editions\<edition>" without a version, "\versions\<version>\<edition>" with one.
std::string workingSetSubPath(const std::string& edition, const std::string& version);

// The root first, then each folder of "\editions" and of "\versions\<version>" that holds a
// "mainsettings.cfg", by name. Anything else there (a version's application files) is not one.
std::vector<WorkingSet> listWorkingSets(Host& host, const std::string& projectRoot);

struct WorkingSetCreation {
    std::string refusal;  // why nothing was made; empty when the working set was made
    CopyReport copies;    // the root's files that could not be copied into it
};

// Makes the folders of a new working set and copies the root's settings into it. An empty
// version word is "No versions".
WorkingSetCreation createWorkingSet(Host& host, const WorkingSetSource& source, const std::string& edition,
                                    const std::string& version);

// Empties a working set and removes its folder, and the version's folder when nothing else is
// left in it. Failures are silent: what cannot go stays.
void deleteWorkingSet(Host& host, const std::string& projectRoot, const WorkingSet& workingSet);

}  // namespace orvanta
