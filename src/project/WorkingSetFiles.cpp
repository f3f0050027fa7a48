#include "project/WorkingSetFiles.h"

#include <array>
#include <string_view>

#include "project/ProjectPaths.h"

namespace orvanta {

namespace {

// The content folders of a working set, in the order they are created and emptied.
constexpr std::array<std::string_view, 5> kOwnFolders = {
    projectfolder::kSettingsSet, projectfolder::kPackages,    projectfolder::kMsi,
    projectfolder::kFonts,       projectfolder::kExecutables,
};

class RootCopier {
public:
    RootCopier(Host& host, std::string root, std::string target)
        : host_(host), root_(std::move(root)), target_(std::move(target)) {}

    void copy(const std::string& name) {
        const std::string from = inFolder(root_, name);
        if (host_.fileLength(from) && !host_.copyFile(from, inFolder(target_, name)))
            report_.failedCopies.push_back(name);
    }
    void createOwnFolders() {
        for (const auto folder : kOwnFolders) {
            const std::string path = inFolder(target_, folder);
            if (!host_.fileAttributes(path)) host_.createFolder(path);
        }
    }
    CopyReport report() const { return report_; }

private:
    Host& host_;
    std::string root_;
    std::string target_;
    CopyReport report_;
};

void deleteFilesIn(Host& host, const std::string& folder) {
    for (const auto& entry : host.listDirectory(inFolder(folder, "*.*"), false))
        host.deleteFile(inFolder(folder, entry.name));
}

// The "v..." folders below "\versions\<version>" go too, when empty.
void removeVersionFolders(Host& host, const std::string& projectRoot, const std::string& version) {
    const std::string versionFolder = inFolder(inFolder(projectRoot, projectfolder::kVersions), version);
    for (const auto& entry : host.listDirectory(inFolder(versionFolder, "*"), true))
        if (entry.name != "." && entry.name != ".." && entry.name.starts_with('v'))
            host.removeFolder(inFolder(versionFolder, entry.name));
}

}  // namespace

CopyReport edver_file_copier(Host& host, const std::string& subPath, const WorkingSetSource& source) {
    using namespace projectfile;
    RootCopier copier(host, source.projectRoot, source.projectRoot + subPath);
    if (!source.fullLicenseFile.empty() && !source.fullLicenseFile.starts_with("http"))
        copier.copy(source.fullLicenseFile);
    if (!source.resumedLicenseText.empty()) copier.copy(std::string(kLicense));
    copier.copy(std::string(kBackground));
    if (!source.anyFile.empty()) copier.copy(source.anyFile);
    for (const auto name : {kMainSettings, kAppDataLocations, kDependencies, kExecutables})
        copier.copy(std::string(name));
    copier.copy(markerName(source.appName));
    for (const auto name : {kFiles, kFolders, kFonts, kIntro}) copier.copy(std::string(name));
    copier.copy(std::string(kLogo));
    copier.copy(std::string(kPreview));
    for (const auto name : {kPackages, kRegistryLocations, kTips, kUninstallEnd, kUninstallIntro})
        copier.copy(std::string(name));
    copier.createOwnFolders();
    return copier.report();
}

void edver_file_deleter(Host& host, const std::string& projectRoot, const std::string& subPath,
                        const std::string& versionFieldText) {
    const std::string target = projectRoot + subPath;
    for (const auto folder : kOwnFolders) deleteFilesIn(host, inFolder(target, folder));
    removeVersionFolders(host, projectRoot, versionFieldText);
    host.removeFolder(inFolder(target, projectfolder::kFiles));
    for (const auto folder : kOwnFolders) host.removeFolder(inFolder(target, folder));
    deleteFilesIn(host, target);
}

}  // namespace orvanta
