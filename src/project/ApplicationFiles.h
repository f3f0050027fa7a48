#pragma once
// The two lists that mirror the application's "\files" folder: every file and every folder below
// it, relative to it. They always mirror the project root's folder, whatever working set is open.

#include <string>
#include <string_view>
#include <vector>

#include "platform/Host.h"

namespace orvanta {

// workspaceFolder + "\myinstallers\" + appName + "\files".
std::string applicationFilesBase(std::string_view workspaceFolder, std::string_view appName);

// Every occurrence of `part` taken out of `text`, not only a leading one.
std::string removeEveryOccurrence(std::string text, std::string_view part);

struct ApplicationFileLists {
    std::vector<std::string> files;    // in the order of the walk, each with every "base\" removed
    std::vector<std::string> folders;  // the same way; `base` itself is not one of them
    double size = 0;                   // of all the files
};

// Both lists and the size from one walk of `base`.
ApplicationFileLists refreshedLists(Host& host, const std::string& base);
std::vector<std::string> refreshedFiles(Host& host, const std::string& base);
std::vector<std::string> refreshedFolders(Host& host, const std::string& base);

}  // namespace orvanta
