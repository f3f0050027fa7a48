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

std::vector<std::string> refreshedFiles(Host& host, const std::string& base) {
    std::vector<std::string> found;
    findFilesDeep(host, found, base, "*.*");
    std::vector<std::string> entries;
    entries.reserve(found.size());
    for (const auto& path : found) entries.push_back(removeEveryOccurrence(path, base + "\\"));
    return entries;
}

std::vector<std::string> refreshedFolders(Host& host, const std::string& base) {
    std::vector<std::string> found;
    listFoldersDeep(host, found, base + "\\");
    std::vector<std::string> entries;
    for (const auto& path : found) {
        // The walk gives its starting folder back first, in the spelling it was given.
        if (path == base || path == base + "\\") continue;
        entries.push_back(removeEveryOccurrence(path, base + "\\"));
    }
    return entries;
}

}  // namespace orvanta
