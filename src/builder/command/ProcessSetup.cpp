#include "builder/command/ProcessSetup.h"

#include "core/RegistryAPI.h"
#include "core/StartBitch.h"
#include "core/commonFunctions.h"
#include "core/vars.h"

namespace orvanta {

namespace {

constexpr const char* kWinRarRegistration =
    "HKLM\\Software\\Microsoft\\Windows\\CurrentVersion\\App Paths\\WinRAR.exe";
// The headless build keeps its own "verbose" apart from the package dialog's choice.
constexpr const char* kHeadlessKey = "\\Headless build";

// On POSIX the registration answers from `rar` on PATH; on Windows it is WinRAR's own.
std::string rarFolderOnPath(Host& host) {
    RegistryAPI registry(host);
    if (!registry.registryKeyExists(kWinRarRegistration)) return {};
    const std::string folder = registry.readRegistryString(kWinRarRegistration, "Path", "") + "\\";
    return fileExists(host, folder + "rar.exe") == kTrue ? folder : std::string();
}

}  // namespace

ProcessSetup setUpProcess(Host& host, Dialogs& dialogs, const BuildOptions& options) {
    vars::reset();
    if (Main(host, dialogs, MainHandOver{[] {}, nullptr}) == MainOutcome::SupportFileMissing)
        return {{},
                "The program's own files are missing beside it in " + host.applicationFolder() + "\\data."};

    ProcessSetup setup;
    BuildSetup& build = setup.build;
    build.compressorChoice = options.compressor;
    build.compressionLevel = options.level;
    vars::compressorChoice = options.compressor;
    vars::compressionLevel = options.level;
    if (options.compressor == "winrar") {
        build.rarFolder = rarFolderOnPath(host);
        if (build.rarFolder.empty()) setup.error = "WinRAR's rar was not found on the PATH.";
    } else {
        build.sevenZipFolder = vars::sevenZipFolder;
        if (fileExists(host, build.sevenZipFolder + "7z.exe") == kFalse)
            setup.error = "7-Zip was found neither beside the program (7z\\7z.exe) nor on the PATH (7z).";
    }
    build.workspaceFolder = vars::workspaceFolder;
    build.applicationFolder = host.applicationFolder();
    build.settingsKey = vars::settingsRootKey + kHeadlessKey;
    RegistryAPI(host).writeSettingNumber(build.settingsKey, "verbose", options.verbose ? 1 : 0);
    return setup;
}

}  // namespace orvanta
