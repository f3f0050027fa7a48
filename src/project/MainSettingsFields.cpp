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

// How the loader applies a line. The option groups and the main executable's check box take
// their turn at their own line, so rules that tie check boxes together run in file order.
enum class Apply { Text, Number, ClearMainExecutableCheck, UninstallGroup, UpdateGroup };

struct Binding {
    Apply apply;
    ControlName control = {};
    TextMember text = nullptr;
    NumberMember number = nullptr;
};

constexpr Binding asText(ControlName control, TextMember member) {
    return {Apply::Text, control, member, nullptr};
}
constexpr Binding asNumber(ControlName control, NumberMember member) {
    return {Apply::Number, control, nullptr, member};
}

// In line order; the lines the reader reads over stay unset, so the loader skips them.
const std::array<Binding, 47> kLineOrder = {{
    asText(appName, &MainSettings::appName),
    asText(appAuthor, &MainSettings::appAuthor),
    asNumber(startMenuShortcut, &MainSettings::startMenuShortcut),
    asNumber(desktopShortcut, &MainSettings::desktopShortcut),
    asText(shortcutTooltip, &MainSettings::shortcutTooltip),
    asNumber(startupOption, &MainSettings::startupOption),
    asNumber(startupChecked, &MainSettings::startupChecked),
    asText(website, &MainSettings::website),
    asText(appSize, &MainSettings::appSize),
    asNumber(quickLaunchShortcut, &MainSettings::quickLaunchShortcut),
    asNumber(quickLaunchChecked, &MainSettings::quickLaunchChecked),
    asText(mainExecutable, &MainSettings::mainExecutable),
    {Apply::ClearMainExecutableCheck},
    asNumber(noRepair, &MainSettings::noRepair),
    asNumber(noModify, &MainSettings::noModify),
    asText(appVersion, &MainSettings::appVersion),
    asNumber(rollEffect, &MainSettings::rollEffect),
    asText(installPath, &MainSettings::installPath),
    asText(minWindowsVersion, &MainSettings::minWindowsVersion),
    asNumber(authorFolder, &MainSettings::authorFolder),
    asNumber(instantInstall, &MainSettings::instantInstall),
    asText(licenseTitle, &MainSettings::licenseTitle),
    asText(licenseButtonCaption, &MainSettings::licenseButtonCaption),
    {Apply::UninstallGroup},
    asNumber(cleanAll, &MainSettings::cleanAll),
    asText(anyFile, &MainSettings::anyFile),
    asNumber(lockInstallPath, &MainSettings::lockInstallPath),
    asNumber(desktopChecked, &MainSettings::desktopChecked),
    asNumber(startMenuChecked, &MainSettings::startMenuChecked),
    asText(startupArguments, &MainSettings::startupArguments),
    asNumber(startupAllUsers, &MainSettings::startupAllUsers),
    asText(supportLink, &MainSettings::supportLink),
    asText(helpLink, &MainSettings::helpLink),
    asText(updateInfoLink, &MainSettings::updateInfoLink),
    asText(finalPackageName, &MainSettings::finalPackageName),
    asText(shortcutArguments, &MainSettings::shortcutArguments),
    asNumber(startupRequired, &MainSettings::startupRequired),
    asNumber(appIconOnRootFolder, &MainSettings::appIconOnRootFolder),
    asNumber(noUninstaller, &MainSettings::noUninstaller),
    asText(editionName, &MainSettings::editionName),
    asNumber(showEditionName, &MainSettings::showEditionName),
    asNumber(justRunMode, &MainSettings::justRunMode),
    {Apply::UpdateGroup},
    asNumber(updateIgnoreLicense, &MainSettings::updateIgnoreLicense),
    asNumber(updateRunApp, &MainSettings::updateRunApp),
    asNumber(updateSilent, &MainSettings::updateSilent),
    asNumber(createRestorePoint, &MainSettings::createRestorePoint),
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

void applyLine(ProjectFields& fields, const MainSettings& settings, const Binding& binding) {
    switch (binding.apply) {
        case Apply::Text:
            if (const auto& value = settings.*binding.text) takeText(fields, binding.control, *value);
            return;
        case Apply::Number:
            if (const auto& value = settings.*binding.number) takeFlag(fields, binding.control, *value);
            return;
        case Apply::ClearMainExecutableCheck:
            // The only place that clears the check box on load; nothing here sets it.
            if (settings.mainExecutable && mainExecutableClearsCheck(*settings.mainExecutable))
                fields.setValue(Check23, 0);
            return;
        case Apply::UninstallGroup:
            if (settings.uninstallDefault) fields.setValue(optionOf(*settings.uninstallDefault), 1);
            return;
        case Apply::UpdateGroup:
            if (settings.updateInstallMode) takeUpdateMode(fields, *settings.updateInstallMode);
            return;
    }
}

}  // namespace

MainSettings mainSettingsOf(const ProjectFields& fields, bool anyFileExists) {
    MainSettings settings;
    for (const auto& binding : kLineOrder) {
        if (binding.apply == Apply::Text) settings.*binding.text = storedText(fields, binding.control);
        if (binding.apply == Apply::Number) settings.*binding.number = fields.value(binding.control);
    }
    settings.fullLicenseSlot = "";
    if (!anyFileExists) settings.anyFile = "";
    settings.uninstallDefault = uninstallDefaultOf(fields);
    settings.updateInstallMode = updateInstallModeOf(fields);
    return settings;
}

void applyMainSettings(ProjectFields& fields, const MainSettings& settings) {
    for (const auto& binding : kLineOrder) skipOnFailure([&] { applyLine(fields, settings, binding); });
    skipOnFailure([&] {
        if (!fields.text(anyFile).empty()) fields.setEnabled(Command38, true);
    });
}

}  // namespace orvanta
