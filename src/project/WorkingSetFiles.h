#pragma once
// Making and removing the working set of an edition or version below the project root.

#include <string>
#include <vector>

#include "platform/Host.h"

namespace orvanta {

// What a new working set takes from the project and the editor.
struct WorkingSetSource {
    std::string projectRoot;
    std::string appName;
    std::string fullLicenseFile;  // a file of the project root, or a web address ("http...")
    std::string resumedLicenseText;
    std::string anyFile;
};

struct CopyReport {
    std::vector<std::string> failedCopies;  // names whose source exists but whose copy failed
    bool complete() const { return failedCopies.empty(); }
};

// Copies the root's settings files that exist to projectRoot + subPath (which exists), overwriting,
// and creates the working set's own content folders empty: their contents are not copied. A file
// the root does not have (a new project has no "1.jpg" without a default background, and nothing
// writes "executables.cfg") is no failure: the working set lacks it as the root does.
CopyReport edver_file_copier(Host& host, const std::string& subPath, const WorkingSetSource& source);

// Empties projectRoot + subPath, ignoring every failure: the files of its content folders, the
// empty "v..." folders of "\versions\<versionFieldText>", the content folders that are empty by
// then, and its own files. Folders that still hold something stay.
void edver_file_deleter(Host& host, const std::string& projectRoot, const std::string& subPath,
                        const std::string& versionFieldText);

}  // namespace orvanta
