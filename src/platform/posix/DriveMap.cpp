#include "platform/posix/DriveMap.h"

#include <dirent.h>
#include <sys/stat.h>

#include "platform/AnsiText.h"
#include "platform/CaseFolding.h"
#include "platform/WindowsPath.h"

namespace orvanta {

namespace {

bool pathExists(const std::string& path) {
    struct stat info {};
    return lstat(path.c_str(), &info) == 0;
}

// The entry of `folder` whose name equals `name` ignoring case, or empty.
std::string findIgnoringCase(const std::string& folder, const std::string& ansiName) {
    DIR* directory = opendir(folder.empty() ? "." : folder.c_str());
    if (directory == nullptr) return {};
    std::string found;
    while (const dirent* entry = readdir(directory)) {
        if (equalsIgnoringCase(utf8ToWindows1252(entry->d_name), ansiName)) {
            found = entry->d_name;
            break;
        }
    }
    closedir(directory);
    return found;
}

std::string appendComponent(const std::string& base, const std::string& name) {
    if (base.empty()) return name;
    return base.back() == '/' ? base + name : base + "/" + name;
}

}  // namespace

DriveMap::DriveMap(std::string driveCFolder) : driveC_(std::move(driveCFolder)) {
    while (driveC_.size() > 1 && driveC_.back() == '/') driveC_.pop_back();
}

std::string DriveMap::toHostPath(std::string_view windowsPath) const {
    std::string path(windowsPath);
    for (char& c : path)
        if (c == '/') c = '\\';
    std::string current;
    if (path.size() >= 2 && path[1] == ':') {
        const char drive = lowerCase(path[0]);
        if (drive == 'z') {
            current = "/";
        } else if (drive == 'c') {
            current = driveC_;
        } else {
            return {};
        }
        path.erase(0, 2);
    } else if (!path.empty() && path[0] == '\\') {
        current = "/";
    }
    const auto components = pathComponents(path);
    // The common case: the path exists as written, and no folder needs a search.
    std::string direct = current;
    for (const auto& component : components) direct = appendComponent(direct, windows1252ToUtf8(component));
    if (pathExists(direct)) return direct;
    bool resolving = true;
    for (const auto& component : components) {
        std::string name = windows1252ToUtf8(component);
        std::string candidate = appendComponent(current, name);
        if (resolving && !pathExists(candidate)) {
            const std::string match = findIgnoringCase(current, component);
            if (match.empty()) {
                resolving = false;  // the rest does not exist; keep it as given
            } else {
                candidate = appendComponent(current, match);
            }
        }
        current = std::move(candidate);
    }
    return current;
}

std::string DriveMap::toWindowsPath(std::string_view hostPath) const {
    std::string path(hostPath);
    std::string prefix;
    if (path.compare(0, driveC_.size(), driveC_) == 0 &&
        (path.size() == driveC_.size() || path[driveC_.size()] == '/')) {
        prefix = "C:";
        path.erase(0, driveC_.size());
    } else if (!path.empty() && path[0] == '/') {
        prefix = "Z:";
    }
    for (char& c : path)
        if (c == '/') c = '\\';
    if (!prefix.empty() && path.empty()) path = "\\";
    return prefix + utf8ToWindows1252(path);
}

}  // namespace orvanta
