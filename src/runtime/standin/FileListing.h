#pragma once
// Every file below a folder with its size and CRC-32, as the stand-in installer reports them.

#include <cstdint>
#include <string>
#include <vector>

namespace orvanta::standin {

struct ListedFile {
    std::wstring relativePath;  // below the listed folder, with backslashes
    std::uint64_t size = 0;
    std::uint32_t crc32 = 0;
    bool readable = true;  // false when the file could not be read whole: size and CRC are then 0
};

// The files below `folder`, recursively, sorted by relative path.
std::vector<ListedFile> listFiles(const std::wstring& folder);

}  // namespace orvanta::standin
