#pragma once
// Where a project's pieces lie. The only place that knows the names of the workspace entries,
// the project files and the folders of a working set.

#include <functional>
#include <string>
#include <string_view>

namespace orvanta {

class Host;

namespace projectfile {
inline constexpr std::string_view kMainSettings = "mainsettings.cfg";
inline constexpr std::string_view kIntro = "intro.cfg";
inline constexpr std::string_view kTips = "tips.cfg";
inline constexpr std::string_view kUninstallIntro = "uninstallIntro.cfg";
inline constexpr std::string_view kUninstallEnd = "uninstallEnd.cfg";
inline constexpr std::string_view kLicense = "slicense.txt";
inline constexpr std::string_view kRegistryLocations = "registrylocations.cfg";
inline constexpr std::string_view kAppDataLocations = "appdatalocations.cfg";
inline constexpr std::string_view kDependencies = "dependencies.cfg";
inline constexpr std::string_view kFonts = "fonts.cfg";
inline constexpr std::string_view kFiles = "files.cfg";
inline constexpr std::string_view kFolders = "folders.cfg";
inline constexpr std::string_view kPackages = "packages.cfg";
inline constexpr std::string_view kExecutables = "executables.cfg";
inline constexpr std::string_view kMsi = "msi.cfg";
inline constexpr std::string_view kDesktopIni = "desktop.ini";
inline constexpr std::string_view kBackground = "1.jpg";
inline constexpr std::string_view kLogo = "logo.png";
inline constexpr std::string_view kPreview = "preview.png";
inline constexpr std::string_view kMarkerExtension = ".ovproj";
inline constexpr std::string_view kRecordExtension = ".hsh";
}  // namespace projectfile

namespace projectfolder {
inline constexpr std::string_view kFiles = "files";
inline constexpr std::string_view kExecutables = "executables";
inline constexpr std::string_view kFonts = "fonts";
inline constexpr std::string_view kPackages = "packages";
inline constexpr std::string_view kSettingsSet = "settingsset";
inline constexpr std::string_view kMsi = "msi";
inline constexpr std::string_view kCompiled = "compiled";
inline constexpr std::string_view kEditions = "editions";
inline constexpr std::string_view kVersions = "versions";
}  // namespace projectfolder

// The words that stand for "no edition" and "no version": the marker spells them with capitals,
// the editor's fields without. Nothing compares the one with the other.
inline constexpr std::string_view kMarkerNoEditions = "No Editions";
inline constexpr std::string_view kMarkerNoVersions = "No Versions";
inline constexpr std::string_view kNoEditions = "No editions";
inline constexpr std::string_view kNoVersions = "No versions";

// folder + "\" + name, by plain text as every path rule of the project is: an empty part
// stays an empty component instead of being folded away.
std::string inFolder(std::string_view folder, std::string_view name);

// Entries of the workspace.
std::string myInstallersFolder(std::string_view workspaceFolder);
std::string backgroundsFolder(std::string_view workspaceFolder);
std::string deleteProjectBatch(std::string_view workspaceFolder);

// workspaceFolder + "\myinstallers\" + appName.
std::string projectRoot(std::string_view workspaceFolder, std::string_view appName);
// appName + ".ovproj", and that name below a folder.
std::string markerName(std::string_view appName);
std::string markerPath(std::string_view folder, std::string_view appName);

// Working sets below the project root: "\editions\<edition>" and "\versions\<version>\<edition>".
std::string editionWorkingSet(std::string_view projectRoot, std::string_view edition);
std::string versionWorkingSet(std::string_view projectRoot, std::string_view version,
                              std::string_view edition);
// The project root a working set lies in: the part above "\editions\<e>" or "\versions\<v>\<e>"
// when `isProjectRoot` accepts it, else the working set itself. A save writes only below it, so
// a hand-copied project folder never writes into the folder it was copied from.
std::string projectRootOf(std::string_view workingSet,
                          const std::function<bool(const std::string&)>& isProjectRoot);
// The project root of a working set as it lies on disk: a root is a folder that holds the
// settings file. Everything that writes or opens below the root takes it from here, not from
// the name, so a hand-copied project folder stays apart from its original.
std::string projectRootOnDisk(Host& host, std::string_view workingSet);
// "\v<version>": the application's files of one version, beside "\files".
std::string versionFilesFolder(std::string_view workingSet, std::string_view version);

// "\settingsset\<index>.cfg" and "\settingsset\settings.cfg" of a working set.
std::string settingsSetFile(std::string_view workingSet, int index);
std::string settingsSetIndexFile(std::string_view workingSet);

}  // namespace orvanta
