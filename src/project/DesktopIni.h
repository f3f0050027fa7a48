#pragma once
// "desktop.ini" at the project root: gives the project folder the main executable's icon.

#include <optional>
#include <string>

#include "platform/Host.h"

namespace orvanta {

// The icon's path: workspaceFolder + "\myinstallers\" + appName + "\files\" + mainExecutable.
std::string desktopIniIconPath(const std::string& workspaceFolder, const std::string& appName,
                               const std::string& mainExecutable);
std::string desktopIniText(const std::string& iconPath);
bool writeDesktopIni(Host& host, const std::string& path, const std::string& iconPath);
// The path after "IconFile=" in line 2; nothing if the file cannot be opened or has no such line.
std::optional<std::string> readDesktopIniIcon(Host& host, const std::string& path);

}  // namespace orvanta
