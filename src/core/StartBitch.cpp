#include "core/StartBitch.h"

#include <array>

#include "core/RegistryAPI.h"
#include "core/RuntimeError.h"
#include "core/SpecialFolderAPI.h"
#include "core/commonFunctions.h"
#include "core/vars.h"

namespace orvanta {

namespace {

constexpr const char* kAppPathsKey = "HKLM\\Software\\Microsoft\\Windows\\CurrentVersion\\App Paths\\";
// What the string reader gives when a registration has no readable "Path".
const std::string kUnreadable(1, '\0');

bool supportFilesPresent(Host& host) {
    constexpr std::array<const char*, 4> kStubs = {"\\data\\install", "\\data\\uninstall", "\\data\\package",
                                                   "\\data\\install.exe.manifest"};
    const std::string folder = host.applicationFolder();
    bool missing = false;
    // All four are tested, even after the first is found missing.
    for (const char* stub : kStubs) missing |= fileExists(host, folder + stub) == kFalse;
    return !missing;
}

void ensureSettingsKeys(RegistryAPI& registry) {
    // An existing root key is left alone, even if its "Settings" key was deleted by hand.
    if (registry.registryKeyExists(vars::settingsRootKey)) return;
    registry.createRegistryKey(vars::settingsRootKey);
    registry.createRegistryKey(vars::settingsKey());
}

void warnNoArchiver(Host& host, Dialogs& dialogs) {
    const TaskDialogRequest task{"7-zip or WinRAR are not installed on the system",
                                 "To create the final package you need to install at least one of them.",
                                 "Orvanta", MessageButtons::Ok, MessageIcon::Exclamation};
    notifyUser(host, dialogs, task,
               "7-zip or WinRAR are not installed on the system. To create the final package you need to "
               "install at least one of them.");
}

// First hit wins; compressorChoice names the default archiver, not the one that was found.
void findArchivers(Host& host, Dialogs& dialogs, RegistryAPI& registry) {
    const std::string winRarKey = std::string(kAppPathsKey) + "WinRAR.exe";
    const std::string sevenZipKey = std::string(kAppPathsKey) + "7zFM.exe";
    if (fileExists(host, host.applicationFolder() + "\\7z\\7z.exe") == kTrue) {
        vars::sevenZipFolder = host.applicationFolder() + "\\7z\\";
        vars::compressorChoice = "7zip";
    } else if (registry.registryKeyExists(winRarKey)) {
        vars::rarFolder = registry.readRegistryString(winRarKey, "Path", kUnreadable) + "\\";
        if (registry.registryKeyExists(sevenZipKey))
            vars::sevenZipFolder = registry.readRegistryString(sevenZipKey, "Path", kUnreadable) + "\\";
    } else if (registry.registryKeyExists(sevenZipKey)) {
        vars::sevenZipFolder = registry.readRegistryString(sevenZipKey, "Path", kUnreadable) + "\\";
    } else {
        warnNoArchiver(host, dialogs);
        vars::compressorChoice.clear();
    }
}

std::string readFirstLine(Host& host, const std::string& path) {
    auto reader = host.openForReading(path);
    if (!reader) throw RuntimeError(kErrorNumberFileNotFound, "File not found");
    std::string line;
    char c = 0;
    while (reader->read(&c, 1) == 1 && c != '\n') line += c;
    if (reader->failed()) throw RuntimeError(kErrorNumberPathFileAccess, "Path/File access error");
    if (!line.empty() && line.back() == '\r') line.pop_back();
    return line;
}

}  // namespace

std::string projectFolderFromMarker(const std::string& markerPath, const std::string& projectName) {
    const std::string token = "\\" + projectName + ".ovproj";
    std::string folder;
    std::size_t at = 0;
    for (std::size_t hit; (hit = markerPath.find(token, at)) != std::string::npos; at = hit + token.size())
        folder += markerPath.substr(at, hit - at);
    return folder + markerPath.substr(at);
}

MainOutcome Main(Host& host, Dialogs& dialogs, const MainHandOver& handOver) {
    if (!supportFilesPresent(host)) {
        dialogs.messageBox({"A required file is missing. Reinstall Orvanta.", MessageButtons::Ok,
                            MessageIcon::Critical, "Orvanta"});
        return MainOutcome::SupportFileMissing;
    }
    vars::workspaceFolder = specialFolder(host, kFolderDocuments) + "Orvanta";
    vars::compressorChoice = "7zip";
    vars::settingsRootKey = "HKCU\\Software\\Orvanta";

    RegistryAPI registry(host);
    ensureSettingsKeys(registry);
    findArchivers(host, dialogs, registry);

    const std::string commandLine = host.commandLine();
    if (commandLine.empty()) {
        if (handOver.showStart) handOver.showStart();
        return MainOutcome::StartShown;
    }
    // Taken whole as the marker's path: quotes around it are not removed, so the open fails.
    const std::string name = readFirstLine(host, commandLine);
    const std::string folder = projectFolderFromMarker(commandLine, name);
    if (handOver.loadProject) handOver.loadProject(folder);
    host.processPendingMessages();
    return MainOutcome::ProjectLoaded;
}

}  // namespace orvanta
