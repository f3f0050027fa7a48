#include "project/ApplicationFiles.h"

#include "core/DirRecurse.h"
#include "project/ProjectPaths.h"

namespace orvanta {

std::string applicationFilesBase(std::string_view workspaceFolder, std::string_view appName) {
    return inFolder(projectRoot(workspaceFolder, appName), projectfolder::kFiles);
}

std::string removeEveryOccurrence(std::string text, std::string_view part) {
    if (part.empty()) return text;
    std::string kept;
    std::size_t from = 0;
    for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, from)) {
        kept.append(text, from, at - from);
        from = at + part.size();
    }
    kept.append(text, from, std::string::npos);
    return kept;
}

ApplicationFileLists refreshedLists(Host& host, const std::string& base) {
    const std::string prefix = base + "\\";
    const FolderTree tree = walkFolderTree(host, prefix);
    ApplicationFileLists lists;
    lists.size = tree.size;
    lists.files.reserve(tree.files.size());
    for (const auto& path : tree.files) lists.files.push_back(removeEveryOccurrence(path, prefix));
    for (const auto& path : tree.folders) {
        // The walk gives its starting folder back first, in the spelling it was given.
        if (path == base || path == prefix) continue;
        lists.folders.push_back(removeEveryOccurrence(path, prefix));
    }
    return lists;
}

std::vector<std::string> refreshedFiles(Host& host, const std::string& base) {
    return refreshedLists(host, base).files;
}

std::vector<std::string> refreshedFolders(Host& host, const std::string& base) {
    return refreshedLists(host, base).folders;
}

}  // namespace orvanta
