#include "builder/PackageExe.h"

#include "builder/BatchFiles.h"
#include "builder/BuildSteps.h"
#include "core/RegistryAPI.h"
#include "core/commonFunctions.h"
#include "core/modShellAndWait.h"
#include "core/vars.h"
#include "platform/CaseFolding.h"
#include "project/EditorControls.h"
#include "project/ProjectSaver.h"

namespace orvanta {

namespace {

// The captions of the steps, each set exactly where the step begins.
constexpr const char* kSaving = "Saving project...";
constexpr const char* kCopyingRootFiles = "Copying root files...";
constexpr const char* kApplicationRuntime = "Creating application files package runtime...";
constexpr const char* kSetupRuntime = "Creating setup package runtime...";
constexpr const char* kPackagingSetup = "Packaging setup files...";
constexpr const char* kPackagingApplication = "Packaging application files, fonts and executables...";
constexpr const char* kRenaming = "Renaming the package to the one selected...";
constexpr const char* kCleaning = "Cleaning temporary files...";

class Pipeline {
public:
    Pipeline(EditorContext& context, const BuildSetup& setup, BuildProgress& progress,
             const std::string& filesFolder)
        : context_(context),
          host_(context.host),
          setup_(setup),
          progress_(progress),
          filesFolder_(filesFolder),
          steps_(context.host) {}

    BuildResult run() {
        try {
            save();
            stage();
            writeBatchFiles();
            packSetupFiles();
            packApplicationFiles();
            rename();
            finish();
            progress_.close();
            return {true, package_, {}, {}};
        } catch (const BuildStopped& stop) {
            progress_.close();
            tell(stop);
            return {false, {}, stop.step, stop.reason};
        }
    }

private:
    std::string working() const { return context_.fields.text(ctrl::workingFolder); }
    std::string compiled() const { return working() + "\\compiled"; }
    bool winRar() const { return setup_.route() == ArchiverRoute::WinRar; }

    void raise(int by) { progress_.setValue(progress_.value() + by); }
    void caption(const char* text) {
        step_ = text;
        progress_.setCaption(text);
    }

    void save() {
        if (setup_.packagerItemIndex) *setup_.packagerItemIndex = 0;
        progress_.show();
        raise(20);
        caption(kSaving);
        const SaveOutcome saved = project_saver(context_);
        if (saved != SaveOutcome::Saved)
            throw BuildStopped{step_, saved == SaveOutcome::Refused
                                          ? "Another save or load of the project is still running."
                                          : "The project could not be saved, so nothing was packed."};
        progress_.processPendingEvents();
        raise(5);
        caption(kCopyingRootFiles);
    }

    void stage() {
        const std::string a = setup_.applicationFolder;
        const std::string w = working();
        steps_.copy(step_, a + "\\i\\check.png", w + "\\check.png");
        steps_.copy(step_, a + "\\i\\ok.png", w + "\\ok.png");
        steps_.copy(step_, a + "\\data\\install", w + "\\install.exe");
        steps_.copy(step_, a + "\\data\\uninstall", w + "\\uninstall.exe");
        steps_.ensureFolder(step_, compiled());
        if (winRar())
            steps_.copy(step_, a + "\\data\\package", compiled() + "\\package.exe");
        else
            steps_.copy(step_, a + "\\data\\package2", compiled() + "\\package2.exe");
        stageDefaultBackground();
        steps_.copy(step_, a + "\\data\\install.exe.manifest", w + "\\install.exe.manifest");
        steps_.copy(step_, a + "\\data\\install.exe.manifest", w + "\\start.exe.manifest");
        runHook(setup_.beforeArchiving);
        raise(5);
        caption(kApplicationRuntime);
    }

    // The test looks at the project's top folder, the copy goes to the working set.
    void stageDefaultBackground() {
        const std::string top =
            setup_.workspaceFolder + "\\myinstallers\\" + context_.fields.text(ctrl::appName);
        const std::string fallback = setup_.workspaceFolder + "\\backgrounds\\default.jpg";
        if (fileExists(host_, top + "\\1.jpg") == kFalse && fileExists(host_, fallback) == kTrue)
            steps_.copy(step_, fallback, working() + "\\1.jpg");
    }

    BatchValues batchValues() const {
        const ProjectFields& fields = context_.fields;
        BatchValues values;
        values.workingFolder = working();
        values.workspaceFolder = setup_.workspaceFolder;
        values.archiverFolder = winRar() ? setup_.rarFolder : setup_.sevenZipFolder;
        values.compressionLevel = setup_.compressionLevel;
        values.filesFolder = filesFolder_;
        values.hasFonts = fields.listCount(ctrl::fonts) > 0;
        values.anyFile = fields.text(ctrl::anyFile);
        values.fullLicenseFile = fields.text(ctrl::fullLicenseFile);
        // The updater and its two companions travel with the package when "Silent update" is ticked.
        values.updaterFiles = fields.value(ctrl::updateSilent) == 1;
        return values;
    }

    void writeBatchFiles() {
        if (setup_.compressorChoice != "winrar" && setup_.compressorChoice != "7zip")
            throw BuildStopped{step_, "No archiver is chosen (\"" + setup_.compressorChoice +
                                          "\"): choose 7-Zip or WinRAR in the package dialog."};
        BatchValues values = batchValues();
        steps_.write(step_, batch("\\packager.bat"),
                     batchFileText(applicationBatchLines(setup_.route(), values)));
        raise(5);
        caption(kSetupRuntime);
        values.hashFileName = findHashFileName();
        steps_.write(step_, batch("\\packager2.bat"), batchFileText(setupBatchLines(setup_.route(), values)));
    }

    std::string batch(const char* name) const { return setup_.workspaceFolder + name; }

    // Every name of the folder, sub-folders included, is looked at; the last that ends in "hsh" wins.
    std::string findHashFileName() {
        std::string found;
        for (const DirectoryEntry& entry : host_.listDirectory(working() + "\\*", true)) {
            if (entry.name != "." && entry.name != ".." && toLowerCase(entry.name).ends_with("hsh"))
                found = entry.name;
            progress_.processPendingEvents();
        }
        return found;
    }

    void packSetupFiles() {
        progress_.hidePackageDialog();
        caption(kPackagingSetup);
        progress_.processPendingEvents();
        progress_.pause(1500);
        requireArchiver();
        const std::string archive = compiled() + (winRar() ? "\\package.exe" : "\\package.7z");
        const auto before = host_.fileLength(archive);
        shellAndWait(host_, batch("\\packager2.bat"), 0, 0);
        steps_.requireGrowth(step_, archive, before);
        if (winRar()) {
            steps_.rename(step_, archive, compiled() + "\\package.rar");
            progress_.processPendingEvents();
            raise(25);
        }
    }

    void requireArchiver() {
        const std::string program =
            winRar() ? setup_.rarFolder + "rar.exe" : setup_.sevenZipFolder + "7z.exe";
        if (fileExists(host_, program) == kFalse)
            throw BuildStopped{step_, "The archiver " + program +
                                          " was not found. Install it, or choose the other "
                                          "archiver in the package dialog."};
    }

    void packApplicationFiles() {
        caption(kPackagingApplication);
        progress_.processPendingEvents();
        RegistryAPI registry(host_);
        const int verbose = registry.readSettingNumber(setup_.settingsKey, "verbose", 0);
        const std::string archive = compiled() + (winRar() ? "\\package.rar" : "\\package.7z");
        const auto before = host_.fileLength(archive);
        shellAndWait(host_, batch("\\packager.bat"), verbose == 1 ? 1 : 0, 0);
        steps_.requireGrowth(step_, archive, before);
        raise(35);
        progress_.processPendingEvents();
        caption(kRenaming);
    }

    void rename() {
        package_ = compiled() + "\\" + vars::finalPackageFile;
        const std::string joined = compiled() + (winRar() ? "\\package.rar" : "\\package.exe");
        if (!winRar() && equalsIgnoringCase(vars::finalPackageFile, "package.exe"))
            throw BuildStopped{step_, "The final package cannot be named \"package.exe\": the build uses " +
                                          joined + " for its own work. Choose another final package name."};
        steps_.requireOutput(step_, joined);
        if (fileExists(host_, package_) == kTrue) steps_.remove(step_, package_);
        steps_.rename(step_, joined, package_);
        if (!winRar()) {
            host_.deleteFile(compiled() + "\\package.7z");
            host_.deleteFile(compiled() + "\\package2.exe");
        }
        if (setup_.afterBuild) runHook([&] { return setup_.afterBuild(package_); });
    }

    void finish() {
        if (progress_.openFolderWhenDone()) shellOpen(host_, context_.dialogs, compiled(), "");
        if (progress_.openPackageWhenDone()) shellOpen(host_, context_.dialogs, package_, "");
        raise(5);
        caption(kCleaning);
        host_.deleteFile(working() + "\\install.exe");
        host_.deleteFile(working() + "\\uninstall.exe");
        progress_.processPendingEvents();
    }

    void runHook(const std::function<std::string()>& hook) {
        if (!hook) return;
        if (std::string error = hook(); !error.empty()) throw BuildStopped{step_, error};
    }

    void tell(const BuildStopped& stop) {
        std::string text = "The package was not built. It stopped at \"" + stop.step + "\"\r\n" + stop.reason;
        if (stop.step != kSaving) text += "\r\nThe project was saved before the build began.";
        context_.dialogs.messageBox({text, MessageButtons::Ok, MessageIcon::Exclamation, "Orvanta"});
    }

    EditorContext& context_;
    Host& host_;
    const BuildSetup& setup_;
    BuildProgress& progress_;
    const std::string filesFolder_;
    BuildSteps steps_;
    std::string step_;
    std::string package_;
};

}  // namespace

BuildResult packageexe(EditorContext& context, const BuildSetup& setup, BuildProgress& progress,
                       const std::string& filesFolder) {
    return Pipeline(context, setup, progress, filesFolder).run();
}

}  // namespace orvanta
