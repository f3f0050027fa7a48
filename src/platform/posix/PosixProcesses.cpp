// Processes of the POSIX host. Batch files and the command processor's own commands run under
// ovcmd; other programs are started directly, their Windows path arguments mapped to host paths.
#include <dirent.h>
#include <fcntl.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cctype>
#include <cerrno>
#include <chrono>
#include <fstream>
#include <thread>

#include "platform/AnsiText.h"
#include "platform/CaseFolding.h"
#include "platform/WindowsCommandLine.h"
#include "platform/WindowsPath.h"
#include "platform/posix/DesktopOpener.h"
#include "platform/posix/PosixHost.h"
#include "platform/posix/ProgramSearch.h"

extern char** environ;

namespace orvanta {

namespace {

bool isBuiltinCommand(const std::string& program) {
    static const std::array<const char*, 11> kBuiltins = {"copy",   "del", "erase", "rd",    "rmdir", "xcopy",
                                                          "attrib", "dir", "md",    "mkdir", "echo"};
    const std::string lower = toLowerCase(program);
    for (const char* builtin : kBuiltins)
        if (lower == builtin) return true;
    return false;
}

bool isBatchFile(const std::string& program) {
    const std::string lower = toLowerCase(program);
    return lower.size() > 4 && (lower.ends_with(".bat") || lower.ends_with(".cmd"));
}

bool looksLikeWindowsPath(const std::string& argument) {
    return argument.size() >= 3 && std::isalpha(static_cast<unsigned char>(argument[0])) &&
           argument[1] == ':' && argument[2] == '\\';
}

bool endsWithExe(const std::string& name) {
    return toLowerCase(name).ends_with(".exe");
}

// "7z.exe" runs as "7z" when only the latter exists.
std::string executableOrBareName(std::string hostPath) {
    if (!isExecutableFile(hostPath) && endsWithExe(hostPath)) hostPath.resize(hostPath.size() - 4);
    return isExecutableFile(hostPath) ? hostPath : std::string();
}

std::string searchedProgram(const std::string& name) {
    const std::string found = findProgramOnPath(name, environmentSearchPath());
    if (!found.empty() || !endsWithExe(name)) return found;
    return findProgramOnPath(name.substr(0, name.size() - 4), environmentSearchPath());
}

bool processAlive(int pid) {
    return ::kill(pid, 0) == 0 || errno == EPERM;
}

// The executable name of a process: the last part of its first argument, which unlike "comm" is
// not cut at 15 characters and keeps ".exe" for programs run under wine.
std::string processName(const std::string& id) {
    std::ifstream commandLine("/proc/" + id + "/cmdline", std::ios::binary);
    std::string first;
    if (std::getline(commandLine, first, '\0') && !first.empty()) {
        const auto cut = first.find_last_of("/\\");
        const std::string name = cut == std::string::npos ? first : first.substr(cut + 1);
        if (!name.empty()) return name;
    }
    std::ifstream comm("/proc/" + id + "/comm");
    std::string name;
    std::getline(comm, name);
    return name;
}

bool isFileHere(const std::string& hostPath) {
    return !hostPath.empty() && ::access(hostPath.c_str(), F_OK) == 0;
}

}  // namespace

// An unquoted program path with blanks runs as Windows runs it: the shortest run of words that
// names an existing file ("Z:\My Documents\packager.bat" is one program, not "Z:\My").
void PosixHost::joinUnquotedProgramPath(const std::string& commandLine, std::vector<std::string>& words) {
    if (commandLine.front() == '"' || !looksLikeWindowsPath(words[0]) || isFileHere(toHostPath(words[0])))
        return;
    std::string candidate = words[0];
    for (std::size_t count = 2; count <= words.size(); ++count) {
        candidate += " " + words[count - 1];
        const std::string hostPath = toHostPath(candidate);
        if (isFileHere(hostPath) || (!endsWithExe(candidate) && isFileHere(hostPath + ".exe"))) {
            words.erase(words.begin() + 1, words.begin() + static_cast<std::ptrdiff_t>(count));
            words[0] = candidate;
            return;
        }
    }
}

std::string PosixHost::commandProcessor() const {
    if (!config_.commandProcessor.empty()) return config_.commandProcessor;
    return runningProgramFolder() + "/ovcmd";
}

// The argument vector a command line runs as here, or nothing when its program is missing.
std::optional<std::vector<std::string>> PosixHost::hostArguments(const std::string& commandLine) {
    auto words = splitCommandLine(commandLine);
    if (words.empty()) return std::nullopt;
    joinUnquotedProgramPath(commandLine, words);
    if (isBuiltinCommand(words[0])) return std::vector<std::string>{commandProcessor(), "/c", commandLine};
    if (!isBatchFile(words[0])) return programArguments(words);
    const std::string batch = toHostPath(words[0]);
    if (batch.empty() || ::access(batch.c_str(), R_OK) != 0) return std::nullopt;
    std::vector<std::string> arguments{commandProcessor(), batch};
    arguments.insert(arguments.end(), words.begin() + 1, words.end());
    return arguments;
}

std::optional<std::vector<std::string>> PosixHost::programArguments(const std::vector<std::string>& words) {
    const std::string& program = words[0];
    const bool hasFolder = program.find_first_of("\\/:") != std::string::npos;
    const std::string executable =
        hasFolder ? executableOrBareName(toHostPath(program)) : searchedProgram(windows1252ToUtf8(program));
    if (executable.empty()) return std::nullopt;
    std::vector<std::string> arguments{executable};
    for (std::size_t i = 1; i < words.size(); ++i)
        arguments.push_back(looksLikeWindowsPath(words[i]) ? toHostPath(words[i])
                                                           : windows1252ToUtf8(words[i]));
    return arguments;
}

std::optional<std::uint32_t> PosixHost::spawn(const std::vector<std::string>& arguments, bool hidden) {
    std::vector<char*> argv;
    for (const auto& argument : arguments) argv.push_back(const_cast<char*>(argument.c_str()));
    argv.push_back(nullptr);
    // The child learns where this host keeps its machine.
    const std::string prefix = std::string(kDataFolderEnvironmentVariable) + "=";
    const std::string dataVariable = prefix + dataFolder_;
    std::vector<char*> environment{const_cast<char*>(dataVariable.c_str())};
    for (char** entry = environ; *entry != nullptr; ++entry)
        if (!std::string_view(*entry).starts_with(prefix)) environment.push_back(*entry);
    environment.push_back(nullptr);
    // A hidden window shows nothing: the child's ordinary output goes nowhere, its errors still show.
    posix_spawn_file_actions_t actions;
    ::posix_spawn_file_actions_init(&actions);
    if (hidden) ::posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    pid_t pid = 0;
    const int failed = ::posix_spawnp(&pid, argv[0], &actions, nullptr, argv.data(), environment.data());
    ::posix_spawn_file_actions_destroy(&actions);
    if (failed != 0) return std::nullopt;
    children_[pid] = false;
    return static_cast<std::uint32_t>(pid);
}

std::optional<std::uint32_t> PosixHost::startProcess(const std::string& commandLine, int windowStyle) {
    const auto arguments = hostArguments(commandLine);
    if (!arguments) return std::nullopt;
    return spawn(*arguments, windowStyle == 0);
}

ProcessHandle PosixHost::openProcess(std::uint32_t processId) {
    const int pid = static_cast<int>(processId);
    if (pid <= 0) return 0;
    if (children_.count(pid) != 0 || processAlive(pid)) return static_cast<ProcessHandle>(pid);
    return 0;
}

// Our own children are reaped (and their end remembered); other processes are watched until gone.
WaitResult PosixHost::waitForProcess(ProcessHandle process, std::uint32_t milliseconds) {
    const int pid = static_cast<int>(process);
    if (pid <= 0 || static_cast<ProcessHandle>(pid) != process) return WaitResult::Failed;
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::milliseconds(milliseconds);
    while (true) {
        const auto child = children_.find(pid);
        if (child != children_.end()) {
            if (child->second) return WaitResult::Signalled;
            int status = 0;
            const pid_t done = ::waitpid(pid, &status, WNOHANG);
            if (done < 0 && errno != EINTR) return WaitResult::Failed;
            child->second = done == pid;
            if (child->second) return WaitResult::Signalled;
        } else if (!processAlive(pid)) {
            return WaitResult::Signalled;
        }
        if (std::chrono::steady_clock::now() >= deadline) return WaitResult::TimedOut;
        std::this_thread::sleep_for(std::chrono::milliseconds(2));
    }
}

// The process runs on; the handle is only a process id, so there is nothing to release.
void PosixHost::closeProcess(ProcessHandle) {}

std::vector<std::string> PosixHost::processNames() {
    std::vector<std::string> names;
    DIR* proc = ::opendir("/proc");
    if (proc == nullptr) return names;
    while (const dirent* entry = ::readdir(proc)) {
        const std::string id = entry->d_name;
        if (id.empty() || id.find_first_not_of("0123456789") != std::string::npos) continue;
        const std::string name = processName(id);
        if (!name.empty()) names.push_back(utf8ToWindows1252(name));
    }
    ::closedir(proc);
    return names;
}

int PosixHost::shellExecute(const std::string& file, const std::string& parameters, int showCommand) {
    const bool isAddress = file.find("://") != std::string::npos || toLowerCase(file).starts_with("mailto:");
    const std::string target = isAddress ? windows1252ToUtf8(file) : toHostPath(file);
    if (!isAddress && (target.empty() || ::access(target.c_str(), F_OK) != 0)) return 2;
    // The shell runs a batch file, as Windows' does, rather than opening it in an editor.
    const std::string lower = toLowerCase(file);
    if (!isAddress && (lower.ends_with(".bat") || lower.ends_with(".cmd"))) {
        const std::string command = "\"" + file + "\"" + (parameters.empty() ? "" : " " + parameters);
        return startProcess(command, showCommand) ? 42 : 31;
    }
    return openWithDesktop(target);
}

}  // namespace orvanta
