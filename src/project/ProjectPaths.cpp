#include "project/ProjectPaths.h"

#include <optional>

#include "core/commonFunctions.h"
#include "platform/CaseFolding.h"
#include "platform/WindowsPath.h"

namespace orvanta {

std::string inFolder(std::string_view folder, std::string_view name) {
    std::string path(folder);
    path += '\\';
    path += name;
    return path;
}

std::string myInstallersFolder(std::string_view workspaceFolder) {
    return inFolder(workspaceFolder, "myinstallers");
}

std::string backgroundsFolder(std::string_view workspaceFolder) {
    return inFolder(workspaceFolder, "backgrounds");
}

std::string deleteProjectBatch(std::string_view workspaceFolder) {
    return inFolder(workspaceFolder, "deleteproject.bat");
}

std::string projectRoot(std::string_view workspaceFolder, std::string_view appName) {
    return myInstallersFolder(workspaceFolder) + "\\" + std::string(appName);
}

std::string markerName(std::string_view appName) {
    return std::string(appName) + std::string(projectfile::kMarkerExtension);
}

std::string markerPath(std::string_view folder, std::string_view appName) {
    return inFolder(folder, markerName(appName));
}

std::string editionWorkingSet(std::string_view projectRoot, std::string_view edition) {
    return inFolder(inFolder(projectRoot, projectfolder::kEditions), edition);
}

std::string versionWorkingSet(std::string_view projectRoot, std::string_view version,
                              std::string_view edition) {
    return inFolder(inFolder(inFolder(projectRoot, projectfolder::kVersions), version), edition);
}

namespace {

// The path without its last n components; nothing if it has fewer, or if the component above
// them is not `expected` (compared ignoring case).
std::optional<std::string> above(std::string_view path, int n, std::string_view expected) {
    for (int i = 0; i < n; ++i) {
        const auto cut = path.rfind('\\');
        if (cut == std::string_view::npos) return std::nullopt;
        path = path.substr(0, cut);
    }
    if (!equalsIgnoringCase(lastComponent(path), expected)) return std::nullopt;
    const auto cut = path.rfind('\\');
    if (cut == std::string_view::npos) return std::nullopt;
    return std::string(path.substr(0, cut));
}

}  // namespace

std::string projectRootOf(std::string_view workingSet,
                          const std::function<bool(const std::string&)>& isProjectRoot) {
    for (const auto& candidate :
         {above(workingSet, 1, projectfolder::kEditions), above(workingSet, 2, projectfolder::kVersions)})
        if (candidate && isProjectRoot(*candidate)) return *candidate;
    return std::string(workingSet);
}

std::string projectRootOnDisk(Host& host, std::string_view workingSet) {
    return projectRootOf(workingSet, [&host](const std::string& folder) {
        return fileExists(host, inFolder(folder, projectfile::kMainSettings)) == kTrue;
    });
}

std::string versionFilesFolder(std::string_view workingSet, std::string_view version) {
    return std::string(workingSet) + "\\v" + std::string(version);
}

std::string settingsSetFile(std::string_view workingSet, int index) {
    return inFolder(inFolder(workingSet, projectfolder::kSettingsSet), std::to_string(index) + ".cfg");
}

std::string settingsSetIndexFile(std::string_view workingSet) {
    return inFolder(inFolder(workingSet, projectfolder::kSettingsSet), "settings.cfg");
}

}  // namespace orvanta
