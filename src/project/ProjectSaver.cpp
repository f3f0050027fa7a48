#include "project/ProjectSaver.h"

#include <array>
#include <string_view>

#include "core/DirRecurse.h"
#include "core/RuntimeError.h"
#include "core/commonFunctions.h"
#include "core/vars.h"
#include "project/ApplicationFiles.h"
#include "project/ContentList.h"
#include "project/DependencyList.h"
#include "project/DesktopIni.h"
#include "project/EditorControls.h"
#include "project/FontFolderScan.h"
#include "project/FontList.h"
#include "project/IntegrityRecord.h"
#include "project/LeftoverTemporaries.h"
#include "project/LocationList.h"
#include "project/MainSettings.h"
#include "project/MainSettingsFields.h"
#include "project/MarkerFile.h"
#include "project/ProjectPaths.h"
#include "project/SettingsSets.h"
#include "project/SkipFailures.h"
#include "project/TextFile.h"

namespace orvanta {

namespace {

using namespace ctrl;
using namespace projectfile;

// Roots where a wipe of the installation folder would reach the user's own data.
bool refusesCleanAll(const std::string& installPath) {
    static constexpr std::array<std::string_view, 4> kRoots = {
        "User Local ApplicationData\\", "Themes\\", "User ApplicationData (Roaming)\\", "User MyDocuments\\"};
    for (const auto root : kRoots)
        if (installPath == root) return true;
    return false;
}

std::string sizeText(double bytes) {
    return std::to_string(static_cast<long long>(bytes));
}

std::vector<std::string> textsOf(const std::vector<ListItem>& items) {
    std::vector<std::string> texts;
    texts.reserve(items.size());
    for (const auto& item : items) texts.push_back(item.text);
    return texts;
}

std::vector<Dependency> dependenciesOf(const std::vector<ListItem>& items) {
    std::vector<Dependency> list;
    list.reserve(items.size());
    for (const auto& item : items) list.push_back({item.text, item.selected});
    return list;
}

class ProjectSaver {
public:
    explicit ProjectSaver(EditorContext& context)
        : host_(context.host),
          fields_(context.fields),
          random_(context.random ? context.random : timerSeededRandom(context.host)),
          appName_(fields_.text(ctrl::appName)),
          workingSet_(fields_.text(workingFolder)),
          root_(projectRootOnDisk(host_, workingSet_)),
          filesBase_(inFolder(root_, projectfolder::kFiles)) {}

    // Everything up to the free texts; a file that cannot be written throws RuntimeError.
    void writeFiles() {
        prepare();
        writeSettings();
        writeLists();
        writeContentFolders();
        writeLicense();
        writeLocations();
        writeTexts();
    }

    void seal() {
        skipOnFailure([&] { writeFolderIcon(); });
        skipOnFailure([&] { writeRecord(); });
        skipOnFailure([&] { finish(); });
    }

private:
    std::string path(std::string_view name) const { return inFolder(workingSet_, name); }
    bool exists(const std::string& file) const { return fileExists(host_, file) == kTrue; }

    static void must(bool done, const std::string& file) {
        if (!done) throw RuntimeError(kErrorNumberPathFileAccess, "Path/File access error (" + file + ")");
    }
    void write(std::string_view name,
               bool (*writer)(Host&, const std::string&, const std::vector<std::string>&),
               const std::vector<std::string>& lines) {
        must(writer(host_, path(name), lines), path(name));
    }
    void createFolderIfMissing(const std::string& folder) {
        if (folderExists(host_, folder) == kFalse) must(host_.createFolder(folder), folder);
    }

    // One walk of the root's "\files" gives both lists and, for the root's working set, the size:
    // nothing the saver writes lies below it. The executables have no list in the editor, so
    // there is no walk of their folder to fill one.
    void prepare() {
        fields_.showStatus(StatusLabel::ControlTips, "Saving project...");
        removeLeftoverTemporaries(host_, root_, workingSet_);
        lists_ = refreshedLists(host_, filesBase_);
        const std::string ownFiles = path(projectfolder::kFiles);
        fields_.setText(appSize,
                        sizeText(ownFiles == filesBase_ ? lists_.size : folderSize(host_, ownFiles, true)));
        if (refusesCleanAll(fields_.text(installPath))) fields_.setValue(cleanAll, 0);
        scanFontsFolder(host_, fields_, workingSet_);
    }

    void writeSettings() {
        const std::string marker = markerPath(root_, appName_);
        must(writeMarker(host_, marker, appName_), marker);
        const std::string any = fields_.text(anyFile);
        const MainSettings settings = mainSettingsOf(fields_, !any.empty() && exists(path(any)));
        vars::finalPackageFile = finalPackageFileOf(*settings.finalPackageName, *settings.appVersion);
        must(writeMainSettings(host_, path(kMainSettings), settings), path(kMainSettings));
    }

    void writeLists() {
        must(writeDependencyList(host_, path(kDependencies), dependenciesOf(fields_.listItems(dependencies))),
             path(kDependencies));
        const std::string defaultBackground =
            inFolder(backgroundsFolder(vars::workspaceFolder), "default.jpg");
        if (!exists(path(kBackground)) && exists(defaultBackground))
            must(host_.copyFile(defaultBackground, path(kBackground)), path(kBackground));
        write(kFonts, writeFontList, textsOf(fields_.listItems(fonts)));
        write(kFiles, writeContentList, refreshed(files, lists_.files));
        write(kFolders, writeContentList, refreshed(folders, lists_.folders));
    }

    const std::vector<std::string>& refreshed(ControlName list, const std::vector<std::string>& entries) {
        fields_.clearList(list);
        fields_.addListItems(list, entries);
        return entries;
    }

    void writeContentFolders() {
        if (!exists(path(kPackages))) must(host_.writeFileAtomic(path(kPackages), ""), path(kPackages));
        createFolderIfMissing(path(projectfolder::kPackages));
        createFolderIfMissing(path(projectfolder::kMsi));
    }

    // The text goes to the working set, but an emptied text removes the project root's file:
    // outside the root the two are different files, and the difference is kept on purpose.
    void writeLicense() {
        if (fields_.value(resumedLicenseEnabled) != 1) return;
        const std::string text = fields_.text(resumedLicenseText);
        const std::string rootLicense = inFolder(root_, kLicense);
        if (!text.empty()) {
            must(writeTextFile(host_, path(kLicense), text), path(kLicense));
        } else if (exists(rootLicense)) {
            must(host_.deleteFile(rootLicense), rootLicense);
        }
    }

    void writeLocations() {
        write(kRegistryLocations, writeLocationList, textsOf(fields_.listItems(registryLocations)));
        createFolderIfMissing(path(projectfolder::kSettingsSet));
        // Replaced in place: a save stopped at any point leaves it there.
        const std::string index = settingsSetIndexFile(workingSet_);
        must(host_.writeFileAtomic(index, ""), index);
        if (const auto failed = writeSettingsSets(host_, workingSet_, settingsSets))
            throw RuntimeError(kErrorNumberPathFileAccess, "Path/File access error (" + *failed + ")");
        write(kAppDataLocations, writeLocationList, textsOf(fields_.listItems(appDataLocations)));
    }

    void writeTexts() {
        for (const auto& [name, box] :
             {std::pair{kIntro, introText}, std::pair{kTips, tipsText},
              std::pair{kUninstallIntro, uninstallIntroText}, std::pair{kUninstallEnd, uninstallEndText}})
            must(writeTextFile(host_, path(name), fields_.text(box)), path(name));
    }

    // Written once: the folder keeps the icon it was given first.
    // An empty name (the loader clears the field with its check box) names no executable either:
    // an icon written for it would stand for good, as the file is never written again.
    void writeFolderIcon() {
        const std::string executable = fields_.text(mainExecutable);
        const std::string ini = inFolder(root_, kDesktopIni);
        if (mainExecutableClearsCheck(executable) || host_.fileAttributes(ini)) return;
        writeDesktopIni(host_, ini, inFolder(filesBase_, executable));
        host_.setFileAttributes(ini, kAttributeHidden | kAttributeSystem);
        host_.startProcess("attrib +r \"" + root_ + "\"", kWindowHidden);
    }

    void writeRecord() {
        IntegrityInputs inputs;
        inputs.workingFolder = workingSet_;
        inputs.applicationFolder = host_.applicationFolder();
        inputs.anyFile = fields_.text(anyFile);
        inputs.mainExecutable = fields_.text(mainExecutable);
        inputs.mainExecutableChecked = fields_.value(Check23) == 1;
        inputs.appVersion = fields_.text(appVersion);
        for (std::size_t i = 0; i < inputs.settingsSetTypes.size(); ++i)
            inputs.settingsSetTypes[i] = settingsSets.sets[i].type;
        writeIntegrityRecord(host_, inputs, random_);
    }

    // A saved editor has nothing selected in its lists, so nothing to remove or move.
    void finish() {
        for (const auto list : {dependencies, fonts, registryLocations, appDataLocations})
            fields_.setListIndex(list, -1);
        for (const auto button :
             {Command4, Command12, Command3, Command19, Command42, Command43, Command47, Command48})
            fields_.setEnabled(button, false);
        fields_.showStatus(StatusLabel::ControlTips, "Project Saved!");
        fields_.processPendingEvents();
    }

    Host& host_;
    ProjectFields& fields_;
    UnitRandom random_;
    const std::string appName_;
    const std::string workingSet_;
    const std::string root_;
    const std::string filesBase_;
    ApplicationFileLists lists_;
};

// The description ends in the file's path; the sentence gets a line of its own so the two do not
// run together.
DialogAnswer askRetry(Dialogs& dialogs, const RuntimeError& error) {
    return dialogs.messageBox(
        {error.description() + std::to_string(error.number()) + "\r\nSomething went wrong while saving.",
         MessageButtons::RetryCancel, MessageIcon::Exclamation, "Orvanta"});
}

}  // namespace

SaveOutcome project_saver(EditorContext& context) {
    const ProjectTask task;
    if (!task.running()) return SaveOutcome::Refused;
    return project_saver(context, task);
}

SaveOutcome project_saver(EditorContext& context, const ProjectTask&) {
    while (true) {
        try {
            ProjectSaver(context).writeFiles();
            break;
        } catch (const RuntimeError& error) {
            if (askRetry(context.dialogs, error) != DialogAnswer::Retry) return SaveOutcome::Cancelled;
        }
    }
    ProjectSaver(context).seal();
    return SaveOutcome::Saved;
}

}  // namespace orvanta
