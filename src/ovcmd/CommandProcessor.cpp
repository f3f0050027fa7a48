#include "ovcmd/CommandProcessor.h"

#include <fcntl.h>
#include <unistd.h>

#include <iostream>
#include <map>
#include <memory>

#include "ovcmd/BatchLine.h"
#include "ovcmd/FileCommands.h"
#include "ovcmd/TreeCommands.h"
#include "platform/CaseFolding.h"
#include "platform/WindowsCommandLine.h"
#include "platform/WindowsPath.h"

namespace orvanta {

namespace {

using Builtin = int (*)(CommandContext&, const std::vector<std::string>&);

Builtin findBuiltin(const std::string& name) {
    static const std::map<std::string, Builtin> kBuiltins = {
        {"copy", runCopy},          {"del", runDelete},    {"erase", runDelete},     {"rd", runRemoveFolder},
        {"rmdir", runRemoveFolder}, {"md", runMakeFolder}, {"mkdir", runMakeFolder}, {"attrib", runAttrib},
        {"xcopy", runXcopy},        {"dir", runDir}};
    const auto found = kBuiltins.find(toLowerCase(name));
    return found == kBuiltins.end() ? nullptr : found->second;
}

std::string readWholeFile(Host& host, const std::string& path, bool& ok) {
    std::string contents;
    const auto reader = host.openForReading(path);
    ok = reader != nullptr;
    if (!ok) return contents;
    char buffer[1 << 14];
    while (const std::size_t got = reader->read(buffer, sizeof buffer)) contents.append(buffer, got);
    ok = !reader->failed();
    return contents;
}

std::vector<std::string> splitLines(const std::string& text) {
    std::vector<std::string> lines;
    std::size_t start = 0;
    while (start < text.size()) {
        std::size_t end = text.find('\n', start);
        if (end == std::string::npos) end = text.size();
        std::string line = text.substr(start, end - start);
        if (!line.empty() && line.back() == '\r') line.pop_back();
        lines.push_back(std::move(line));
        start = end + 1;
    }
    return lines;
}

// Points standard output at a file for the length of one line; children inherit it.
class OutputRedirection {
public:
    OutputRedirection(Host& host, const BatchLine& line) {
        if (line.output.empty()) return;
        const std::string target =
            toLowerCase(line.output) == "nul" ? "/dev/null" : host.toHostPath(line.output);
        const int flags = O_WRONLY | O_CREAT | O_CLOEXEC | (line.append ? O_APPEND : O_TRUNC);
        const int fd = target.empty() ? -1 : ::open(target.c_str(), flags, 0644);
        failed_ = fd < 0;
        if (failed_) return;
        std::cout.flush();
        saved_ = ::dup(STDOUT_FILENO);
        ::dup2(fd, STDOUT_FILENO);
        ::close(fd);
    }
    ~OutputRedirection() {
        if (saved_ < 0) return;
        std::cout.flush();
        ::dup2(saved_, STDOUT_FILENO);
        ::close(saved_);
    }
    OutputRedirection(const OutputRedirection&) = delete;
    OutputRedirection& operator=(const OutputRedirection&) = delete;
    bool failed() const { return failed_; }

private:
    int saved_ = -1;
    bool failed_ = false;
};

int runEcho(const std::string& text) {
    const std::string lower = toLowerCase(text);
    if (lower == "off" || lower == "on") return 0;
    std::cout << text << "\n";
    return 0;
}

}  // namespace

int CommandProcessor::runBatchFile(const std::string& windowsPath,
                                   const std::vector<std::string>& arguments) {
    bool read = false;
    const std::string contents = readWholeFile(host_, windowsPath, read);
    if (!read) {
        std::cerr << "The batch file cannot be found.\n";
        return 1;
    }
    batchArguments_ = {windowsPath};
    batchArguments_.insert(batchArguments_.end(), arguments.begin(), arguments.end());
    const auto lines = splitLines(contents);
    int level = 0;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        level = runLine(lines[i]);
        // cmd.exe reads a batch file line by line: once the file is gone, nothing more runs.
        if (i + 1 < lines.size() && !host_.fileAttributes(windowsPath)) {
            std::cerr << "The batch file cannot be found.\n";
            break;
        }
    }
    return level;
}

int CommandProcessor::runLine(const std::string& line) {
    const BatchLine parsed = parseBatchLine(expandReferences(line, batchArguments_));
    if (parsed.command.empty()) return 0;
    OutputRedirection redirection(host_, parsed);
    if (redirection.failed()) {
        std::cerr << "The system cannot find the path specified.\n";
        return 1;
    }
    const int level = runCommand(parsed.command);
    std::cout.flush();
    return level;
}

int CommandProcessor::runCommand(const std::string& command) {
    const CommandWord first = firstWord(command);
    const std::string name = toLowerCase(first.word);
    if (name.empty() || name.starts_with(":") || name == "rem") return 0;
    std::string rest = command.substr(first.restAt);
    if (name == "echo" || name.starts_with("echo.")) {
        if (name != "echo") return runEcho(first.word.substr(5) + rest);
        return runEcho(rest.empty() ? rest : rest.substr(1));
    }
    if (const Builtin builtin = findBuiltin(name)) {
        CommandContext context{host_, std::cout, std::cerr};
        return builtin(context, splitCommandLine(rest));
    }
    return runProgram(command, first.word);
}

int CommandProcessor::runProgram(const std::string& command, const std::string& name) {
    const auto id = host_.startProcess(command, kWindowNormalFocus);
    if (!id) {
        std::cerr << "'" << name << "' is not recognized as an internal or external command,\n"
                  << "operable program or batch file.\n";
        return kErrorLevelUnknownCommand;
    }
    const ProcessHandle process = host_.openProcess(*id);
    while (process != 0 && host_.waitForProcess(process, 1000) == WaitResult::TimedOut) {
    }
    host_.closeProcess(process);
    return 0;
}

}  // namespace orvanta
