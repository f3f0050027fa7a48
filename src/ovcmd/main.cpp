// ovcmd: the command processor that runs this system's batch files on POSIX hosts.
//   ovcmd BATCHFILE [ARGUMENTS]   runs a batch file (a host path)
//   ovcmd /c LINE                 runs one command line
#include <cstdlib>
#include <iostream>
#include <string>
#include <vector>

#include "ovcmd/CommandProcessor.h"
#include "platform/AnsiText.h"
#include "platform/Host.h"
#include "platform/posix/PosixHost.h"

int main(int argc, char** argv) {
    using namespace orvanta;
    if (argc < 2) {
        std::cerr << "usage: ovcmd BATCHFILE [ARGUMENTS] | ovcmd /c LINE\n";
        return 2;
    }
    HostConfig config;
    // The host that started us names its machine; without it this user's own is used.
    if (const char* data = std::getenv(kDataFolderEnvironmentVariable)) config.dataFolder = data;
    const auto host = createHost(config);
    CommandProcessor processor(*host);
    const std::string first = argv[1];
    if (first == "/c" || first == "/C") {
        std::string line;
        for (int i = 2; i < argc; ++i) line += (i > 2 ? " " : "") + std::string(argv[i]);
        return processor.runLine(line);
    }
    std::vector<std::string> arguments;
    for (int i = 2; i < argc; ++i) arguments.emplace_back(argv[i]);
    return processor.runBatchFile(host->toWindowsPath(first), arguments);
}
