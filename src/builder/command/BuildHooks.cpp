#include "builder/command/BuildHooks.h"

#include "builder/command/ReproducibleTimes.h"
#include "builder/command/SignCommand.h"

namespace orvanta {

namespace {

// The staged programs are signed before packing; their time is set after, as signing rewrites them.
std::string signAndStamp(Host& host, const std::string& sign, std::optional<std::int64_t> time,
                         const std::string& workingFolder) {
    for (const char* program : {"\\install.exe", "\\uninstall.exe"}) {
        if (sign.empty()) break;
        if (std::string error = runSignCommand(sign, host.toHostPath(workingFolder + program));
            !error.empty())
            return error;
    }
    return time ? stampArchivedFiles(host.toHostPath(workingFolder), "\\files", *time) : std::string();
}

}  // namespace

std::string addBuildHooks(Host& host, const BuildOptions& options, const std::string& workingFolder,
                          BuildSetup& setup) {
    std::optional<std::int64_t> time;
    if (options.reproducible) {
        const EpochSetting epoch = sourceDateEpoch();
        if (!epoch.error.empty()) return epoch.error;
        time = epoch.seconds ? epoch.seconds
                             : fileTimeSeconds(host.toHostPath(workingFolder + "\\mainsettings.cfg"));
        if (!time) return "The time of the project's last save could not be read; set SOURCE_DATE_EPOCH.";
    }
    const std::string sign = options.signCommand;
    if (!sign.empty() || time)
        setup.beforeArchiving = [&host, sign, time, workingFolder] {
            return signAndStamp(host, sign, time, workingFolder);
        };
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
