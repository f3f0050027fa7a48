#include "builder/command/BuildHooks.h"

#include "builder/command/ReproducibleTimes.h"
#include "builder/command/SignCommand.h"

namespace orvanta {

std::string addBuildHooks(Host& host, const BuildOptions& options, const std::string& workingFolder,
                          BuildSetup& setup) {
    const std::string working = host.toHostPath(workingFolder);
    std::optional<std::int64_t> time;
    if (options.reproducible) {
        const EpochSetting epoch = sourceDateEpoch();
        if (!epoch.error.empty()) return epoch.error;
        time = epoch.seconds ? epoch.seconds : fileTimeSeconds(working + "/mainsettings.cfg");
        if (!time) return "The time of the project's last save could not be read; set SOURCE_DATE_EPOCH.";
    }
    const std::string sign = options.signCommand;
    if (!sign.empty() || time) {
        setup.beforeArchiving = [&host, sign, time, workingFolder]() -> std::string {
            // Signing rewrites the programs, so their time is set after it.
            for (const char* program : {"\\install.exe", "\\uninstall.exe"})
                if (!sign.empty())
                    if (std::string error = runSignCommand(sign, host.toHostPath(workingFolder + program));
                        !error.empty())
                        return error;
            return time ? stampArchivedFiles(host.toHostPath(workingFolder), "\\files", *time)
                        : std::string();
        };
    }
    if (!sign.empty())
        setup.afterBuild = [&host, sign](const std::string& package) {
            std::string error = runSignCommand(sign, host.toHostPath(package));
            // An unsigned package under the final name would pass for a good one in a CI's output.
            if (!error.empty() && host.deleteFile(package)) error += "\r\nThe unsigned package was removed.";
            return error;
        };
    return {};
}

}  // namespace orvanta
