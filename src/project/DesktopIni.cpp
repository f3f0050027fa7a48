#include "project/DesktopIni.h"

#include <string_view>

#include "project/LineFile.h"
#include "project/ProjectPaths.h"

namespace orvanta {

namespace {
constexpr std::string_view kIconFileKey = "IconFile=";
}  // namespace

std::string desktopIniIconPath(const std::string& workspaceFolder, const std::string& appName,
                               const std::string& mainExecutable) {
    return inFolder(inFolder(projectRoot(workspaceFolder, appName), projectfolder::kFiles), mainExecutable);
}

std::string desktopIniText(const std::string& iconPath) {
    return linesText({"[.ShellClassInfo]", std::string(kIconFileKey) + iconPath, "IconIndex = 0",
                      "IconResource=" + iconPath + ",0"});
}

bool writeDesktopIni(Host& host, const std::string& path, const std::string& iconPath) {
    return host.writeFileAtomic(path, desktopIniText(iconPath));
}

std::optional<std::string> readDesktopIniIcon(Host& host, const std::string& path) {
    const auto lines = readLines(host, path, 2);
    if (!lines || lines->size() < 2 || !(*lines)[1].starts_with(kIconFileKey)) return std::nullopt;
    return (*lines)[1].substr(kIconFileKey.size());
}

}  // namespace orvanta
