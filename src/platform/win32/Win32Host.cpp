#include "platform/win32/Win32Host.h"

#include <shlobj.h>
#include <windows.h>

#include <algorithm>

#include "platform/AnsiText.h"
#include "platform/WindowsPath.h"

namespace orvanta {

namespace {

std::string withoutTrailingBackslash(std::string path) {
    while (!path.empty() && path.back() == '\\') path.pop_back();
    return path;
}

std::string shellFolder(int csidl) {
    LPITEMIDLIST list = nullptr;
    if (FAILED(SHGetSpecialFolderLocation(nullptr, csidl, &list)) || list == nullptr) return {};
    char buffer[MAX_PATH] = {};
    const bool found = SHGetPathFromIDListA(list, buffer) != 0;
    CoTaskMemFree(list);
    return found ? withoutTrailingBackslash(buffer) : std::string();
}

std::string executableFolder() {
    char buffer[MAX_PATH] = {};
    const DWORD length = GetModuleFileNameA(nullptr, buffer, MAX_PATH);
    if (length == 0 || length >= MAX_PATH) return {};
    const std::string self(buffer, length);
    const auto slash = self.rfind('\\');
    return slash == std::string::npos ? std::string() : self.substr(0, slash);
}

// The command line after the program name, which is quoted or ends at the first blank.
std::string argumentsOf(std::string_view line) {
    std::size_t end = 0;
    if (!line.empty() && line.front() == '"') {
        const auto closing = line.find('"', 1);
        end = closing == std::string_view::npos ? line.size() : closing + 1;
    } else {
        end = std::min(line.find_first_of(" \t"), line.size());
    }
    line.remove_prefix(end);
    const auto first = line.find_first_not_of(" \t");
    return first == std::string_view::npos ? std::string() : std::string(line.substr(first));
}

}  // namespace

Win32Host::Win32Host(const HostConfig& config) : config_(config), registryRoots_(config.registrySandboxKey) {}

// The host's own form is UTF-8, as dialogs and terminals give it, so no name is lost to the code page.
std::string Win32Host::toHostPath(const std::string& windowsPath) {
    std::string path = ansiToUtf8(windowsPath);
    std::replace(path.begin(), path.end(), '\\', '/');
    return path;
}

std::string Win32Host::toWindowsPath(const std::string& hostPath) {
    return withBackslashes(utf8ToAnsi(hostPath));
}

std::string Win32Host::specialFolder(int csidl) {
    for (const auto& [number, path] : config_.specialFolders)
        if (number == csidl) return path;
    return shellFolder(csidl);
}

std::string Win32Host::applicationFolder() {
    return config_.applicationFolder.empty() ? executableFolder() : config_.applicationFolder;
}

std::string Win32Host::commandLine() {
    if (config_.commandLineSet) return config_.commandLine;
    const char* line = GetCommandLineA();
    return line == nullptr ? std::string() : argumentsOf(line);
}

VersionWords Win32Host::versionWords() {
    if (config_.versionWords) return *config_.versionWords;
    OSVERSIONINFOA info{};
    info.dwOSVersionInfoSize = sizeof info;
    if (!GetVersionExA(&info)) return {};
    return {info.dwMajorVersion, info.dwMinorVersion};
}

unsigned Win32Host::ansiCodePage() {
    return GetACP();
}

std::uint64_t Win32Host::tickMilliseconds() {
    return GetTickCount64();
}

std::unique_ptr<Host> createHost(const HostConfig& config) {
    return std::make_unique<Win32Host>(config);
}

}  // namespace orvanta
