#include "platform/posix/PosixHost.h"

#include <sys/stat.h>
#include <unistd.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "platform/AnsiText.h"
#include "platform/WindowsPath.h"
#include "platform/posix/ProgramSearch.h"

namespace orvanta {

namespace {

std::string environmentOr(const char* name, const std::string& fallback) {
    const char* value = std::getenv(name);
    return value != nullptr && *value != '\0' ? std::string(value) : fallback;
}

std::string defaultDataFolder() {
    const std::string home = environmentOr("HOME", "/tmp");
    return environmentOr("XDG_DATA_HOME", home + "/.local/share") + "/Orvanta";
}

// The drive map compares host paths as text, so its folders must not depend on the working folder.
std::string absolutePath(const std::string& path) {
    std::error_code ignored;
    const auto absolute = std::filesystem::absolute(path, ignored);
    std::string normal = absolute.empty() ? path : absolute.lexically_normal().string();
    while (normal.size() > 1 && normal.back() == '/') normal.pop_back();
    return normal;
}

}  // namespace

PosixHost::PosixHost(const HostConfig& config)
    : config_(config),
      dataFolder_(absolutePath(config.dataFolder.empty() ? defaultDataFolder() : config.dataFolder)),
      drives_(dataFolder_ + "/drive_c"),
      store_(dataFolder_ + "/registry.store"),
      archivers_(dataFolder_ + "/apppaths", config.programSearchPath) {
    std::error_code ignored;
    std::filesystem::create_directories(dataFolder_ + "/drive_c", ignored);
}

std::string PosixHost::toHostPath(const std::string& windowsPath) {
    return drives_.toHostPath(windowsPath);
}

std::string PosixHost::toWindowsPath(const std::string& hostPath) {
    return drives_.toWindowsPath(hostPath);
}

std::string PosixHost::specialFolder(int csidl) {
    for (const auto& [number, path] : config_.specialFolders)
        if (number == csidl) return path;
    std::string path;
    switch (csidl) {
        case 5:
            return toWindowsPath(
                environmentOr("XDG_DOCUMENTS_DIR", environmentOr("HOME", "/tmp") + "/Documents"));
        case 38:
            path = "Program Files";
            break;
        case 41:
            path = "Windows/SysWOW64";
            break;
        case 43:
            path = "Program Files/Common Files";
            break;
        case 26:
            path = "users/Orvanta/AppData/Roaming";
            break;
        case 28:
            path = "users/Orvanta/AppData/Local";
            break;
        case 35:
            path = "ProgramData";
            break;
        case 56:
            path = "Windows/Resources";
            break;
        default:
            return {};
    }
    // The simulated system drive gets its folders the first time they are asked for.
    std::error_code ignored;
    std::filesystem::create_directories(drives_.driveCFolder() + "/" + path, ignored);
    return toWindowsPath(drives_.driveCFolder() + "/" + path);
}

std::string PosixHost::applicationFolder() {
    if (!config_.applicationFolder.empty()) return config_.applicationFolder;
    return toWindowsPath(runningProgramFolder());
}

std::string PosixHost::commandLine() {
    if (config_.commandLineSet) return config_.commandLine;
    std::ifstream in("/proc/self/cmdline", std::ios::binary);
    std::string argument, line;
    bool first = true;
    while (std::getline(in, argument, '\0')) {
        if (first) {
            first = false;
            continue;
        }
        if (!line.empty()) line += ' ';
        line += argument.rfind('/', 0) == 0 ? toWindowsPath(argument) : utf8ToWindows1252(argument);
    }
    return line;
}

VersionWords PosixHost::versionWords() {
    return config_.versionWords.value_or(VersionWords{6, 1});
}

std::uint64_t PosixHost::tickMilliseconds() {
    return static_cast<std::uint64_t>(std::chrono::duration_cast<std::chrono::milliseconds>(
                                          std::chrono::steady_clock::now().time_since_epoch())
                                          .count());
}

std::unique_ptr<Host> createHost(const HostConfig& config) {
    return std::make_unique<PosixHost>(config);
}

}  // namespace orvanta
