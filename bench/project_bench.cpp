// Saving and loading a project whose "\files" holds 100,000 files in 1,000 folders. The save is
// measured against a plain recursive listing of the same tree ("project_save_listing"; with each
// file's size, "project_save_sizedlisting"), since the save's work is that walk. The load is
// measured against a plain line-by-line read (std::getline) of the same files the load reads,
// keeping every line ("project_load_getline"), since the load's work is reading those lines into
// the editor's lists. scripts/bench prints each ratio, the reference's time over ours (above 1
// means faster). Times are wall-clock: the host's listing shares its stat calls with a worker
// thread, whose time the caller's CPU clock misses.
#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>
#include <memory>
#include <random>
#include <stdexcept>
#include <string>
#include <vector>

#include "core/vars.h"
#include "project/EditorControls.h"
#include "project/MemoryProjectFields.h"
#include "project/ProjectLoader.h"
#include "project/ProjectSaver.h"

namespace {

constexpr int kFolders = 1'000;
constexpr int kFilesPerFolder = 100;
constexpr std::int64_t kFiles = kFolders * kFilesPerFolder;

// A save that fails would ask; the benchmark answers as a user who gives up.
class NoDialogs : public orvanta::Dialogs {
public:
    orvanta::DialogAnswer messageBox(const orvanta::MessageBoxRequest&) override {
        return orvanta::DialogAnswer::Cancel;
    }
    orvanta::DialogAnswer taskDialog(const orvanta::TaskDialogRequest&) override {
        return orvanta::DialogAnswer::Cancel;
    }
    orvanta::TaskDialogExAnswer taskDialogEx(const orvanta::TaskDialogExRequest&) override { return {}; }
    std::string inputBox(const orvanta::InputBoxRequest&) override { return {}; }
    std::string openFile(const orvanta::OpenFileRequest&) override { return {}; }
    orvanta::FolderBrowserAnswer browseForFolder(const orvanta::FolderBrowserRequest&) override { return {}; }
};

// A workspace in the temporary folder with one project and its tree of application files,
// made once for the whole run.
class BenchProject {
public:
    BenchProject()
        : top_(std::filesystem::temp_directory_path() /
               ("orvanta-project-bench-" + std::to_string(std::random_device()()))) {
        const auto files = top_ / "Orvanta" / "myinstallers" / "Bench" / "files";
        for (int folder = 0; folder < kFolders; ++folder) {
            const auto path = files / ("folder" + std::to_string(folder));
            std::filesystem::create_directories(path);
            for (int file = 0; file < kFilesPerFolder; ++file)
                std::ofstream(path / ("file" + std::to_string(file) + ".dat")) << "data";
        }
        orvanta::HostConfig config;
        config.dataFolder = (top_ / "host").string();
        host_ = orvanta::createHost(config);
        orvanta::vars::workspaceFolder = host_->toWindowsPath((top_ / "Orvanta").string());
        root_ = orvanta::vars::workspaceFolder + "\\myinstallers\\Bench";
        filesFolder_ = files;
        fields_ = freshEditor();
        fields_->setText(orvanta::ctrl::appName, "Bench");
        fields_->setText(orvanta::ctrl::workingFolder, root_);
        fields_->setValue(orvanta::ctrl::Option3, 1);
        fields_->setValue(orvanta::ctrl::Option4, 1);
        if (save() != orvanta::SaveOutcome::Saved)
            throw std::runtime_error("the bench project cannot be saved");
    }
    ~BenchProject() { std::filesystem::remove_all(top_); }
    BenchProject(const BenchProject&) = delete;
    BenchProject& operator=(const BenchProject&) = delete;

    std::unique_ptr<orvanta::MemoryProjectFields> freshEditor() {
        return std::make_unique<orvanta::MemoryProjectFields>(host_.get());
    }
    orvanta::SaveOutcome save() {
        orvanta::EditorContext context{*host_, dialogs_, *fields_, [] { return 0.5; }};
        return orvanta::project_saver(context);
    }
    orvanta::LoadOutcome load(orvanta::ProjectFields& editor) {
        orvanta::EditorContext context{*host_, dialogs_, editor, {}};
        return orvanta::loadProject(context, root_);
    }
    const std::filesystem::path& filesFolder() const { return filesFolder_; }
    // Every file of the working set the load reads line by line.
    std::vector<std::filesystem::path> listFiles() const {
        std::vector<std::filesystem::path> found;
        for (const auto& entry : std::filesystem::directory_iterator(filesFolder_.parent_path()))
            if (entry.is_regular_file() && entry.path().extension() == ".cfg") found.push_back(entry.path());
        return found;
    }

private:
    std::filesystem::path top_;
    std::filesystem::path filesFolder_;
    std::unique_ptr<orvanta::Host> host_;
    NoDialogs dialogs_;
    std::string root_;
    std::unique_ptr<orvanta::MemoryProjectFields> fields_;
};

BenchProject& project() {
    static BenchProject instance;
    return instance;
}

void setFiles(benchmark::State& state) {
    state.SetItemsProcessed(static_cast<std::int64_t>(state.iterations()) * kFiles);
}

void project_save(benchmark::State& state) {
    auto& bench = project();
    for (auto _ : state) benchmark::DoNotOptimize(bench.save());
    setFiles(state);
}

// Each load goes into a fresh editor, as the lists of the application files are added to.
void project_load(benchmark::State& state) {
    auto& bench = project();
    for (auto _ : state) {
        state.PauseTiming();
        auto editor = bench.freshEditor();
        state.ResumeTiming();
        benchmark::DoNotOptimize(bench.load(*editor));
        state.PauseTiming();
        editor.reset();
        state.ResumeTiming();
    }
    setFiles(state);
}

// What the load does at least: every line of the same files, read and kept.
void lineReading(benchmark::State& state) {
    const auto files = project().listFiles();
    for (auto _ : state) {
        std::vector<std::string> lines;
        for (const auto& file : files) {
            std::ifstream in(file);
            for (std::string line; std::getline(in, line);) lines.push_back(line);
        }
        benchmark::DoNotOptimize(lines.data());
    }
    setFiles(state);
}

void listing(benchmark::State& state) {
    const auto& folder = project().filesFolder();
    for (auto _ : state) {
        std::int64_t entries = 0;
        for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
            benchmark::DoNotOptimize(entry.path().native().data());
            ++entries;
        }
        benchmark::DoNotOptimize(entries);
    }
    setFiles(state);
}

// The same listing with each file's size, as a Windows listing gives it for free and as the save
// needs it: on POSIX every size costs a stat of its own.
void sizedListing(benchmark::State& state) {
    const auto& folder = project().filesFolder();
    for (auto _ : state) {
        std::uintmax_t bytes = 0;
        for (const auto& entry : std::filesystem::recursive_directory_iterator(folder))
            if (entry.is_regular_file()) bytes += entry.file_size();
        benchmark::DoNotOptimize(bytes);
    }
    setFiles(state);
}

}  // namespace

BENCHMARK(project_save)->Arg(kFiles)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(listing)->Name("project_save_listing")->Arg(kFiles)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(sizedListing)
    ->Name("project_save_sizedlisting")
    ->Arg(kFiles)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();
BENCHMARK(project_load)->Arg(kFiles)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(lineReading)
    ->Name("project_load_getline")
    ->Arg(kFiles)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();

BENCHMARK_MAIN();
