#include "builder/command/HeadlessBuild.h"

#include <filesystem>

#include "builder/PackageChecks.h"
#include "builder/PackageExe.h"
#include "builder/command/BuildHooks.h"
#include "builder/command/ExitCodes.h"
#include "builder/command/ProcessSetup.h"
#include "builder/command/TerminalProgress.h"
#include "core/commonFunctions.h"
#include "platform/AnsiText.h"
#include "project/EditorControls.h"
#include "project/MemoryProjectFields.h"
#include "project/ProjectLoader.h"
#include "project/ProjectPaths.h"
#include "project/WorkingSetChoice.h"
#include "setup/InstallWizard.h"

namespace orvanta {

namespace {

// No window to move between: the checks' moves of page and focus have nowhere to go.
class NoForm : public CheckedForm {
public:
    void showPage(int) override {}
    void focus(ControlName, Caret) override {}
};

std::string projectRoot(Host& host, const std::string& hostFolder) {
    std::error_code error;
    std::filesystem::path path = std::filesystem::absolute(hostFolder, error).lexically_normal();
    std::string root = host.toWindowsPath(path.string());
    while (root.size() > 3 && root.back() == '\\') root.pop_back();
    return root;
}

// The working set the edition and version name, or nothing when there is none (and why is told).
WorkingSetChoice findWorkingSet(Host& host, const BuildOptions& options, ConsoleOutput& messages) {
    const std::string root = projectRoot(host, options.projectFolder);
    const std::string shownRoot = utf8ToAnsi(host.toHostPath(root));
    if (fileExists(host, root + "\\mainsettings.cfg") == kFalse) {
        messages.line("No saved project in " + shownRoot + " (mainsettings.cfg is missing).");
        return {};
    }
    WorkingSetChoice choice =
        chooseWorkingSet(root, options.edition, options.version,
                         [&](const std::string& f) { return folderExists(host, f) == kTrue; });
    if (!choice.folder)
        messages.line("The project in " + shownRoot + " has no working set for the edition \"" +
                      options.edition + "\" and the version \"" + options.version + "\".");
    return choice;
}

HeadlessResult fail(ConsoleOutput& messages, int exitCode, const std::string& text) {
    messages.line(text);
    return {exitCode, {}};
}

HeadlessResult writeScreens(Host& host, Dialogs& dialogs, ConsoleOutput& messages,
                            const BuildOptions& options, const ProjectFields& fields,
                            const ScreensWriter& screens) {
    if (!screens)
        return fail(messages, exitcode::kUsage,
                    "This orvanta-build was made without windows: --screens is not available.");
    const std::string name = fields.text(ctrl::appName);
    // The folder given, wherever it lies: a project outside the workspace is played as well.
    const WizardProject project{name, projectRoot(host, options.projectFolder),
                                fields.text(ctrl::workingFolder), fields.text(ctrl::introText),
                                fields.text(ctrl::tipsText)};
    const std::string error = screens(host, dialogs, project, options.screensFolder);
    if (!error.empty())
        return fail(messages, exitcode::kBuildStopped, "The screens were not all written: " + error + ".");
    return {exitcode::kBuilt, options.screensFolder};
}

}  // namespace

HeadlessResult runHeadlessBuild(Host& host, Dialogs& dialogs, ConsoleOutput& messages,
                                const BuildOptions& options, const ScreensWriter& screens) {
    ProcessSetup process = setUpProcess(host, dialogs, options);
    // The screens need no archiver.
    if (!process.error.empty() && (options.screensFolder.empty() || process.build.workspaceFolder.empty()))
        return fail(messages, exitcode::kNotFound, process.error);

    const WorkingSetChoice choice = findWorkingSet(host, options, messages);
    if (!choice.folder) return {exitcode::kNotFound, {}};

    MemoryProjectFields fields(&host);
    EditorContext context{host, dialogs, fields, {}};
    // Always the same letter, so the integrity record keeps its name from build to build.
    if (options.reproducible) context.random = [] { return 0.0; };
    if (loadProject(context, *choice.folder) != LoadOutcome::Loaded)
        return fail(
            messages, exitcode::kNotFound,
            "The project in " + utf8ToAnsi(host.toHostPath(*choice.folder)) + " could not be loaded.");

    if (!options.screensFolder.empty())
        return writeScreens(host, dialogs, messages, options, fields, screens);

    NoForm form;
    const PackageCheckResult checks = runPackageChecks(host, dialogs, fields, form);
    for (const std::string& repair : checks.repairs) messages.line("Repaired: " + repair);
    if (!checks.passed())
        return fail(
            messages, exitcode::kCheckFailed + checks.failedCheck,
            "Check " + std::to_string(checks.failedCheck) + " of the package failed; nothing was built.");

    const std::string hookError = addBuildHooks(host, options, *choice.folder, process.build);
    if (!hookError.empty()) return fail(messages, exitcode::kUsage, hookError);

    TerminalProgress progress(messages);
    const BuildResult built = packageexe(context, process.build, progress, "\\files");
    if (!built.built || fileExists(host, built.package) == kFalse) return {exitcode::kBuildStopped, {}};
    return {exitcode::kBuilt, host.toHostPath(built.package)};
}

}  // namespace orvanta
