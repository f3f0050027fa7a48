// Atomic replacement on Windows: the bytes go to a temporary file in the target's folder (so the
// final move never crosses volumes), reach the disk, and the move replaces the target in one step.
#include <windows.h>

#include "platform/WindowsPath.h"
#include "platform/win32/Win32Host.h"

namespace orvanta {

namespace {

std::string folderOf(const std::string& path) {
    const auto slash = path.rfind('\\');
    return slash == std::string::npos ? std::string(".") : path.substr(0, slash + 1);
}

std::string newTemporaryBeside(const std::string& path) {
    char name[MAX_PATH] = {};
    if (GetTempFileNameA(folderOf(path).c_str(), "ovt", 0, name) == 0) return {};
    return name;
}

bool writeAll(HANDLE file, std::string_view contents) {
    while (!contents.empty()) {
        const auto chunk = static_cast<DWORD>(contents.size() > 0x40000000 ? 0x40000000 : contents.size());
        DWORD written = 0;
        if (!WriteFile(file, contents.data(), chunk, &written, nullptr) || written == 0) return false;
        contents.remove_prefix(written);
    }
    return true;
}

bool fillFile(const std::string& path, std::string_view contents) {
    HANDLE file =
        CreateFileA(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE) return false;
    const bool written = writeAll(file, contents) && FlushFileBuffers(file);
    return CloseHandle(file) && written;
}

}  // namespace

bool Win32Host::writeFileAtomic(const std::string& path, std::string_view contents) {
    const std::string target = withBackslashes(path);
    if (target.empty()) return false;
    const DWORD kept = GetFileAttributesA(target.c_str());
    // Windows refuses to replace a read-only file or a folder; so do we, before any temporary exists.
    if (kept != INVALID_FILE_ATTRIBUTES && (kept & (FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_DIRECTORY)) != 0)
        return false;
    const std::string temporary = newTemporaryBeside(target);
    if (temporary.empty()) return false;
    if (!fillFile(temporary, contents) ||
        !MoveFileExA(temporary.c_str(), target.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH)) {
        DeleteFileA(temporary.c_str());
        return false;
    }
    // The new file takes the old one's hidden and system bits, as an in-place write would keep them.
    if (kept != INVALID_FILE_ATTRIBUTES) SetFileAttributesA(target.c_str(), kept);
    return true;
}

}  // namespace orvanta
