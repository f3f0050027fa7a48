#include "project/ProjectPaths.h"

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

std::string copyFilesBatch(std::string_view workspaceFolder) {
    return inFolder(workspaceFolder, "copyfiles.bat");
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
