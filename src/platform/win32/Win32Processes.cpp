// Processes and the shell on Windows.
#include <windows.h>
// After windows.h, which it needs.
#include <shellapi.h>
#include <tlhelp32.h>

#include <vector>

#include "platform/win32/Win32Host.h"

namespace orvanta {

std::optional<std::uint32_t> Win32Host::startProcess(const std::string& commandLine, int windowStyle) {
    // CreateProcessA may change the line it is given. A batch file runs under cmd.exe by itself.
    std::vector<char> writable(commandLine.begin(), commandLine.end());
    writable.push_back('\0');
    STARTUPINFOA startup{};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESHOWWINDOW;
    startup.wShowWindow = static_cast<WORD>(windowStyle);
    PROCESS_INFORMATION started{};
    if (!CreateProcessA(nullptr, writable.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                        &started))
        return std::nullopt;
    CloseHandle(started.hThread);
    CloseHandle(started.hProcess);
    return started.dwProcessId;
}

ProcessHandle Win32Host::openProcess(std::uint32_t processId) {
    HANDLE process = OpenProcess(SYNCHRONIZE, FALSE, processId);
    return reinterpret_cast<ProcessHandle>(process);
}

WaitResult Win32Host::waitForProcess(ProcessHandle process, std::uint32_t milliseconds) {
    switch (WaitForSingleObject(reinterpret_cast<HANDLE>(process), milliseconds)) {
        case WAIT_OBJECT_0:
            return WaitResult::Signalled;
        case WAIT_TIMEOUT:
            return WaitResult::TimedOut;
        default:
            return WaitResult::Failed;
    }
}

void Win32Host::closeProcess(ProcessHandle process) {
    if (process != 0) CloseHandle(reinterpret_cast<HANDLE>(process));
}

std::vector<std::string> Win32Host::processNames() {
    std::vector<std::string> names;
    HANDLE snapshot = CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0);
    if (snapshot == INVALID_HANDLE_VALUE) return names;
    PROCESSENTRY32 entry{};
    entry.dwSize = sizeof entry;
    for (BOOL more = Process32First(snapshot, &entry); more; more = Process32Next(snapshot, &entry))
        names.emplace_back(entry.szExeFile);
    CloseHandle(snapshot);
    return names;
}

int Win32Host::shellExecute(const std::string& file, const std::string& parameters, int showCommand) {
    HINSTANCE result = ShellExecuteA(nullptr, nullptr, file.c_str(),
                                     parameters.empty() ? nullptr : parameters.c_str(), nullptr, showCommand);
    return static_cast<int>(reinterpret_cast<INT_PTR>(result));
}

}  // namespace orvanta
