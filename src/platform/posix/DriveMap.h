#pragma once
// Drive letters on a POSIX host, as wine maps them: "Z:\" is the host root and "C:\" a folder of
// the user's that plays the Windows system drive. Names are matched case-insensitively when the
// exact name is absent, and converted between Windows-1252 and the host's UTF-8.

#include <string>
#include <string_view>

namespace orvanta {

class DriveMap {
public:
    explicit DriveMap(std::string driveCFolder);

    // "C:\Program Files\x" -> "<driveC>/Program Files/x"; "Z:\home\a" -> "/home/a". Each existing
    // component is found ignoring case; the rest of the path is kept as given. A relative path
    // stays relative; another drive letter gives an empty string.
    std::string toHostPath(std::string_view windowsPath) const;
    // The reverse: a path below the C: folder gets "C:", any other absolute path "Z:".
    std::string toWindowsPath(std::string_view hostPath) const;

    const std::string& driveCFolder() const { return driveC_; }

private:
    std::string driveC_;
};

}  // namespace orvanta
