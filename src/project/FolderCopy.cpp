#include "project/FolderCopy.h"

#include "core/DirRecurse.h"
#include "project/ProjectPaths.h"

namespace orvanta {

namespace {

// The walk gives full paths below normalizePath(source); the copy wants them relative.
std::string below(const std::string& base, const std::string& path) {
    return path.size() > base.size() ? path.substr(base.size()) : std::string();
}

}  // namespace

FolderCopyOutcome copyFolderContents(Host& host, const std::string& source, const std::string& target,
                                     const FolderCopyProgress& progress) {
    FolderCopyOutcome outcome;
    const auto attributes = host.fileAttributes(source);
    if (!attributes || (*attributes & kAttributeDirectory) == 0) {
        outcome.sourceMissing = true;
        return outcome;
    }
    const FolderTree tree = walkFolderTree(host, source);
    const std::string base = normalizePath(source);
    outcome.total = tree.files.size();
    // Parents come before their children in the walk, so each folder's parent exists already.
    for (const std::string& folder : tree.folders) {
        const std::string relative = below(base, folder);
        if (!relative.empty() && !host.fileAttributes(inFolder(target, relative)))
            host.createFolder(inFolder(target, relative));
    }
    for (const std::string& file : tree.files) {
        if (!progress(outcome.copied + outcome.failedFiles.size(), outcome.total)) {
            outcome.cancelled = true;
            return outcome;
        }
        const std::string relative = below(base, file);
        if (host.copyFile(file, inFolder(target, relative))) {
            ++outcome.copied;
        } else {
            outcome.failedFiles.push_back(relative);
        }
    }
    progress(outcome.total, outcome.total);
    return outcome;
}

std::string folderCopyReport(const FolderCopyOutcome& outcome, const std::string& source,
                             const std::string& target) {
    constexpr std::size_t kNamesShown = 10;
    if (outcome.sourceMissing)
        return "The folder\n" + source + "\nwas not found, so no files were copied. The project is saved " +
               "without them; copy them into\n" + target + "\nand save again.";
    std::string report;
    if (outcome.cancelled)
        report = "The copy was cancelled. " + std::to_string(outcome.copied) + " of " +
                 std::to_string(outcome.total) + " files were copied into\n" + target +
                 "\nThe project is saved with them; copy the others into that folder and save again.";
    if (!outcome.failedFiles.empty()) {
        if (!report.empty()) report += "\n\n";
        report += "These files could not be copied into\n" + target;
        for (std::size_t i = 0; i < outcome.failedFiles.size() && i < kNamesShown; ++i)
            report += "\n" + outcome.failedFiles[i];
        if (outcome.failedFiles.size() > kNamesShown)
            report += "\n... and " + std::to_string(outcome.failedFiles.size() - kNamesShown) + " more";
    }
    return report;
}

}  // namespace orvanta
