// orvanta-build: the final package of a saved project, built without windows (for CI).
#include <cstdio>
#include <string>
#include <vector>

#include "builder/command/BuildOptions.h"
#include "builder/command/ConsoleDialogs.h"
#include "builder/command/ExitCodes.h"
#include "builder/command/HeadlessBuild.h"
#include "builder/command/ProcessStreams.h"
#include "core/RuntimeError.h"

#ifdef ORVANTA_WIZARD_SCREENS
#include <QApplication>

#include "image/widget/cCrossComm.h"
#include "simulator/WizardScreens.h"

namespace {

// The wizard played offscreen, as the simulator shows it, in a Qt application of its own.
std::string writeScreens(orvanta::Host& host, orvanta::Dialogs& dialogs,
                         const orvanta::WizardProject& project, const std::string& folder) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    int argc = 1;
    char name[] = "orvanta-build";
    char* argv[] = {name, nullptr};
    QApplication application(argc, argv);
    orvanta::cCrossComm::instance().setHost(&host);
    const auto result = orvanta::writeWizardScreens(host, dialogs, project, QString::fromStdString(folder));
    for (const QString& file : result.files) std::fprintf(stderr, "%s\n", file.toLocal8Bit().constData());
    return result.error;
}

}  // namespace
#endif

int main(int argc, char** argv) {
    using namespace orvanta;
    const ParsedOptions parsed = parseBuildOptions(std::vector<std::string>(argv + 1, argv + argc));
    if (!parsed.options) {
        std::fprintf(stderr, "orvanta-build: %s\nTry \"orvanta-build --help\".\n", parsed.error.c_str());
        return exitcode::kUsage;
    }
    if (parsed.options->help) {
        std::fputs(buildHelpText().c_str(), stdout);
        return exitcode::kBuilt;
    }
    std::FILE* packagePath = setAsideStandardOutput(parsed.options->verbose);
    ConsoleOutput messages(stderr);
    ConsoleDialogs dialogs(messages);
    HostConfig config;
    config.commandLineSet = true;  // the entry routine must not take our arguments for a marker
    try {
        const std::unique_ptr<Host> host = createHost(config);
#ifdef ORVANTA_WIZARD_SCREENS
        const ScreensWriter screens = writeScreens;
#else
        const ScreensWriter screens;
#endif
        const HeadlessResult result = runHeadlessBuild(*host, dialogs, messages, *parsed.options, screens);
        if (!result.package.empty()) std::fprintf(packagePath, "%s\n", result.package.c_str());
        return result.exitCode;
    } catch (const RuntimeError& error) {
        messages.line("Run-time error " + std::to_string(error.number()) + ": " + error.description());
        return exitcode::kBuildStopped;
    }
}
