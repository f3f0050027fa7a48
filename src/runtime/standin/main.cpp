// A stand-in for the installer (and, built with ORVANTA_STANDIN_UNINSTALLER, the uninstaller)
// until the real ones exist. It installs nothing: it reports what a package gave it, so that tests
// can check a built package end to end. The report goes to the file that ORVANTA_STANDIN_REPORT
// names (a Windows path; nothing is written when the variable is unset), in UTF-8 with LF line
// ends:
//   Orvanta stand-in installer
//   folder C:\the\working\folder
//   argument FIRST                      one line per argument, in order
//   file SIZE CRC32 RELATIVE\PATH       one line per file below the working folder, by path;
//                                       SIZE in decimal, CRC32 as 8 hex digits
//   unreadable RELATIVE\PATH            instead, for a file that could not be read
#include <windows.h>

#include <cstdio>
#include <string>

#include "FileListing.h"

namespace {

#ifdef ORVANTA_STANDIN_UNINSTALLER
constexpr const char* kTitle = "Orvanta stand-in uninstaller";
#else
constexpr const char* kTitle = "Orvanta stand-in installer";
#endif
constexpr const wchar_t* kReportVariable = L"ORVANTA_STANDIN_REPORT";

std::string utf8(const std::wstring& text) {
    if (text.empty()) return {};
    const int length = static_cast<int>(text.size());
    const int size = WideCharToMultiByte(CP_UTF8, 0, text.data(), length, nullptr, 0, nullptr, nullptr);
    std::string result(static_cast<std::size_t>(size), '\0');
    WideCharToMultiByte(CP_UTF8, 0, text.data(), length, result.data(), size, nullptr, nullptr);
    return result;
}

std::wstring environmentValue(const wchar_t* name) {
    const DWORD size = GetEnvironmentVariableW(name, nullptr, 0);
    if (size == 0) return {};
    std::wstring value(size, L'\0');
    value.resize(GetEnvironmentVariableW(name, value.data(), size));
    return value;
}

std::wstring workingFolder() {
    std::wstring folder(MAX_PATH * 4, L'\0');
    folder.resize(GetCurrentDirectoryW(static_cast<DWORD>(folder.size()), folder.data()));
    if (!folder.empty() && folder.back() == L'\\') folder.pop_back();
    return folder;
}

std::string hex8(std::uint32_t value) {
    char digits[9];
    std::snprintf(digits, sizeof digits, "%08x", value);
    return digits;
}

std::string report(int argc, wchar_t** argv) {
    const std::wstring folder = workingFolder();
    std::string text = std::string(kTitle) + "\n";
    text += "folder " + utf8(folder) + "\n";
    for (int index = 1; index < argc; ++index) text += "argument " + utf8(argv[index]) + "\n";
    for (const auto& file : orvanta::standin::listFiles(folder)) {
        if (!file.readable)
            text += "unreadable " + utf8(file.relativePath) + "\n";
        else
            text += "file " + std::to_string(file.size) + " " + hex8(file.crc32) + " " +
                    utf8(file.relativePath) + "\n";
    }
    return text;
}

bool writeWhole(const std::wstring& path, const std::string& text) {
    const HANDLE handle =
        CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (handle == INVALID_HANDLE_VALUE) return false;
    DWORD written = 0;
    const bool done = WriteFile(handle, text.data(), static_cast<DWORD>(text.size()), &written, nullptr) &&
                      written == text.size();
    return CloseHandle(handle) && done;
}

}  // namespace

int wmain(int argc, wchar_t** argv) {
    const std::wstring reportPath = environmentValue(kReportVariable);
    if (reportPath.empty()) return 0;
    if (!writeWhole(reportPath, report(argc, argv))) {
        std::fprintf(stderr, "%s: cannot write the report %s\n", kTitle, utf8(reportPath).c_str());
        return 1;
    }
    return 0;
}
