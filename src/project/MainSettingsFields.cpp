#include "project/MainSettingsFields.h"

#include <array>

#include "project/EditorControls.h"
#include "project/Placeholders.h"
#include "project/SkipFailures.h"

namespace orvanta {

namespace {

using namespace ctrl;
using TextMember = std::optional<std::string> MainSettings::*;
using NumberMember = std::optional<int> MainSettings::*;

struct TextBinding {
    ControlName control;
    TextMember member;
};
struct NumberBinding {
    ControlName control;
    NumberMember member;
};

// In line order; the reader leaves the lines it reads over unset, so the loader skips them.
const std::array<TextBinding, 19> kTexts = {{
    {appName, &MainSettings::appName},
    {appAuthor, &MainSettings::appAuthor},
    {shortcutTooltip, &MainSettings::shortcutTooltip},
    {website, &MainSettings::website},
    {appSize, &MainSettings::appSize},
    {mainExecutable, &MainSettings::mainExecutable},
    {appVersion, &MainSettings::appVersion},
    {installPath, &MainSettings::installPath},
    {minWindowsVersion, &MainSettings::minWindowsVersion},
    {licenseTitle, &MainSettings::licenseTitle},
    {licenseButtonCaption, &MainSettings::licenseButtonCaption},
    {anyFile, &MainSettings::anyFile},
    {startupArguments, &MainSettings::startupArguments},
    {supportLink, &MainSettings::supportLink},
    {helpLink, &MainSettings::helpLink},
    {updateInfoLink, &MainSettings::updateInfoLink},
    {finalPackageName, &MainSettings::finalPackageName},
    {shortcutArguments, &MainSettings::shortcutArguments},
    {editionName, &MainSettings::editionName},
}};

const std::array<NumberBinding, 25> kNumbers = {{
    {startMenuShortcut, &MainSettings::startMenuShortcut},
    {desktopShortcut, &MainSettings::desktopShortcut},
    {startupOption, &MainSettings::startupOption},
    {startupChecked, &MainSettings::startupChecked},
    {quickLaunchShortcut, &MainSettings::quickLaunchShortcut},
    {quickLaunchChecked, &MainSettings::quickLaunchChecked},
    {noRepair, &MainSettings::noRepair},
    {noModify, &MainSettings::noModify},
    {rollEffect, &MainSettings::rollEffect},
    {authorFolder, &MainSettings::authorFolder},
    {instantInstall, &MainSettings::instantInstall},
    {cleanAll, &MainSettings::cleanAll},
    {lockInstallPath, &MainSettings::lockInstallPath},
    {desktopChecked, &MainSettings::desktopChecked},
    {startMenuChecked, &MainSettings::startMenuChecked},
    {startupAllUsers, &MainSettings::startupAllUsers},
    {startupRequired, &MainSettings::startupRequired},
    {appIconOnRootFolder, &MainSettings::appIconOnRootFolder},
    {noUninstaller, &MainSettings::noUninstaller},
    {showEditionName, &MainSettings::showEditionName},
    {justRunMode, &MainSettings::justRunMode},
    {updateIgnoreLicense, &MainSettings::updateIgnoreLicense},
    {updateRunApp, &MainSettings::updateRunApp},
    {updateSilent, &MainSettings::updateSilent},
    {createRestorePoint, &MainSettings::createRestorePoint},
}};

std::optional<UninstallDefault> uninstallDefaultOf(const ProjectFields& fields) {
    if (fields.value(Option1) != 0) return UninstallDefault::DeleteAllSettings;
    if (fields.value(Option2) != 0) return UninstallDefault::DeleteRegistryOnly;
    if (fields.value(Option3) != 0) return UninstallDefault::None;
    return std::nullopt;
}

std::optional<UpdateInstallMode> updateInstallModeOf(const ProjectFields& fields) {
    if (fields.value(Option4) != 0) return UpdateInstallMode::Standard;
    if (fields.value(Option5) != 0) return UpdateInstallMode::Instant;
    return std::nullopt;
}

// A stored value replaces the placeholder, so the box loses the hint's look and a link box's
// companion check box goes on.
void takeText(ProjectFields& fields, ControlName box, const std::string& text) {
    fields.setText(box, text);
    const Placeholder* placeholder = placeholderOf(box);
    if (placeholder == nullptr) return;
    fields.setPlaceholderLook(box, false);
    if (!placeholder->companion.name.empty()) fields.setValue(placeholder->companion, 1);
}

// A check box takes 0 or 1; any other number fails as the control's assignment would.
void takeFlag(ProjectFields& fields, ControlName box, int value) {
    if (value == 0 || value == 1) fields.setValue(box, value);
}

ControlName optionOf(UninstallDefault value) {
    switch (value) {
        case UninstallDefault::DeleteAllSettings:
            return Option1;
        case UninstallDefault::DeleteRegistryOnly:
            return Option2;
        case UninstallDefault::None:
            break;
    }
    return Option3;
}

void takeUpdateMode(ProjectFields& fields, UpdateInstallMode mode) {
    if (mode == UpdateInstallMode::Standard) {
        fields.setValue(Option4, 1);
        return;
    }
    fields.setValue(Option5, 1);
    fields.setEnabled(updateIgnoreLicense, false);
    fields.setEnabled(updateSilent, true);
    fields.setEnabled(updateRunApp, true);
}

}  // namespace

MainSettings mainSettingsOf(const ProjectFields& fields, bool anyFileExists) {
    MainSettings settings;
    for (const auto& binding : kTexts) settings.*binding.member = storedText(fields, binding.control);
    for (const auto& binding : kNumbers) settings.*binding.member = fields.value(binding.control);
    settings.fullLicenseSlot = "";
    if (!anyFileExists) settings.anyFile = "";
    settings.uninstallDefault = uninstallDefaultOf(fields);
    settings.updateInstallMode = updateInstallModeOf(fields);
    return settings;
}

void applyMainSettings(ProjectFields& fields, const MainSettings& settings) {
    for (const auto& binding : kTexts)
        if (const auto& text = settings.*binding.member)
            skipOnFailure([&] { takeText(fields, binding.control, *text); });
    for (const auto& binding : kNumbers)
        if (const auto& value = settings.*binding.member)
            skipOnFailure([&] { takeFlag(fields, binding.control, *value); });
    // The only place that clears the check box on load; nothing here sets it.
    if (settings.mainExecutable && mainExecutableClearsCheck(*settings.mainExecutable))
        skipOnFailure([&] { fields.setValue(Check23, 0); });
    if (settings.uninstallDefault)
        skipOnFailure([&] { fields.setValue(optionOf(*settings.uninstallDefault), 1); });
    if (settings.updateInstallMode)
        skipOnFailure([&] { takeUpdateMode(fields, *settings.updateInstallMode); });
    skipOnFailure([&] {
        if (!fields.text(anyFile).empty()) fields.setEnabled(Command38, true);
    });
}

}  // namespace orvanta
