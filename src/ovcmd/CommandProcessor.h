#pragma once
// Runs batch files and single command lines the way cmd.exe runs the lines this system writes:
// its built-in file commands, calls of programs with Windows paths, output redirection, and the
// end of a batch file that has deleted itself.

#include <string>
#include <vector>

#include "platform/Host.h"

namespace orvanta {

class CommandProcessor {
public:
    explicit CommandProcessor(Host& host) : host_(host) {}

    // Runs each line of the file in turn. `arguments` are %1 and on; the error level of the
    // last line run is the result.
    int runBatchFile(const std::string& windowsPath, const std::vector<std::string>& arguments);
    int runLine(const std::string& line);

private:
    int runCommand(const std::string& command);
    int runProgram(const std::string& command, const std::string& name);

    Host& host_;
    std::vector<std::string> batchArguments_;  // %0 and on
};

}  // namespace orvanta
