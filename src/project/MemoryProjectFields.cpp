#include "project/MemoryProjectFields.h"

#include <algorithm>
#include <array>
#include <span>
#include <utility>

#include "project/EditorControls.h"
#include "project/Placeholders.h"

namespace orvanta {

namespace {

using namespace ctrl;

std::string keyOf(ControlName control) {
    std::string key(control.name);
    if (control.index >= 0) {
        key += '(';
        key += std::to_string(control.index);
        key += ')';
    }
    return key;
}

const std::array<std::pair<ControlName, const char*>, 21> kDefaultTexts = {{
    {appName, ""},
    {appAuthor, ""},
    {website, ""},
    {appSize, ""},
    {mainExecutable, ".exe"},
    {appVersion, "1.0"},
    {installPath, "<>"},
    {minWindowsVersion, "Windows XP"},
    {licenseTitle, "License"},
    {licenseButtonCaption, "Read full license"},
    {anyFile, ""},
    {finalPackageName, ".exe"},
    {editionName, "No editions"},
    {introText, ""},
    {tipsText, ""},
    {uninstallIntroText, "Click uninstall to proceed. This process is unreversible!"},
    {uninstallEndText, "Thanks for using appnamehere."},
    {resumedLicenseText, ""},
    {fullLicenseFile, ""},
    {workingFolder, ""},
    {Text10, "<>"},
}};

const std::array<ControlName, 35> kFlags = {
    startMenuShortcut,
    desktopShortcut,
    startupOption,
    startupChecked,
    quickLaunchShortcut,
    quickLaunchChecked,
    noRepair,
    noModify,
    rollEffect,
    authorFolder,
    instantInstall,
    Option1,
    Option2,
    Option3,
    cleanAll,
    lockInstallPath,
    desktopChecked,
    startMenuChecked,
    startupAllUsers,
    startupRequired,
    appIconOnRootFolder,
    noUninstaller,
    showEditionName,
    justRunMode,
    Option4,
    Option5,
    updateIgnoreLicense,
    updateRunApp,
    updateSilent,
    createRestorePoint,
    resumedLicenseEnabled,
    Check15,
    Check31,
    Check32,
    Check23,
};

const std::array<ControlName, 6> kLists = {
    registryLocations, appDataLocations, dependencies, fonts, files, folders};

const std::array<ControlName, 14> kButtons = {Command3,  Command4,  Command8,  Command41, Command12,
                                              Command15, Command19, Command35, Command38, Command40,
                                              Command42, Command43, Command47, Command48};

const std::array<ControlName, 5> kPictures = {aicAlphaImage3, logo, logo2, noway(0), noway(1)};

const std::array<ControlName, 3> kUninstallOptions = {Option1, Option2, Option3};
const std::array<ControlName, 2> kUpdateOptions = {Option4, Option5};

}  // namespace

MemoryProjectFields::MemoryProjectFields(Host* host) : host_(host) {
    addDefaults();
}

MemoryProjectFields::Control& MemoryProjectFields::add(ControlName name) {
    return controls_[keyOf(name)];
}

void MemoryProjectFields::addDefaults() {
    for (const auto& [name, text] : kDefaultTexts) add(name).text = text;
    for (const auto& placeholder : kPlaceholders) {
        Control& box = add(placeholder.box);
        box.text = placeholder.text;
        box.placeholderLook = true;
    }
    for (const auto name : kFlags) add(name);
    for (const auto name : kLists) add(name);
    for (const auto name : kButtons) add(name);
    for (const auto name : kPictures) add(name);
    add(Check23).value = 1;
    add(Command15).caption = "Add logo";
    add(Command35).caption = "Manage packages";
    // Nothing to remove yet, and the update options that only an instant install offers.
    for (const auto name : {Command38, Command40, updateRunApp, updateSilent}) add(name).enabled = false;
    Control& window = add(mainfrm);
    window.caption = "Orvanta";
    window.visible = false;
}

const MemoryProjectFields::Control& MemoryProjectFields::control(ControlName name) const {
    const auto found = controls_.find(keyOf(name));
    if (found == controls_.end()) {
        unknownNames_.push_back(keyOf(name));
        throw std::out_of_range("the editor has no control named " + keyOf(name));
    }
    return found->second;
}

MemoryProjectFields::Control& MemoryProjectFields::control(ControlName name) {
    return const_cast<Control&>(std::as_const(*this).control(name));
}

std::string MemoryProjectFields::text(ControlName name) const {
    return control(name).text;
}

void MemoryProjectFields::setText(ControlName name, const std::string& text) {
    control(name).text = text;
}

int MemoryProjectFields::value(ControlName name) const {
    return control(name).value;
}

void MemoryProjectFields::setValue(ControlName name, int value) {
    control(name).value = value;
    if (value != 0) selectOption(name);
}

void MemoryProjectFields::selectOption(ControlName option) {
    using Group = std::span<const ControlName>;
    for (const Group group : {Group(kUninstallOptions), Group(kUpdateOptions)}) {
        if (std::find(group.begin(), group.end(), option) == group.end()) continue;
        for (const auto other : group)
            if (other != option) control(other).value = 0;
    }
}

bool MemoryProjectFields::enabled(ControlName name) const {
    return control(name).enabled;
}

void MemoryProjectFields::setEnabled(ControlName name, bool enabled) {
    control(name).enabled = enabled;
}

bool MemoryProjectFields::visible(ControlName name) const {
    return control(name).visible;
}

void MemoryProjectFields::setVisible(ControlName name, bool visible) {
    control(name).visible = visible;
}

void MemoryProjectFields::setPlaceholderLook(ControlName name, bool on) {
    control(name).placeholderLook = on;
}

void MemoryProjectFields::setCaption(ControlName name, const std::string& caption) {
    control(name).caption = caption;
}

void MemoryProjectFields::clearList(ControlName list) {
    Control& box = control(list);
    box.items.clear();
    box.listIndex = -1;
}

void MemoryProjectFields::addListItem(ControlName list, const std::string& text, bool selected) {
    control(list).items.push_back({text, selected});
}

void MemoryProjectFields::addListItems(ControlName list, const std::vector<std::string>& texts) {
    auto& items = control(list).items;
    items.reserve(items.size() + texts.size());
    for (const auto& text : texts) items.push_back({text, false});
}

std::vector<ListItem> MemoryProjectFields::listItems(ControlName list) const {
    return control(list).items;
}

std::size_t MemoryProjectFields::listCount(ControlName list) const {
    return control(list).items.size();
}

void MemoryProjectFields::setListIndex(ControlName list, int index) {
    control(list).listIndex = index;
}

bool MemoryProjectFields::loadPicture(ControlName picture, const std::string& path) {
    Control& image = control(picture);
    if (host_ != nullptr && !host_->fileLength(path)) return false;
    image.picture = path;
    return true;
}

void MemoryProjectFields::clearPicture(ControlName picture) {
    control(picture).picture.clear();
}

void MemoryProjectFields::showStatus(StatusLabel label, const std::string& text) {
    const bool tips = label == StatusLabel::ControlTips;
    (tips ? controlTips_ : startLoading_) = text;
    journal_.push_back((tips ? "controlTips: " : "start.loading: ") + text);
}

void MemoryProjectFields::processPendingEvents() {
    journal_.push_back("events");
    if (onPendingEvents) onPendingEvents();
}

const std::string& MemoryProjectFields::status(StatusLabel label) const {
    return label == StatusLabel::ControlTips ? controlTips_ : startLoading_;
}

}  // namespace orvanta
