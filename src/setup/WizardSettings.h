#pragma once
// The 29 lines of "mainsettings.cfg" the wizard reads, as the strings they are. A flag counts as
// on when its text reads as the number 1 exactly.

#include <optional>
#include <string>

#include "platform/Host.h"

namespace orvanta {

inline constexpr std::size_t kWizardSettingsLines = 29;

struct WizardSettings {
    std::string appName;
    std::string appAuthor;
    std::string startMenuShortcut;
    std::string desktopShortcut;
    std::string fullLicense;  // the fifth line: what the licence panel's button opens
    std::string shortcutTooltip;
    std::string startupOption;
    std::string startupChecked;
    std::string website;
    std::string appSize;
    std::string quickLaunchShortcut;
    std::string quickLaunchChecked;
    std::string mainExecutable;
    std::string noRepair;
    std::string noModify;
    std::string appVersion;
    std::string rollEffect;
    std::string installPath;
    std::string minWindowsVersion;
    std::string authorFolder;
    std::string instantInstall;
    std::string licenseTitle;
    std::string licenseButtonCaption;
    std::string uninstallDefault;
    std::string cleanAll;
    std::string anyFile;
    std::string lockInstallPath;
    std::string desktopChecked;
    std::string startMenuChecked;
};

// Lines 1 to 29 and nothing more; a short file leaves the rest empty. Nothing when the file
// cannot be opened.
std::optional<WizardSettings> readWizardSettings(Host& host, const std::string& path);

bool flagOn(const std::string& text);

}  // namespace orvanta
