#include "controls/rules/ModBrowse.h"

#include "core/commonFunctions.h"

namespace orvanta {
namespace {

bool isDriveRoot(const std::string& folder) {
    return (folder.size() == 2 || (folder.size() == 3 && folder[2] == '\\')) && folder[1] == ':';
}

bool driveExists(Host& host, char letter) {
    return host.fileAttributes(std::string(1, letter) + ":\\").has_value();
}

}  // namespace

std::string firstDriveRoot(Host& host) {
    for (char letter = 'A'; letter <= 'Z'; ++letter)
        if (driveExists(host, letter)) return std::string(1, letter) + ":\\";
    return kBrowseDefaultFolder;
}

FolderBrowserRequest prepareBrowseRequest(Host& host, FolderBrowserRequest request) {
    if (request.title.empty()) request.title = kBrowseDefaultTitle;
    if (request.initialFolder.empty()) request.initialFolder = kBrowseDefaultFolder;
    if (isDriveRoot(request.initialFolder) && !driveExists(host, request.initialFolder[0]))
        request.initialFolder = firstDriveRoot(host);
    return request;
}

std::optional<std::string> createFolderAsked(Host& host, Dialogs& dialogs, const std::string& currentPath) {
    const std::string name = dialogs.inputBox({kCreateFolderPrompt, kCreateFolderTitle, ""});
    if (name.empty()) return std::nullopt;
    std::string path = currentPath;
    if (path.empty() || path.back() != '\\') path += '\\';
    path += name;
    if (folderExists(host, path) == kTrue) {
        dialogs.messageBox(
            {kFolderExistsText, MessageButtons::Ok, MessageIcon::Exclamation, kFolderBrowserTitle});
        return std::nullopt;
    }
    if (!host.createFolder(path)) return std::nullopt;
    return path;
}

}  // namespace orvanta
