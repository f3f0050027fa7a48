#pragma once
// "mainsettings.cfg": the project's scalar settings, one a line, known by line number only.
//
// One record serves both directions. The saver fills every field; a field it leaves unset is
// written as an empty line or " 0 ", and an unset option group is not written at all, which moves
// every later line up by one. The reader fills only what the loader takes from the file, by line
// position, so after such a shift later values land in the fields before them, exactly as they
// load. A field left unset keeps the control's value.

#include <optional>
#include <string>

#include "platform/Host.h"
#include "project/LineFile.h"

namespace orvanta {

enum class UninstallDefault { DeleteAllSettings, DeleteRegistryOnly, None };  // Option1..Option3
enum class UpdateInstallMode { Standard, Instant };                           // Option4, Option5

struct MainSettings {
    std::optional<std::string> appName;                  // 1
    std::optional<std::string> appAuthor;                // 2
    std::optional<int> startMenuShortcut;                // 3
    std::optional<int> desktopShortcut;                  // 4
    std::optional<std::string> fullLicenseSlot;          // 5: written empty, read over
    std::optional<std::string> shortcutTooltip;          // 6: read only if not empty
    std::optional<int> startupOption;                    // 7
    std::optional<int> startupChecked;                   // 8
    std::optional<std::string> website;                  // 9
    std::optional<std::string> appSize;                  // 10
    std::optional<int> quickLaunchShortcut;              // 11
    std::optional<int> quickLaunchChecked;               // 12
    std::optional<std::string> mainExecutable;           // 13
    std::optional<int> noRepair;                         // 14
    std::optional<int> noModify;                         // 15
    std::optional<std::string> appVersion;               // 16
    std::optional<int> rollEffect;                       // 17
    std::optional<std::string> installPath;              // 18
    std::optional<std::string> minWindowsVersion;        // 19
    std::optional<int> authorFolder;                     // 20
    std::optional<int> instantInstall;                   // 21
    std::optional<std::string> licenseTitle;             // 22
    std::optional<std::string> licenseButtonCaption;     // 23: read over
    std::optional<UninstallDefault> uninstallDefault;    // 24: no line when unset
    std::optional<int> cleanAll;                         // 25
    std::optional<std::string> anyFile;                  // 26
    std::optional<int> lockInstallPath;                  // 27
    std::optional<int> desktopChecked;                   // 28
    std::optional<int> startMenuChecked;                 // 29
    std::optional<std::string> startupArguments;         // 30: read only if not empty
    std::optional<int> startupAllUsers;                  // 31
    std::optional<std::string> supportLink;              // 32: read only if not empty
    std::optional<std::string> helpLink;                 // 33: read only if not empty
    std::optional<std::string> updateInfoLink;           // 34: read only if not empty
    std::optional<std::string> finalPackageName;         // 35
    std::optional<std::string> shortcutArguments;        // 36: read only if not empty
    std::optional<int> startupRequired;                  // 37
    std::optional<int> appIconOnRootFolder;              // 38
    std::optional<int> noUninstaller;                    // 39
    std::optional<std::string> editionName;              // 40: read over
    std::optional<int> showEditionName;                  // 41
    std::optional<int> justRunMode;                      // 42
                                                         // 43: always 0, read over
    std::optional<UpdateInstallMode> updateInstallMode;  // 44: no line when unset
    std::optional<int> updateIgnoreLicense;              // 45
    std::optional<int> updateRunApp;                     // 46
    std::optional<int> updateSilent;                     // 47
    std::optional<int> createRestorePoint;               // 48
                                                         // 49: always 0, read over
};

inline constexpr std::size_t kMainSettingsLines = 49;

std::string mainSettingsText(const MainSettings& settings);
bool writeMainSettings(Host& host, const std::string& path, const MainSettings& settings);

// What the loader takes from the file. Nothing if the file cannot be opened. Control bytes are
// dropped from every line; a number or word that does not read, a line that held control bytes
// and the lines a short file lacks are noted in `damaged`, the fields concerned left unset.
std::optional<MainSettings> readMainSettings(Host& host, const std::string& path,
                                             DamagedLines* damaged = nullptr);

// Line 13 that is exactly ".exe" or blank clears the check box beside the main executable;
// ".EXE" does not. Such a name names no executable, so it gives the folder no icon either.
bool mainExecutableClearsCheck(const std::string& mainExecutable);

// finalPackageName with every "%version" (case as written) replaced by appVersion.
std::string finalPackageFileOf(const std::string& finalPackageName, const std::string& appVersion);

}  // namespace orvanta
