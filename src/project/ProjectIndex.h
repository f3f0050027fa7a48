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
    TooLong,     // the project's longest path would pass what Windows allows
};
ProjectNameCheck checkProjectName(Host& host, const std::string& workspaceFolder, const std::string& text,
                                  const std::string& placeholder);
// Why a name may not be a folder's, as the messages about such names end.
inline constexpr const char* kFolderNameRule =
    "a folder name can't hold \\ / : * ? \" < > |, end in a dot or a blank, or be a device name.";
// The status text for a name that no folder may hold.
std::string unusableNameText(const std::string& name);

// The longest path a Windows program may use: MAX_PATH less its closing NUL.
inline constexpr std::size_t kLongestWindowsPath = 259;
// What a project keeps room for, so that every working set the editions window can make fits:
// it takes editions and versions names up to these lengths.
inline constexpr std::size_t kLongestEditionName = 32;
inline constexpr std::size_t kLongestVersionName = 16;
// The longest path the program itself writes in the project of that name: the marker's temporary
// twin in the working set of a version's edition with the longest names allowed. What the user puts
// into "\files" is the user's own and not counted.
std::size_t longestProjectPath(const std::string& workspaceFolder, const std::string& name);
// The status text for a name whose project would hold paths Windows cannot open.
std::string tooLongNameText(const std::string& workspaceFolder, const std::string& name);

// The folder that could not be made and why, in a sentence.
struct FolderFailure {
    std::string folder;
    std::string reason;
    bool operator==(const FolderFailure&) const = default;
};
// The text that tells the user: the path on a line of its own.
std::string folderFailureText(const FolderFailure& failure);

// The workspace with any missing parent (a new account may have no documents folder yet),
// "\myinstallers", the project root and its six folders, each made if missing.
std::optional<FolderFailure> createProjectTree(Host& host, const std::string& workspaceFolder,
                                               const std::string& name);

// The two lines of "deleteproject.bat", CR LF after each.
std::string deleteProjectBatchText(const std::string& workspaceFolder, const std::string& name);

// The first two lines of a project's "mainsettings.cfg": its name and author. Nothing if the file
// cannot be read.
std::optional<std::pair<std::string, std::string>> projectPreviewLines(Host& host,
                                                                       const std::string& projectRoot);

}  // namespace orvanta
