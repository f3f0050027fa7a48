#include "project/WorkingSetIndex.h"

#include <algorithm>

#include "project/ProjectIndex.h"
#include "project/ProjectPaths.h"

namespace orvanta {

namespace {

std::vector<std::string> subfolders(Host& host, const std::string& folder) {
    std::vector<std::string> names;
    for (const DirectoryEntry& entry : host.listDirectory(inFolder(folder, "*"), true))
        if (entry.isFolder() && entry.name != "." && entry.name != "..") names.push_back(entry.name);
    std::sort(names.begin(), names.end());
    return names;
}

bool holdsSettings(Host& host, const std::string& folder) {
    return host.fileLength(inFolder(folder, projectfile::kMainSettings)).has_value();
}

// `what` is "edition" or "version", `named` the same with its article.
std::string nameRefusal(const std::string& word, const std::string& what, const std::string& named) {
    if (word == kNoEditions || word == kNoVersions || word == kMarkerNoEditions || word == kMarkerNoVersions)
        return "\"" + word + "\" stands for no " + what + "; choose another name.";
    if (!isUsableFolderName(word))
        return "\"" + word + "\" can't be the name of " + named + ": " + kFolderNameRule;
    return {};
}

// Makes each missing folder from the root down to root + subPath; the one that could not be made, or empty.
std::string makeFolders(Host& host, const std::string& root, const std::string& subPath) {
    std::string folder = root;
    std::size_t start = 1;
    while (start <= subPath.size()) {
        const std::size_t end = std::min(subPath.find('\\', start), subPath.size());
        folder = root + subPath.substr(0, end);
        if (!host.fileAttributes(folder) && !host.createFolder(folder)) return folder;
        start = end + 1;
    }
    return {};
}

}  // namespace

std::string workingSetSubPath(const std::string& edition, const std::string& version) {
    if (version.empty() || version == kNoVersions)
        return "\\" + std::string(projectfolder::kEditions) + "\\" + edition;
    return "\\" + std::string(projectfolder::kVersions) + "\\" + version + "\\" + edition;
}

std::vector<WorkingSet> listWorkingSets(Host& host, const std::string& projectRoot) {
    const std::string noVersions(kNoVersions);
    std::vector<WorkingSet> sets{{std::string(kNoEditions), noVersions, {}}};
    const std::string editions = inFolder(projectRoot, projectfolder::kEditions);
    for (const std::string& edition : subfolders(host, editions))
        if (holdsSettings(host, inFolder(editions, edition)))
            sets.push_back({edition, noVersions, workingSetSubPath(edition, noVersions)});
    const std::string versions = inFolder(projectRoot, projectfolder::kVersions);
    for (const std::string& version : subfolders(host, versions))
        for (const std::string& edition : subfolders(host, inFolder(versions, version)))
            if (holdsSettings(host, versionWorkingSet(projectRoot, version, edition)))
                sets.push_back({edition, version, workingSetSubPath(edition, version)});
    return sets;
}

WorkingSetCreation createWorkingSet(Host& host, const WorkingSetSource& source, const std::string& edition,
                                    const std::string& version) {
    WorkingSetCreation creation;
    if (edition.empty()) {
        creation.refusal = "Type the name of the edition.";
        return creation;
    }
    creation.refusal = nameRefusal(edition, "edition", "an edition");
    if (creation.refusal.empty() && !version.empty() && version != kNoVersions)
        creation.refusal = nameRefusal(version, "version", "a version");
    if (!creation.refusal.empty()) return creation;
    const std::string subPath = workingSetSubPath(edition, version);
    if (host.fileAttributes(source.projectRoot + subPath)) {
        creation.refusal = "\"" + source.projectRoot + subPath + "\" already exists.";
        return creation;
    }
    const std::string unmade = makeFolders(host, source.projectRoot, subPath);
    if (!unmade.empty()) {
        creation.refusal = "The folder \"" + unmade + "\" could not be made.";
        return creation;
    }
    creation.copies = edver_file_copier(host, subPath, source);
    return creation;
}

void deleteWorkingSet(Host& host, const std::string& projectRoot, const WorkingSet& workingSet) {
    if (workingSet.subPath.empty()) return;
    edver_file_deleter(host, projectRoot, workingSet.subPath, workingSet.version);
    const std::string target = projectRoot + workingSet.subPath;
    host.removeFolder(target);
    const std::string parent = target.substr(0, target.rfind('\\'));
    host.removeFolder(parent);
    if (workingSet.version != kNoVersions) host.removeFolder(parent.substr(0, parent.rfind('\\')));
}

}  // namespace orvanta
