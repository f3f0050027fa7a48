#include "project/ProjectLoader.h"

#include <map>
#include <string_view>

#include "core/commonFunctions.h"
#include "core/vars.h"
#include "platform/CaseFolding.h"
#include "platform/WindowsPath.h"
#include "project/ContentList.h"
#include "project/DependencyList.h"
#include "project/EditorControls.h"
#include "project/FontList.h"
#include "project/InstallerLists.h"
#include "project/LeftoverTemporaries.h"
#include "project/LocationList.h"
#include "project/MainSettingsFields.h"
#include "project/PackageTables.h"
#include "project/ProjectPaths.h"
#include "project/SettingsSets.h"
#include "project/SkipFailures.h"
#include "project/TextFile.h"
#include "project/UninstallOptions.h"

namespace orvanta {

namespace {

using namespace ctrl;
using namespace projectfile;

constexpr const char* kMainSettingsMissing =
    "mainsettings.cfg file not found. The mainsettings file stores most of the settings of the project.";

class ProjectLoader {
public:
    ProjectLoader(EditorContext& context, const std::string& folder)
        : host_(context.host),
          dialogs_(context.dialogs),
          fields_(context.fields),
          folder_(folder),
          root_(projectRootOnDisk(host_, folder)) {}

    LoadOutcome run() {
        setUp();
        progress("...reading mainsettings file");
        const LoadOutcome outcome = readMainSettingsFile();
        if (outcome != LoadOutcome::Loaded) return outcome;
        readTexts();
        readLists();
        readPackages();
        skipOnFailure([&] { readSettingsSets(host_, folder_, settingsSets); });
        loadImages();
        finish();
        reportDamage();
        reportForeignName();
        return LoadOutcome::Loaded;
    }

private:
    std::string path(std::string_view name) const { return inFolder(folder_, name); }
    bool exists(std::string_view name) const { return fileExists(host_, path(name)) == kTrue; }

    void progress(const char* text) {
        skipOnFailure([&] {
            fields_.showStatus(StatusLabel::StartLoading, text);
            fields_.processPendingEvents();
        });
    }

    // Failures here are not skipped: the caller hears of them before anything was read.
    void setUp() {
        removeLeftoverTemporaries(host_, root_, folder_);
        fields_.setText(workingFolder, folder_);
        fields_.showStatus(StatusLabel::ControlTips, "Loading...");
        fields_.setEnabled(mainfrm, false);
    }

    LoadOutcome readMainSettingsFile() {
        const std::string file = path(kMainSettings);
        const auto settings = readMainSettings(host_, file, &damage(kMainSettings));
        if (!settings) return reportUnopened(file);
        applyMainSettings(fields_, *settings);
        return LoadOutcome::Loaded;
    }

    LoadOutcome reportUnopened(const std::string& file) {
        if (!host_.fileAttributes(file)) {
            dialogs_.messageBox({kMainSettingsMissing, MessageButtons::Ok, MessageIcon::Critical, "Orvanta"});
            return LoadOutcome::MainSettingsMissing;
        }
        dialogs_.messageBox(
            {"Path/File access error (" + file + ")", MessageButtons::Ok, MessageIcon::Critical, "Orvanta"});
        return LoadOutcome::MainSettingsUnreadable;
    }

    void readText(ControlName box, std::string_view name) {
        skipOnFailure([&] {
            if (const auto text = readTextFile(host_, path(name), &damage(name))) fields_.setText(box, *text);
        });
    }

    void readTexts() {
        progress("...reading tips file");
        readText(tipsText, kTips);
        progress("...reading intro file");
        skipOnFailure([&] { fields_.clearPicture(logo); });
        skipOnFailure([&] {
            fields_.setVisible(noway(0), true);
            fields_.setVisible(noway(1), true);
        });
        readText(introText, kIntro);
        progress("...reading uninstall intro file");
        readText(uninstallIntroText, kUninstallIntro);
        progress("...reading uninstall end file");
        readText(uninstallEndText, kUninstallEnd);
        progress("...reading license/notes file");
        readLicense();
    }

    // The file's presence is what switches the short licence on.
    void readLicense() {
        if (exists(kLicense)) {
            readText(resumedLicenseText, kLicense);
            skipOnFailure([&] {
                fields_.setValue(resumedLicenseEnabled, 1);
                fields_.setText(Text10, std::string(kLicense));
            });
            return;
        }
        skipOnFailure([&] {
            fields_.setValue(resumedLicenseEnabled, 0);
            fields_.setText(resumedLicenseText, "");
            fields_.setText(Text10, "<>");
            fields_.setEnabled(Command8, false);
            fields_.setEnabled(Command41, false);
        });
    }

    void applyList(ControlName list, const ListUpdate& update) {
        if (update.action == ListAction::Keep) return;
        fields_.clearList(list);
        fields_.addListItems(list, update.items);
    }

    void readDependencies() {
        fields_.clearList(dependencies);
        for (const auto& dependency : readDependencyList(host_, path(kDependencies)))
            fields_.addListItem(dependencies, dependency.name, dependency.selected);
    }

    void readLists() {
        progress("...reading uninstall registry locations file");
        skipOnFailure(
            [&] { applyList(registryLocations, readLocationList(host_, path(kRegistryLocations))); });
        progress("...reading uninstall appdata settings file");
        skipOnFailure([&] { applyList(appDataLocations, readLocationList(host_, path(kAppDataLocations))); });
        progress("...reading dependencies file");
        skipOnFailure([&] { readDependencies(); });
        progress("...reading application files file");
        skipOnFailure([&] { applyList(files, readContentList(host_, path(kFiles))); });
        progress("...reading application folders file");
        skipOnFailure([&] { applyList(folders, readContentList(host_, path(kFolders))); });
        // Read and dropped: the editor has no list for either yet.
        progress("...reading application msi files");
        if (exists(kMsi)) skimInstallerList(host_, path(kMsi));
        progress("...reading executables file");
        skimInstallerList(host_, path(kExecutables));
        progress("...reading fonts file");
        skipOnFailure([&] { applyList(fonts, readFontList(host_, path(kFonts))); });
    }

    // Slots past the count keep what they held; a file that cannot be read counts no package.
    void readPackages() {
        skipOnFailure([&] {
            const std::string file = inFolder(fields_.text(workingFolder), kPackages);
            packageTables.count = readPackageList(host_, file, packageTables.entries).value_or(0);
            fields_.setCaption(Command35,
                               "Manage packages \r\n" + std::to_string(packageTables.count) + " package(s)");
        });
    }

    void loadImages() {
        progress("...loading background image");
        skipOnFailure([&] { fields_.loadPicture(aicAlphaImage3, path(kBackground)); });
        progress("...loading logo image");
        if (exists(kLogo)) skipOnFailure([&] { showLogo(); });
        // The preview itself is fetched by the editor when its page is shown.
        progress("...loading preview image");
        skipOnFailure([&] {
            if (!fields_.text(fullLicenseFile).empty()) fields_.setEnabled(Command41, true);
        });
    }

    void showLogo() {
        fields_.loadPicture(logo, path(kLogo));
        fields_.loadPicture(logo2, path(kLogo));
        fields_.setEnabled(Command40, true);
        fields_.setVisible(noway(1), false);
        fields_.setCaption(Command15, "Replace logo");
    }

    void finish() {
        progress("...applying other frontend settings");
        skipOnFailure([&] { fields_.setCaption(mainfrm, "Orvanta ~ " + folder_); });
        skipOnFailure([&] { re_uninoptions(fields_); });
        skipOnFailure([&] {
            fields_.showStatus(StatusLabel::ControlTips, "");
            fields_.setVisible(mainfrm, true);
            fields_.setEnabled(mainfrm, true);
        });
    }

    DamagedLines& damage(std::string_view file) { return damaged_[std::string(file)]; }

    // One message for the whole load, file by file, line by line.
    void reportDamage() {
        std::string text;
        for (const auto& [file, lines] : damaged_) {
            if (lines.empty()) continue;
            text += "\r\n" + path(file) + ":";
            for (const auto& line : lines)
                text += "\r\n  line " + std::to_string(line.line) + ": " + line.note;
        }
        if (text.empty()) return;
        dialogs_.messageBox({"Some settings of the project are damaged and could not be read as they stand." +
                                 text + "\r\nSaving the project keeps what the editor shows now.",
                             MessageButtons::Ok, MessageIcon::Exclamation, "Orvanta"});
    }

    // A hand-copied folder keeps the name of the project it was copied from; saving writes into
    // this folder all the same, the marker named after the project's name.
    void reportForeignName() {
        const std::string name = fields_.text(appName);
        if (equalsIgnoringCase(name, lastComponent(root_))) return;
        dialogs_.messageBox({"The folder \"" + root_ + "\" holds the project \"" + name +
                                 "\", whose own folder is \"" + projectRoot(vars::workspaceFolder, name) +
                                 "\".\r\nSaving writes only into \"" + root_ + "\", with the marker file \"" +
                                 markerName(name) + "\" there.",
                             MessageButtons::Ok, MessageIcon::Information, "Orvanta"});
    }

    Host& host_;
    Dialogs& dialogs_;
    ProjectFields& fields_;
    const std::string folder_;
    const std::string root_;
    std::map<std::string, DamagedLines> damaged_;
};

}  // namespace

LoadOutcome loadProject(EditorContext& context, const std::string& folder) {
    const ProjectTask task;
    if (!task.running()) return LoadOutcome::Refused;
    return loadProject(context, folder, task);
}

LoadOutcome loadProject(EditorContext& context, const std::string& folder, const ProjectTask&) {
    return ProjectLoader(context, folder).run();
}

}  // namespace orvanta
