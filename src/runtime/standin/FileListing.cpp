#include "FileListing.h"

#include <windows.h>

#include <algorithm>
#include <array>

namespace orvanta::standin {
namespace {

std::uint32_t crcTableEntry(std::uint32_t index) {
    std::uint32_t value = index;
    for (int bit = 0; bit < 8; ++bit) value = (value & 1U) != 0 ? (value >> 1) ^ 0xEDB88320U : value >> 1;
    return value;
}

std::uint32_t updateCrc(std::uint32_t crc, const unsigned char* data, DWORD size) {
    static const auto table = [] {
        std::array<std::uint32_t, 256> entries{};
        for (std::uint32_t index = 0; index < 256; ++index) entries[index] = crcTableEntry(index);
        return entries;
    }();
    for (DWORD index = 0; index < size; ++index) crc = table[(crc ^ data[index]) & 0xFFU] ^ (crc >> 8);
    return crc;
}

void measure(const std::wstring& path, ListedFile& file) {
    const HANDLE handle = CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                      OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (handle == INVALID_HANDLE_VALUE) {
        file.readable = false;
        return;
    }
    std::array<unsigned char, 65536> buffer{};
    std::uint32_t crc = 0xFFFFFFFFU;
    for (;;) {
        DWORD got = 0;
        if (!ReadFile(handle, buffer.data(), static_cast<DWORD>(buffer.size()), &got, nullptr)) {
            file.readable = false;
            break;
        }
        if (got == 0) break;
        crc = updateCrc(crc, buffer.data(), got);
        file.size += got;
    }
    CloseHandle(handle);
    file.crc32 = crc ^ 0xFFFFFFFFU;
    if (!file.readable) file = ListedFile{file.relativePath, 0, 0, false};
}

void collect(const std::wstring& folder, const std::wstring& prefix, std::vector<ListedFile>& files) {
    WIN32_FIND_DATAW found;
    const HANDLE search = FindFirstFileW((folder + L"\\*").c_str(), &found);
    if (search == INVALID_HANDLE_VALUE) return;
    do {
        const std::wstring name = found.cFileName;
        if (name == L"." || name == L"..") continue;
        if ((found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0) {
            collect(folder + L"\\" + name, prefix + name + L"\\", files);
        } else {
            ListedFile file;
            file.relativePath = prefix + name;
            measure(folder + L"\\" + name, file);
            files.push_back(file);
        }
    } while (FindNextFileW(search, &found));
    FindClose(search);
}

}  // namespace

std::vector<ListedFile> listFiles(const std::wstring& folder) {
    std::vector<ListedFile> files;
    collect(folder, L"", files);
    std::sort(files.begin(), files.end(),
              [](const ListedFile& a, const ListedFile& b) { return a.relativePath < b.relativePath; });
    return files;
}

}  // namespace orvanta::standin
