// The simulator at the speed of its screens: opened over a project with a 1920 x 1080 background
// and 1,000 packages until it waits for the first click (goal: within 100 ms), and one step of the
// roll between two panels, painted (goal: within 2 ms, the roll ticks every millisecond).
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QTemporaryDir>
#include <QTimer>
#include <memory>
#include <string>

#include "bench_images.h"
#include "image/widget/cCrossComm.h"
#include "platform/Host.h"
#include "simulator/installPreview.h"

namespace orvanta {
namespace {

struct BenchProject {
    QTemporaryDir folder;
    std::unique_ptr<Host> host;
    std::string root;

    BenchProject() {
        HostConfig config;
        config.dataFolder = folder.path().toStdString() + "/data";
        host = createHost(config);
        cCrossComm::instance().setHost(host.get());
        root = host->toWindowsPath(folder.path().toStdString());
        c32bppDIB picture;
        bench::paint(picture, bench::Picture::Photo);
        std::vector<std::uint8_t> png;
        picture.SaveToStream_PNG(png);
        host->writeFileAtomic(root + "\\1.jpg", std::string(png.begin(), png.end()));
        std::string settings =
            "Bench App\r\nBench Ltd\r\n 1 \r\n 1 \r\n\r\n\r\n 1 \r\n 0 \r\n\r\n1048576\r\n 1 \r\n 1 \r\n"
            "bench.exe\r\n 0 \r\n 0 \r\n1.0\r\n 1 \r\n<>\r\nWindows XP\r\n 1 \r\n 0 \r\n"
            "Licence\r\nRead\r\n\r\n 0 \r\n\r\n 0 \r\n 1 \r\n 1 \r\n";
        host->writeFileAtomic(root + "\\mainsettings.cfg", settings);
        host->writeFileAtomic(root + "\\slicense.txt", "Free to use.\r\n");
        std::string packages;
        for (int package = 0; package < 1000; ++package)
            packages +=
                "Package " + std::to_string(package) + "\r\n<>\r\nAbout it\r\n1\r\n0\r\n1024\r\n0\r\n";
        host->writeFileAtomic(root + "\\packages.cfg", packages);
    }

    std::unique_ptr<installPreview> open() {
        installPreviewContext context(*host, dialogs());
        context.project = {"Bench App", root, root, "Intro", "Tips"};
        auto window = std::make_unique<installPreview>(std::move(context));
        if (!window->start()) return nullptr;
        window->show();
        window->repaint();
        return window;
    }

    static Dialogs& dialogs();
};

class SilentDialogs : public Dialogs {
public:
    DialogAnswer messageBox(const MessageBoxRequest&) override { return DialogAnswer::Ok; }
    DialogAnswer taskDialog(const TaskDialogRequest&) override { return DialogAnswer::Ok; }
    TaskDialogExAnswer taskDialogEx(const TaskDialogExRequest&) override { return {}; }
    std::string inputBox(const InputBoxRequest&) override { return {}; }
    std::string openFile(const OpenFileRequest&) override { return {}; }
    FolderBrowserAnswer browseForFolder(const FolderBrowserRequest&) override { return {}; }
};

Dialogs& BenchProject::dialogs() {
    static SilentDialogs silent;
    return silent;
}

void open_simulator(benchmark::State& state) {
    BenchProject project;
    for (auto _ : state) {
        auto window = project.open();
        if (window == nullptr) state.SkipWithError("the simulator did not start");
    }
}

void roll_step(benchmark::State& state) {
    BenchProject project;
    std::unique_ptr<installPreview> window;
    const auto rolling = [&] {
        return window->timer(WizardTimer::Timer4)->isActive() ||
               window->timer(WizardTimer::Timer5)->isActive();
    };
    for (auto _ : state) {
        if (window == nullptr || !rolling()) {
            state.PauseTiming();
            window = project.open();
            window->Command1_Click();  // to the licence, rolled
            state.ResumeTiming();
        }
        window->deliverTick(window->timer(WizardTimer::Timer4)->isActive() ? WizardTimer::Timer4
                                                                           : WizardTimer::Timer5);
        window->repaint();
    }
}

}  // namespace
}  // namespace orvanta

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    using namespace orvanta;
    benchmark::RegisterBenchmark("simulator_open_1000_packages", open_simulator)
        ->Unit(benchmark::kMillisecond)
        ->UseRealTime();
    benchmark::RegisterBenchmark("simulator_roll_step", roll_step)
        ->Unit(benchmark::kMillisecond)
        ->UseRealTime();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
