#include "project/ProjectIndex.h"

#include <algorithm>
#include <array>

#include "platform/CaseFolding.h"
#include "platform/WindowsPath.h"
#include "project/LineFile.h"
#include "project/ProjectPaths.h"

namespace orvanta {

namespace {

constexpr std::string_view kForbiddenCharacters = "\\/:*?\"<>|";
constexpr std::array<std::string_view, 6> kReservedNames = {"CON", "PRN", "AUX", "NUL", "COM", "LPT"};

// Device names stay devices with any extension ("nul.txt"); COM and LPT count with a digit.
bool isDeviceName(const std::string& name) {
    const std::string stem = toUpperCase(name.substr(0, name.find('.')));
    for (std::string_view reserved : kReservedNames) {
        if (stem == reserved) return reserved != "COM" && reserved != "LPT";
        if (stem.size() == 4 && stem.compare(0, 3, reserved) == 0 && stem[3] >= '1' && stem[3] <= '9')
            return true;
    }
    return false;
}

}  // namespace

bool isUsableFolderName(const std::string& name) {
    if (name.empty() || name == "." || name == ".." || name.back() == '.' || name.back() == ' ') return false;
    const bool forbidden = std::any_of(name.begin(), name.end(), [](char c) {
        return static_cast<unsigned char>(c) < 32 || kForbiddenCharacters.find(c) != std::string_view::npos;
    });
    return !forbidden && !isDeviceName(name);
}

std::vector<std::string> listProjects(Host& host, const std::string& workspaceFolder) {
    std::vector<std::string> names;
    for (const DirectoryEntry& entry : host.listDirectory(myInstallersFolder(workspaceFolder) + "\\*", true))
        if (entry.name != "." && entry.name != "..") names.push_back(entry.name);
    return names;
}

ProjectNameCheck checkProjectName(Host& host, const std::string& workspaceFolder, const std::string& text,
                                  const std::string& placeholder) {
    if (text.empty() || text == placeholder) return ProjectNameCheck::Empty;
    if (!isUsableFolderName(text)) return ProjectNameCheck::Unusable;
    if (longestProjectPath(workspaceFolder, text) > kLongestWindowsPath) return ProjectNameCheck::TooLong;
    const auto attributes = host.fileAttributes(projectRoot(workspaceFolder, text));
    return attributes.has_value() ? ProjectNameCheck::Taken : ProjectNameCheck::Acceptable;
}

std::string unusableNameText(const std::string& name) {
    return "\"" + name + "\" can't be a project name: " + kFolderNameRule;
}

std::size_t longestProjectPath(const std::string& workspaceFolder, const std::string& name) {
    const std::string workingSet = "\\" + std::string(projectfolder::kVersions) + "\\" +
                                   std::string(kLongestVersionName, 'v') + "\\" +
                                   std::string(kLongestEditionName, 'e');
    const std::size_t deepestFile =
        std::max(markerName(name).size(), std::string_view("settingsset\\settings.cfg").size());
    constexpr std::size_t kTemporarySuffix = std::string_view(".~ovtmp-XXXXXX").size();
    return projectRoot(workspaceFolder, name).size() + workingSet.size() + 1 + deepestFile + kTemporarySuffix;
}

std::string tooLongNameText(const std::string& workspaceFolder, const std::string& name) {
    // No name longer than the limit itself fits, so a pasted page of text is not tried letter by letter.
    std::size_t fits = std::min(name.size(), kLongestWindowsPath);
    while (fits > 0 && longestProjectPath(workspaceFolder, name.substr(0, fits)) > kLongestWindowsPath)
        --fits;
    return "This name is too long: use at most " + std::to_string(fits) +
           " characters. With it the project's longest path would have " +
           std::to_string(longestProjectPath(workspaceFolder, name)) + " characters, and Windows allows " +
           std::to_string(kLongestWindowsPath) + ".";
}

std::string folderFailureText(const FolderFailure& failure) {
    return "The folder\n" + failure.folder + "\ncould not be created: " + failure.reason;
}

namespace {

// The missing folders above the workspace, outermost first; a drive is never made.
std::vector<std::string> missingWorkspaceParents(Host& host, const std::string& workspaceFolder) {
    std::vector<std::string> missing;
    for (std::string folder = parentFolder(workspaceFolder);
         folder.size() > 3 && !host.fileAttributes(folder); folder = parentFolder(folder))
        missing.insert(missing.begin(), folder);
    return missing;
}

std::string whyNotCreated(Host& host, const std::string& folder, const std::string& systemError) {
    if (host.fileAttributes(folder)) return "a file of that name is in the way.";
    const std::string refusal =
        systemError.empty() ? "the system refused it." : "the system said \"" + systemError + "\".";
    return refusal + " Check that you may write to \"" + parentFolder(folder) +
           "\" and that its drive is neither full nor read-only.";
}

}  // namespace

std::optional<FolderFailure> createProjectTree(Host& host, const std::string& workspaceFolder,
                                               const std::string& name) {
    const std::string root = projectRoot(workspaceFolder, name);
    std::vector<std::string> folders = missingWorkspaceParents(host, workspaceFolder);
    folders.insert(folders.end(), {workspaceFolder, myInstallersFolder(workspaceFolder), root});
    for (std::string_view below :
         {projectfolder::kFiles, projectfolder::kExecutables, projectfolder::kFonts, projectfolder::kPackages,
          projectfolder::kSettingsSet, projectfolder::kMsi})
        folders.push_back(inFolder(root, below));
    for (const std::string& folder : folders) {
        const std::optional<std::uint32_t> attributes = host.fileAttributes(folder);
        if (attributes.has_value() ? (*attributes & kAttributeDirectory) == 0 : !host.createFolder(folder))
            return FolderFailure{folder, whyNotCreated(host, folder, host.lastFolderError())};
    }
    return std::nullopt;
}

std::string deleteProjectBatchText(const std::string& workspaceFolder, const std::string& name) {
    return "rd /s /q \"" + projectRoot(workspaceFolder, name) + "\"\r\n" + "del \"" +
           deleteProjectBatch(workspaceFolder) + "\"\r\n";
}

std::optional<std::pair<std::string, std::string>> projectPreviewLines(Host& host,
                                                                       const std::string& projectRoot) {
    const std::optional<std::vector<std::string>> lines =
        readLines(host, inFolder(projectRoot, projectfile::kMainSettings), 2);
    if (!lines) return std::nullopt;
    return std::pair{lines->size() > 0 ? (*lines)[0] : std::string(),
                     lines->size() > 1 ? (*lines)[1] : std::string()};
}

}  // namespace orvanta
