#pragma once
// What the project index window does with files: the list of saved projects, the test of a new
// name, the tree of a new project, the preview lines, and the two batch files it writes.

#include <optional>
#include <string>
#include <vector>

#include "platform/Host.h"

namespace orvanta {

// Every entry of "\myinstallers\" but "." and "..", folders and files, in the file system's order.
std::vector<std::string> listProjects(Host& host, const std::string& workspaceFolder);

// Whether a folder may have this name: none of \ / : * ? " < > | or control characters, no dot or
// blank at the end, no device name.
bool isUsableFolderName(const std::string& name);

enum class ProjectNameCheck {
    Empty,       // empty or the placeholder itself
    Acceptable,  // no project of that name yet
    Taken,       // a folder of that name exists
    Unusable,    // no folder can have that name
};
ProjectNameCheck checkProjectName(Host& host, const std::string& workspaceFolder, const std::string& text,
                                  const std::string& placeholder);
// Why a name may not be a folder's, as the messages about such names end.
inline constexpr const char* kFolderNameRule =
    "a folder name can't hold \\ / : * ? \" < > |, end in a dot or a blank, or be a device name.";
// The status text for a name that no folder may hold.
std::string unusableNameText(const std::string& name);

// The workspace, "\myinstallers", the project root and its six folders, each made if missing.
// The folder that could not be made, or nothing.
std::optional<std::string> createProjectTree(Host& host, const std::string& workspaceFolder,
                                             const std::string& name);

// The two lines of "copyfiles.bat" and of "deleteproject.bat", CR LF after each.
std::string copyFilesBatchText(const std::string& workspaceFolder, const std::string& sourceFolder,
                               const std::string& name);
std::string deleteProjectBatchText(const std::string& workspaceFolder, const std::string& name);

// The first two lines of a project's "mainsettings.cfg": its name and author. Nothing if the file
// cannot be read.
std::optional<std::pair<std::string, std::string>> projectPreviewLines(Host& host,
                                                                       const std::string& projectRoot);

}  // namespace orvanta
