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
    std::vector<std::string> missingSources;  // names whose source did not exist; skipped
    std::vector<std::string> failedCopies;    // names whose copy failed
    bool complete() const { return missingSources.empty() && failedCopies.empty(); }
};

// Copies the root's settings files to projectRoot + subPath (which exists), overwriting, and
// creates the working set's own content folders empty: their contents are not copied.
CopyReport edver_file_copier(Host& host, const std::string& subPath, const WorkingSetSource& source);

// Empties projectRoot + subPath, ignoring every failure: the files of its content folders, the
// empty "v..." folders of "\versions\<versionFieldText>", the content folders that are empty by
// then, and its own files. Folders that still hold something stay.
void edver_file_deleter(Host& host, const std::string& projectRoot, const std::string& subPath,
                        const std::string& versionFieldText);

}  // namespace orvanta
