#pragma once
// The command line of the headless build.

#include <optional>
#include <string>
#include <vector>

namespace orvanta {

struct BuildOptions {
    std::string projectFolder;  // as given, in the host's own path form
    std::string edition = "No editions";
    std::string version = "No versions";
    std::string compressor = "7zip";  // "7zip" or "winrar"
    int level = 5;
    bool verbose = false;
    bool reproducible = false;
    std::string signCommand;    // empty: nothing is signed
    std::string screensFolder;  // host path; set: the wizard's screens are written, nothing is built
    bool help = false;
};

struct ParsedOptions {
    std::optional<BuildOptions> options;
    std::string error;  // why the command line was refused; empty when options is set
};

ParsedOptions parseBuildOptions(const std::vector<std::string>& arguments);

// What --help prints.
std::string buildHelpText();

}  // namespace orvanta
