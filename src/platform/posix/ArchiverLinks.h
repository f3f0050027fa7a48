#pragma once
// The "App Paths" registrations of WinRAR and 7-Zip on a POSIX host. A registration exists when
// its program (`rar`, `7z`) is on the search path; its folder then holds a link named as the
// Windows program ("rar.exe", "7z.exe"), so that paths built from the registration work unchanged
// in file tests and batch lines.

#include <optional>
#include <string>

namespace orvanta {

class ArchiverLinks {
public:
    // `searchPath`: where the programs are looked for; nothing means $PATH at each look-up.
    ArchiverLinks(std::string linkFolder, std::optional<std::string> searchPath);

    // "HKLM\Software\Microsoft\Windows\CurrentVersion\App Paths\WinRAR.exe" and the 7zFM.exe key.
    static bool isRegistrationKey(const std::string& keyPath);
    // The keys above the registrations, which exist on every Windows machine.
    static bool isAboveRegistrations(const std::string& keyPath);

    // The host path of the registration's link, made or renewed now; empty when the program is
    // not on the search path or `keyPath` is no registration.
    std::string refreshLink(const std::string& keyPath) const;
    const std::string& folder() const { return folder_; }

private:
    std::string folder_;
    std::optional<std::string> searchPath_;
};

}  // namespace orvanta
