#pragma once
// The rules of the folder browser that need no window: its defaults and the "Create" button.

#include <optional>
#include <string>

#include "core/Dialogs.h"
#include "platform/Host.h"

namespace orvanta {

inline constexpr const char* kBrowseDefaultTitle = "Select a Folder";
inline constexpr const char* kBrowseDefaultFolder = "c:\\";
inline constexpr const char* kCreateFolderTitle = "Create Folder";
inline constexpr const char* kCreateFolderPrompt = "Enter a name for your new folder";
inline constexpr const char* kFolderBrowserTitle = "Brindle Works Folder Browser";
inline constexpr const char* kFolderExistsText =
    "A Folder of that name already exists.\r\nPlease enter a different name";

// The title and start folder the dialog shows: defaults for empty values, and the first drive
// of the system in place of the root of a drive that is not there.
FolderBrowserRequest prepareBrowseRequest(Host& host, FolderBrowserRequest request);

// The first drive root the system has ("C:\"), in drive letter order; "c:\" if none answers.
std::string firstDriveRoot(Host& host);

// Asks for a name and makes that folder below `currentPath`. The new folder's path, or nothing
// when the answer was empty, the name exists (after a warning) or the folder could not be made.
std::optional<std::string> createFolderAsked(Host& host, Dialogs& dialogs, const std::string& currentPath);

}  // namespace orvanta
