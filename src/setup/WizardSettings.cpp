#include "setup/WizardSettings.h"

#include <array>

#include "project/LineFile.h"
#include "project/NumberText.h"

namespace orvanta {

std::optional<WizardSettings> readWizardSettings(Host& host, const std::string& path) {
    auto lines = readLines(host, path, kWizardSettingsLines);
    if (!lines) return std::nullopt;
    lines->resize(kWizardSettingsLines);
    WizardSettings settings;
    const std::array<std::string*, kWizardSettingsLines> fields = {&settings.appName,
                                                                   &settings.appAuthor,
                                                                   &settings.startMenuShortcut,
                                                                   &settings.desktopShortcut,
                                                                   &settings.fullLicense,
                                                                   &settings.shortcutTooltip,
                                                                   &settings.startupOption,
                                                                   &settings.startupChecked,
                                                                   &settings.website,
                                                                   &settings.appSize,
                                                                   &settings.quickLaunchShortcut,
                                                                   &settings.quickLaunchChecked,
                                                                   &settings.mainExecutable,
                                                                   &settings.noRepair,
                                                                   &settings.noModify,
                                                                   &settings.appVersion,
                                                                   &settings.rollEffect,
                                                                   &settings.installPath,
                                                                   &settings.minWindowsVersion,
                                                                   &settings.authorFolder,
                                                                   &settings.instantInstall,
                                                                   &settings.licenseTitle,
                                                                   &settings.licenseButtonCaption,
                                                                   &settings.uninstallDefault,
                                                                   &settings.cleanAll,
                                                                   &settings.anyFile,
                                                                   &settings.lockInstallPath,
                                                                   &settings.desktopChecked,
                                                                   &settings.startMenuChecked};
    for (std::size_t line = 0; line < kWizardSettingsLines; ++line) *fields[line] = std::move((*lines)[line]);
    return settings;
}

bool flagOn(const std::string& text) {
    const auto number = parseNumber(text);
    return number && *number == 1.0;
}

}  // namespace orvanta
