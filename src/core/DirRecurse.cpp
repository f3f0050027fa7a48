#include "core/DirRecurse.h"

#include <limits>

#include "core/RuntimeError.h"
#include "core/vars.h"
#include "platform/WindowsPath.h"

namespace orvanta {

namespace {

// "." and ".." are told by being nothing but dots, so a name of dots alone is skipped too.
bool isDotsOnly(const std::string& name) {
    return name.find_first_not_of('.') == std::string::npos;
}

std::vector<std::string> subfolders(Host& host, const std::string& folder) {
    std::vector<std::string> names;
    for (const auto& entry : host.listDirectoryLengths(normalizePath(folder) + "*", true))
        if (entry.isFolder() && !isDotsOnly(entry.name)) names.push_back(entry.name);
    return names;
}

void walkInto(Host& host, FolderTree& tree, const std::string& folder) {
    host.processPendingMessages();
    tree.folders.push_back(folder);
    const std::string base = normalizePath(folder);
    std::vector<std::string> names;
    for (const auto& entry : host.listDirectoryLengths(base + "*", true)) {
        if (!entry.isFolder()) {
            tree.files.push_back(base + entry.name);
            tree.size += static_cast<double>(entry.length);
        } else if (!isDotsOnly(entry.name)) {
            names.push_back(entry.name);
        }
    }
    for (const auto& name : names) {
        if (vars::abortWalks) return;
        walkInto(host, tree, base + name);
    }
}

std::vector<std::string> splitPatterns(const std::string& patterns) {
    std::vector<std::string> parts;
    std::size_t start = 0;
    while (start <= patterns.size()) {
        auto end = patterns.find(';', start);
        if (end == std::string::npos) end = patterns.size();
        if (end > start) parts.push_back(patterns.substr(start, end - start));
        start = end + 1;
    }
    return parts;
}

}  // namespace

std::string normalizePath(std::string path) {
    if (path.empty() || path.back() != '\\') path += '\\';
    for (char& c : path)
        if (c == '/') c = '\\';
    std::string collapsed;
    collapsed.reserve(path.size());
    for (std::size_t i = 0; i < path.size(); ++i) {
        collapsed += path[i];
        if (path[i] == '\\' && i + 1 < path.size() && path[i + 1] == '\\') ++i;
    }
    return collapsed;
}

void findFiles(Host& host, std::vector<std::string>& collection, const std::string& folder,
               const std::string& patterns) {
    const std::string base = normalizePath(folder);
    for (const auto& pattern : splitPatterns(patterns)) {
        if (vars::abortWalks) return;
        for (const auto& entry : host.listDirectoryLengths(base + pattern, false))
            if (!entry.isFolder()) collection.push_back(base + entry.name);
    }
}

void findFilesDeep(Host& host, std::vector<std::string>& collection, const std::string& folder,
                   const std::string& patterns) {
    findFiles(host, collection, folder, patterns);
    for (const auto& name : subfolders(host, folder)) {
        if (vars::abortWalks) return;
        findFilesDeep(host, collection, normalizePath(folder) + name, patterns);
    }
}

void listFoldersDeep(Host& host, std::vector<std::string>& collection, const std::string& folder) {
    collection.push_back(folder);
    for (const auto& name : subfolders(host, folder)) {
        if (vars::abortWalks) return;
        listFoldersDeep(host, collection, normalizePath(folder) + name);
    }
}

double folderSize(Host& host, const std::string& folder, bool withSubfolders) {
    host.processPendingMessages();
    double total = 0;
    std::vector<std::string> folders;
    for (const auto& entry : host.listDirectoryLengths(normalizePath(folder) + "*", true)) {
        if (entry.isFolder()) {
            if (!isDotsOnly(entry.name)) folders.push_back(entry.name);
        } else {
            total += static_cast<double>(entry.length);
        }
    }
    if (!withSubfolders) return total;
    for (const auto& name : folders) {
        if (vars::abortWalks) break;
        total += folderSize(host, normalizePath(folder) + name, true);
    }
    return total;
}

FolderTree walkFolderTree(Host& host, const std::string& folder) {
    FolderTree tree;
    walkInto(host, tree, folder);
    return tree;
}

double diskFreeReport(Host& host, const std::string& driveLetter) {
    const auto space = host.diskSpace(driveLetter.substr(0, 1) + ":\\");
    if (!space) return 0;
    const std::int64_t clusters =
        static_cast<std::int64_t>(space->sectorsPerCluster) * static_cast<std::int64_t>(space->freeClusters);
    if (clusters > std::numeric_limits<std::int32_t>::max()) throw RuntimeError(6, "Overflow");
    return static_cast<double>(clusters) * space->bytesPerSector;
}

}  // namespace orvanta
