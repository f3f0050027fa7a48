#pragma once
// Copying the folder of the application's files into a new project, one file at a time, so that
// the caller can count, show and stop it.

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "platform/Host.h"

namespace orvanta {

struct FolderCopyOutcome {
    std::size_t total = 0;                 // files found in the source
    std::size_t copied = 0;                // of those, copied
    std::vector<std::string> failedFiles;  // below the source, as "lib\x.dll"
    bool cancelled = false;
    bool sourceMissing = false;  // no folder of that name: nothing was copied
    bool complete() const { return !cancelled && !sourceMissing && failedFiles.empty(); }
};

// Told before each file and once at the end; false stops the copy before the next file.
using FolderCopyProgress = std::function<bool(std::size_t done, std::size_t total)>;

// Every file and folder below `source`, hidden ones and empty folders included, into `target`,
// which exists; files there already are overwritten.
FolderCopyOutcome copyFolderContents(Host& host, const std::string& source, const std::string& target,
                                     const FolderCopyProgress& progress);

// What the user is told of a copy that did not take everything: how far it came, which files
// failed (the first few), and where the copied files are. Empty for a complete copy.
std::string folderCopyReport(const FolderCopyOutcome& outcome, const std::string& source,
                             const std::string& target);

}  // namespace orvanta
