// A whole build of a project whose "\files" holds 100,000 files in 1,000 folders, through the
// command processor and the real 7-Zip ("build_package"), against the archiver's own work for the
// same build: the same 7z calls started directly, one after the other, and the join
// ("build_package_archiver"). scripts/bench prints the ratio of the two speeds, the archiver's
// time over the whole build's: 0.95 and above means our own work (save, staging, batch files,
// command processor, renames) takes under 5% of the build. Wall-clock times: the archiver runs
// in processes of its own.
#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <random>
#include <sstream>
#include <string>
#include <vector>

#include "builder/PackageExe.h"
#include "core/RegistryAPI.h"
#include "core/vars.h"
#include "project/EditorControls.h"
#include "project/MemoryProjectFields.h"
#include "project/ProjectIndex.h"
#include "project/ProjectSaver.h"

namespace {

namespace fs = std::filesystem;
using namespace orvanta;

constexpr int kFolders = 1'000;
constexpr int kFilesPerFolder = 100;
constexpr std::int64_t kFiles = kFolders * kFilesPerFolder;

class NoDialogs : public Dialogs {
public:
    DialogAnswer messageBox(const MessageBoxRequest& request) override {
        std::fprintf(stderr, "%s\n", request.text.c_str());
        return DialogAnswer::Cancel;
    }
    DialogAnswer taskDialog(const TaskDialogRequest&) override { return DialogAnswer::Cancel; }
    TaskDialogExAnswer taskDialogEx(const TaskDialogExRequest&) override { return {}; }
    std::string inputBox(const InputBoxRequest&) override { return {}; }
    std::string openFile(const OpenFileRequest&) override { return {}; }
    FolderBrowserAnswer browseForFolder(const FolderBrowserRequest&) override { return {}; }
};

// The window's part of a build with nothing to show and no pause to wait out.
class SilentProgress : public BuildProgress {
public:
    void show() override {}
    int value() const override { return value_; }
    void setValue(int value) override { value_ = value; }
    void setCaption(const std::string&) override {}
    void processPendingEvents() override {}
    void pause(int) override {}
    void hidePackageDialog() override {}
    bool openFolderWhenDone() const override { return false; }
    bool openPackageWhenDone() const override { return false; }
    void close() override {}

private:
    int value_ = 0;
};

std::string sevenZipOnPath() {
    std::istringstream path(std::getenv("PATH") ? std::getenv("PATH") : "");
    for (std::string folder; std::getline(path, folder, ':');)
        if (!folder.empty() && access((folder + "/7z").c_str(), X_OK) == 0) return folder + "/7z";
    throw std::runtime_error("7z is not on the PATH (Debian: p7zip-full)");
}

// The archivers write their progress on standard output; neither side pays for a terminal.
class QuietOutput {
public:
    QuietOutput() : saved_(dup(1)) {
        const int null = open("/dev/null", O_WRONLY);
        dup2(null, 1);
        close(null);
    }
    ~QuietOutput() {
        dup2(saved_, 1);
        close(saved_);
    }

private:
    int saved_;
};

// A workspace with the project "Bench", saved once, and an application folder with stubs.
class BenchBuild {
public:
    BenchBuild()
        : top_(fs::temp_directory_path() / ("orvanta-build-bench-" + std::to_string(std::random_device()()))),
          sevenZip_(sevenZipOnPath()) {
        makeApplicationFolder();
        HostConfig config;
        config.applicationFolder = "Z:" + windows(top_ / "app");
        config.dataFolder = (top_ / "data").string();
        host_ = createHost(config);
        vars::workspaceFolder = "Z:" + windows(top_ / "Orvanta");
        createProjectTree(*host_, vars::workspaceFolder, "Bench");
        root_ = top_ / "Orvanta" / "myinstallers" / "Bench";
        for (int folder = 0; folder < kFolders; ++folder) {
            const auto path = root_ / "files" / ("folder" + std::to_string(folder));
            fs::create_directories(path);
            for (int file = 0; file < kFilesPerFolder; ++file)
                std::ofstream(path / ("file" + std::to_string(file) + ".dat")) << "data " << folder << file;
        }
        fields_ = std::make_unique<MemoryProjectFields>(host_.get());
        fields_->setText(ctrl::appName, "Bench");
        fields_->setText(ctrl::workingFolder, vars::workspaceFolder + "\\myinstallers\\Bench");
        fields_->setText(ctrl::finalPackageName, "Bench Setup.exe");
        fields_->setText(ctrl::appVersion, "1.0");
        fields_->setValue(ctrl::Option3, 1);
        fields_->setValue(ctrl::Option4, 1);
    }
    ~BenchBuild() {
        std::error_code ignored;
        fs::remove_all(top_, ignored);
    }

    bool build() {
        NoDialogs dialogs;
        EditorContext context{*host_, dialogs, *fields_, [] { return 0.0; }};
        BuildSetup setup;
        setup.compressorChoice = "7zip";
        // The host registers 7-Zip from the PATH, with a link named "7z.exe" in the folder it gives.
        setup.sevenZipFolder =
            RegistryAPI(*host_).readRegistryString(
                "HKLM\\Software\\Microsoft\\Windows\\CurrentVersion\\App Paths\\7zFM.exe", "Path", "") +
            "\\";
        setup.workspaceFolder = vars::workspaceFolder;
        setup.applicationFolder = "Z:" + windows(top_ / "app");
        setup.settingsKey = "HKCU\\Software\\Orvanta\\Settings";
        SilentProgress progress;
        QuietOutput quiet;
        return packageexe(context, setup, progress, "\\files").built;
    }

    // What the archiver does in that build: a call per setup file (the missing ones fail as they
    // do there), one per folder, and the join.
    bool archive() {
        const fs::path archive = root_ / "compiled" / "package.7z";
        fs::remove(archive);
        QuietOutput quiet;
        for (const auto& entry : fs::directory_iterator(root_))
            if (entry.path().extension() == ".hsh") sevenZipAdd(archive, entry.path());
        for (const char* name : {"files.cfg",
                                 "folders.cfg",
                                 "mainsettings.cfg",
                                 "dependencies.cfg",
                                 "appdatalocations.cfg",
                                 "registrylocations.cfg",
                                 "intro.cfg",
                                 "tips.cfg",
                                 "uninstallIntro.cfg",
                                 "packages.cfg",
                                 "uninstallEnd.cfg",
                                 "ok.png",
                                 "check.png",
                                 "install.exe",
                                 "install.exe.manifest",
                                 "uninstall.exe",
                                 "logo.png",
                                 "1.jpg",
                                 "preview.png",
                                 "slicense.txt",
                                 "prgbar.ocx",
                                 "fonts.cfg",
                                 "files",
                                 "packages",
                                 "settingsset"})
            sevenZipAdd(archive, root_ / name);
        const std::string join = "cat '" + (top_ / "app" / "data" / "package2").string() + "' '" +
                                 archive.string() + "' > '" + (root_ / "compiled" / "joined.exe").string() +
                                 "'";
        return std::system(join.c_str()) == 0;
    }

private:
    static std::string windows(const fs::path& path) {
        std::string text = path.string();
        for (char& c : text)
            if (c == '/') c = '\\';
        return text;
    }

    void sevenZipAdd(const fs::path& archive, const fs::path& added) {
        const std::string command =
            "'" + sevenZip_ + "' a -t7z '" + archive.string() + "' '" + added.string() + "'";
        [[maybe_unused]] const int status = std::system(command.c_str());
    }

    void makeApplicationFolder() {
        for (const char* name : {"data/install", "data/uninstall", "data/package", "data/package2",
                                 "data/install.exe.manifest", "i/check.png", "i/ok.png"}) {
            fs::create_directories((top_ / "app" / name).parent_path());
            std::ofstream(top_ / "app" / name) << name;
        }
    }

    fs::path top_;
    std::string sevenZip_;
    fs::path root_;
    std::unique_ptr<Host> host_;
    std::unique_ptr<MemoryProjectFields> fields_;
};

BenchBuild& bench() {
    static BenchBuild instance;
    return instance;
}

// The project is made before the first timing starts.
void build_package(benchmark::State& state) {
    BenchBuild& project = bench();
    for (auto _ : state)
        if (!project.build()) state.SkipWithError("the build stopped");
    state.SetItemsProcessed(static_cast<std::int64_t>(state.iterations()) * kFiles);
}

void archiverOnly(benchmark::State& state) {
    BenchBuild& project = bench();
    for (auto _ : state)
        if (!project.archive()) state.SkipWithError("the join failed");
    state.SetItemsProcessed(static_cast<std::int64_t>(state.iterations()) * kFiles);
}

}  // namespace

BENCHMARK(build_package)->Arg(kFiles)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(archiverOnly)
    ->Name("build_package_archiver")
    ->Arg(kFiles)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();

BENCHMARK_MAIN();
