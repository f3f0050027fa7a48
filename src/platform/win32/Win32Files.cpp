// Files and folders of the Windows host: the file calls themselves, so listing order, wildcards,
// attributes and refusals are the system's own.
#include <windows.h>

#include "platform/CaseFolding.h"
#include "platform/WindowsPath.h"
#include "platform/win32/Win32FileReader.h"
#include "platform/win32/Win32Host.h"

namespace orvanta {

namespace {

DirectoryEntry entryOf(const WIN32_FIND_DATAA& found) {
    DirectoryEntry entry;
    entry.name = found.cFileName;
    entry.attributes = found.dwFileAttributes;
    if (!entry.isFolder()) entry.length = (std::uint64_t{found.nFileSizeHigh} << 32) | found.nFileSizeLow;
    return entry;
}

std::optional<WIN32_FILE_ATTRIBUTE_DATA> attributeDataOf(const std::string& path) {
    WIN32_FILE_ATTRIBUTE_DATA data{};
    if (path.empty() || !GetFileAttributesExA(path.c_str(), GetFileExInfoStandard, &data))
        return std::nullopt;
    return data;
}

// The system's own sentence for an error code, without the line break it ends in.
std::string systemErrorText(DWORD code) {
    char buffer[512] = {};
    const DWORD length = FormatMessageA(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr,
                                        code, 0, buffer, sizeof buffer, nullptr);
    std::string text(buffer, length);
    while (!text.empty() && (text.back() == '\n' || text.back() == '\r' || text.back() == ' '))
        text.pop_back();
    return text.empty() ? "System error " + std::to_string(code) + "." : text;
}

}  // namespace

std::vector<DirectoryEntry> Win32Host::listDirectory(const std::string& pattern, bool includeFolders) {
    std::vector<DirectoryEntry> entries;
    const std::string windowsPattern = withBackslashes(pattern);
    if (windowsPattern.empty()) return entries;
    WIN32_FIND_DATAA found{};
    HANDLE search = FindFirstFileA(windowsPattern.c_str(), &found);
    if (search == INVALID_HANDLE_VALUE) return entries;
    do {
        DirectoryEntry entry = entryOf(found);
        if (includeFolders || !entry.isFolder()) entries.push_back(std::move(entry));
    } while (FindNextFileA(search, &found));
    FindClose(search);
    return entries;
}

std::optional<std::uint64_t> Win32Host::fileLength(const std::string& path) {
    const auto data = attributeDataOf(withBackslashes(path));
    if (!data || (data->dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0) return std::nullopt;
    return (std::uint64_t{data->nFileSizeHigh} << 32) | data->nFileSizeLow;
}

std::optional<std::uint32_t> Win32Host::fileAttributes(const std::string& path) {
    const auto data = attributeDataOf(withBackslashes(path));
    if (!data) return std::nullopt;
    return data->dwFileAttributes;
}

bool Win32Host::setFileAttributes(const std::string& path, std::uint32_t attributes) {
    return SetFileAttributesA(withBackslashes(path).c_str(), attributes) != 0;
}

std::unique_ptr<FileReader> Win32Host::openForReading(const std::string& path) {
    HANDLE file = CreateFileA(withBackslashes(path).c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE,
                              nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE) return nullptr;
    return std::make_unique<Win32FileReader>(file);
}

bool Win32Host::copyFile(const std::string& from, const std::string& to) {
    // Windows refuses to overwrite a read-only file; wine does not, so the rule is kept here.
    const DWORD target = GetFileAttributesA(withBackslashes(to).c_str());
    if (target != INVALID_FILE_ATTRIBUTES && (target & FILE_ATTRIBUTE_READONLY) != 0) return false;
    return CopyFileA(withBackslashes(from).c_str(), withBackslashes(to).c_str(), FALSE) != 0;
}

bool Win32Host::renameFile(const std::string& from, const std::string& to) {
    const std::string source = withBackslashes(from), target = withBackslashes(to);
    if (!equalsIgnoringCase(source, target) || source == target)
        return MoveFileA(source.c_str(), target.c_str()) != 0;
    // A change of case only goes through a second name, which wine needs to show the new case.
    const std::string step = source + ".~case";
    if (MoveFileA(source.c_str(), step.c_str()) == 0) return false;
    if (MoveFileA(step.c_str(), target.c_str()) != 0) return true;
    MoveFileA(step.c_str(), source.c_str());
    return false;
}

bool Win32Host::deleteFile(const std::string& path) {
    return DeleteFileA(withBackslashes(path).c_str()) != 0;
}

bool Win32Host::createFolder(const std::string& path) {
    if (CreateDirectoryA(withBackslashes(path).c_str(), nullptr) != 0) return true;
    lastFolderError_ = systemErrorText(GetLastError());
    return false;
}

bool Win32Host::removeFolder(const std::string& path) {
    return RemoveDirectoryA(withBackslashes(path).c_str()) != 0;
}

std::optional<DiskSpace> Win32Host::diskSpace(const std::string& root) {
    DWORD sectorsPerCluster = 0, bytesPerSector = 0, freeClusters = 0, totalClusters = 0;
    if (!GetDiskFreeSpaceA(withBackslashes(root).c_str(), &sectorsPerCluster, &bytesPerSector, &freeClusters,
                           &totalClusters))
        return std::nullopt;
    return DiskSpace{sectorsPerCluster, bytesPerSector, freeClusters, totalClusters};
}

}  // namespace orvanta
