#include "builder/PackageDialogModel.h"

#include "core/RegistryAPI.h"
#include "core/commonFunctions.h"
#include "core/vars.h"

namespace orvanta {

namespace {

constexpr const char* kWinRarKey =
    "HKLM\\Software\\Microsoft\\Windows\\CurrentVersion\\App Paths\\WinRAR.exe";
constexpr const char* kSevenZipKey =
    "HKLM\\Software\\Microsoft\\Windows\\CurrentVersion\\App Paths\\7zFM.exe";
constexpr int kMaximumLevel = 5;

}  // namespace

PackageDialogModel::PackageDialogModel(Host& host, Dialogs& dialogs) : host_(host), dialogs_(dialogs) {}

void PackageDialogModel::Form_Load() {
    RegistryAPI registry(host_);
    const std::string key = vars::settingsKey();
    if (registry.readSettingNumber(key, "compressor", -1) == 1)
        selectOption1();
    else
        selectOption2();
    offerArchivers();
    // A stored level the list does not have falls back to the default rather than to no selection.
    int level = registry.readSettingNumber(key, "Compression level", kMaximumLevel);
    if (level < 0 || level > kMaximumLevel) level = kMaximumLevel;
    Combo1_Click(level);
    // Setting the box counts as its click: a fresh installation stores its 1 here.
    Check2_Click(registry.readSettingNumber(key, "verbose", 1) == 1 ? 1 : 0);
}

// Setting an option's value runs its click, whether or not the option is enabled.
void PackageDialogModel::selectOption1() {
    state_.option1Value = true;
    state_.option2Value = false;
    Option1_Click();
}

void PackageDialogModel::selectOption2() {
    state_.option1Value = false;
    state_.option2Value = true;
    Option2_Click();
}

void PackageDialogModel::Option1_Click() {
    state_.option1Value = true;
    state_.option2Value = false;
    vars::compressorChoice = "winrar";
    state_.combo1Enabled = true;
    RegistryAPI(host_).writeSettingNumber(vars::settingsKey(), "compressor", 1);
}

void PackageDialogModel::Option2_Click() {
    state_.option1Value = false;
    state_.option2Value = true;
    vars::compressorChoice = "7zip";
    // The level keeps its selection: the 7-Zip route never states one.
    state_.combo1Enabled = false;
    RegistryAPI(host_).writeSettingNumber(vars::settingsKey(), "compressor", 2);
}

void PackageDialogModel::Combo1_Click(int index) {
    state_.combo1Index = index;
    vars::compressionLevel = index;
    RegistryAPI(host_).writeSettingNumber(vars::settingsKey(), "Compression level", index);
}

void PackageDialogModel::Check2_Click(int value) {
    state_.check2Value = value;
    RegistryAPI(host_).writeSettingNumber(vars::settingsKey(), "verbose", value);
}

// The private copy of 7-Zip beside the program takes the whole choice, WinRAR found or not.
void PackageDialogModel::offerArchivers() {
    if (fileExists(host_, host_.applicationFolder() + "\\7z\\7z.exe") == kTrue) {
        state_.option2Enabled = true;
        return;
    }
    const bool winRar = winRarFound();
    const bool sevenZip = sevenZipFound();
    if (winRar) {
        state_.option1Enabled = true;
        if (!sevenZip) selectOption1();
        // With both found the stored choice stands.
        if (sevenZip) state_.option2Enabled = true;
    } else if (sevenZip) {
        state_.option2Enabled = true;
        selectOption2();
    } else {
        state_.command1Enabled = false;
        tellNoArchiver();
    }
}

// A tool counts only when both its registration and its program are there.
bool PackageDialogModel::winRarFound() {
    const bool registered = RegistryAPI(host_).registryKeyExists(kWinRarKey);
    return fileExists(host_, vars::rarFolder + "\\rar.exe") == kTrue && registered;
}

bool PackageDialogModel::sevenZipFound() {
    const bool registered = RegistryAPI(host_).registryKeyExists(kSevenZipKey);
    return fileExists(host_, vars::sevenZipFolder + "\\7z.exe") == kTrue && registered;
}

void PackageDialogModel::tellNoArchiver() {
    const std::string instruction = "7-zip or WinRAR are not installed on the system";
    const std::string content = std::string("A package is made by one of them. Download WinRAR from ") +
                                kWinRarDownloadPage + " or 7-Zip from " + kSevenZipDownloadPage +
                                ".\r\nOpen both webpages now?";
    const DialogAnswer answer = notifyUser(
        host_, dialogs_, {instruction, content, "Orvanta", MessageButtons::YesNo, MessageIcon::Exclamation},
        instruction + "! " + content);
    if (answer != DialogAnswer::Yes) return;
    shellOpen(host_, dialogs_, kWinRarDownloadPage, "");
    shellOpen(host_, dialogs_, kSevenZipDownloadPage, "");
}

BuildSetup currentBuildSetup(Host& host) {
    BuildSetup setup;
    setup.compressorChoice = vars::compressorChoice;
    setup.compressionLevel = vars::compressionLevel;
    setup.rarFolder = vars::rarFolder;
    setup.sevenZipFolder = vars::sevenZipFolder;
    setup.workspaceFolder = vars::workspaceFolder;
    setup.applicationFolder = host.applicationFolder();
    setup.settingsKey = vars::settingsKey();
    return setup;
}

}  // namespace orvanta
