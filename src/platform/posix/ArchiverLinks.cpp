#include "platform/posix/ArchiverLinks.h"

#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cstdio>
#include <filesystem>

#include "platform/CaseFolding.h"
#include "platform/WindowsPath.h"
#include "platform/posix/ProgramSearch.h"

namespace orvanta {

namespace {

constexpr const char* kAppPaths = "HKLM\\Software\\Microsoft\\Windows\\CurrentVersion\\App Paths";

struct Registration {
    const char* key;      // below App Paths
    const char* program;  // on the search path
    const char* link;     // in the links folder
};
constexpr std::array<Registration, 2> kRegistrations = {{
    {"WinRAR.exe", "rar", "rar.exe"},
    {"7zFM.exe", "7z", "7z.exe"},
}};

const Registration* registrationOf(const std::string& keyPath) {
    for (const auto& registration : kRegistrations)
        if (equalsIgnoringCase(keyPath, std::string(kAppPaths) + "\\" + registration.key))
            return &registration;
    return nullptr;
}

std::string linkTarget(const std::string& link) {
    std::string target(4096, '\0');
    const ssize_t length = ::readlink(link.c_str(), target.data(), target.size());
    target.resize(length > 0 ? static_cast<std::size_t>(length) : 0);
    return target;
}

}  // namespace

ArchiverLinks::ArchiverLinks(std::string linkFolder, std::optional<std::string> searchPath)
    : folder_(std::move(linkFolder)), searchPath_(std::move(searchPath)) {}

bool ArchiverLinks::isRegistrationKey(const std::string& keyPath) {
    return registrationOf(keyPath) != nullptr;
}

bool ArchiverLinks::isAboveRegistrations(const std::string& keyPath) {
    const std::string above = kAppPaths;
    return keyPath.size() <= above.size() && equalsIgnoringCase(keyPath, above.substr(0, keyPath.size())) &&
           (keyPath.size() == above.size() || above[keyPath.size()] == '\\');
}

std::string ArchiverLinks::refreshLink(const std::string& keyPath) const {
    const Registration* registration = registrationOf(keyPath);
    if (registration == nullptr) return {};
    const std::string found =
        findProgramOnPath(registration->program, searchPath_ ? *searchPath_ : environmentSearchPath());
    if (found.empty()) return {};
    std::error_code ignored;
    const std::string program = std::filesystem::absolute(found, ignored).string();
    const std::string link = folder_ + "/" + registration->link;
    if (linkTarget(link) == program) return link;
    ::mkdir(folder_.c_str(), 0777);
    // A new link under a temporary name replaces the old one in one step.
    const std::string fresh = link + ".new";
    ::unlink(fresh.c_str());
    if (::symlink(program.c_str(), fresh.c_str()) != 0 || std::rename(fresh.c_str(), link.c_str()) != 0) {
        ::unlink(fresh.c_str());
        return {};
    }
    return link;
}

}  // namespace orvanta
