// The registry of the POSIX host: the file store, plus the "App Paths" registrations of the
// archivers, answered from the programs found on the search path.
#include "platform/CaseFolding.h"
#include "platform/WindowsPath.h"
#include "platform/posix/PosixHost.h"

namespace orvanta {

namespace {

std::optional<std::string> rootName(RegistryKey root) {
    switch (root) {
        case kHkeyClassesRoot:
            return "HKCR";
        case kHkeyCurrentUser:
            return "HKCU";
        case kHkeyLocalMachine:
            return "HKLM";
        case kHkeyUsers:
            return "HKUS";
        case kHkeyPerformanceData:
            return "HKPD";
        case kHkeyCurrentConfig:
            return "HKCC";
        case kHkeyDynData:
            return "HKDD";
        default:
            return std::nullopt;
    }
}

// No root (0) or a value from the range of predefined roots that names none.
bool isUnknownRoot(RegistryKey key) {
    return key == 0 || (key >= kHkeyClassesRoot && key < kHkeyClassesRoot + 0x100);
}

bool isRootPath(const std::string& path) {
    return path.find('\\') == std::string::npos;
}

}  // namespace

long PosixHost::resolveKey(RegistryKey key, const std::string& subKey, std::string& path) const {
    if (const auto root = rootName(key)) {
        path = *root;
    } else if (const auto open = openKeys_.find(key); open != openKeys_.end()) {
        path = open->second;
    } else {
        return isUnknownRoot(key) ? kErrorFileNotFound : kErrorInvalidHandle;
    }
    for (const auto& part : pathComponents(subKey)) path += "\\" + part;
    return kErrorSuccess;
}

bool PosixHost::keyExists(const std::string& path) const {
    if (isRootPath(path) || ArchiverLinks::isAboveRegistrations(path)) return true;
    if (ArchiverLinks::isRegistrationKey(path)) return !archivers_.refreshLink(path).empty();
    return store_.keyExists(path);
}

RegistryKey PosixHost::newHandle(const std::string& path) {
    const RegistryKey handle = nextHandle_++;
    openKeys_[handle] = path;
    return handle;
}

// "Path" names the links folder and the default value the link itself.
std::optional<StoredValue> PosixHost::registrationValue(const std::string& keyPath, const std::string& name) {
    const std::string link = archivers_.refreshLink(keyPath);
    if (link.empty()) return std::nullopt;
    if (equalsIgnoringCase(name, "Path"))
        return StoredValue{name, kRegSz, toWindowsPath(archivers_.folder())};
    if (name.empty()) return StoredValue{name, kRegSz, toWindowsPath(link)};
    return std::nullopt;
}

long PosixHost::regCreateKey(RegistryKey root, const std::string& subKey, RegistryKey& result) {
    std::string path;
    if (const long status = resolveKey(root, subKey, path); status != kErrorSuccess) return status;
    if (!keyExists(path)) {
        // The registrations belong to the machine: a user cannot make them, as under HKLM on Windows.
        if (ArchiverLinks::isRegistrationKey(path) || !store_.createKey(path)) return kErrorAccessDenied;
    }
    result = newHandle(path);
    return kErrorSuccess;
}

long PosixHost::regOpenKey(RegistryKey root, const std::string& subKey, std::uint32_t, RegistryKey& result) {
    std::string path;
    if (const long status = resolveKey(root, subKey, path); status != kErrorSuccess) return status;
    if (!keyExists(path)) return kErrorFileNotFound;
    result = newHandle(path);
    return kErrorSuccess;
}

std::optional<std::string> PosixHost::openKeyPath(RegistryKey key) const {
    if (const auto open = openKeys_.find(key); open != openKeys_.end()) return open->second;
    return rootName(key);
}

long PosixHost::regQueryValue(RegistryKey key, const std::string& name, std::uint32_t& type,
                              std::string& data) {
    const auto path = openKeyPath(key);
    if (!path) return kErrorInvalidHandle;
    auto value = ArchiverLinks::isRegistrationKey(*path) ? registrationValue(*path, name)
                                                         : store_.findValue(*path, name);
    if (!value) return kErrorFileNotFound;
    type = value->type;
    std::string bytes = std::move(value->data);
    // A string stored without its NUL gets one when the caller's buffer has room, as Windows does.
    const bool unterminated = value->type == kRegSz && (bytes.empty() || bytes.back() != '\0');
    if (unterminated && data.size() > bytes.size()) bytes += '\0';
    if (data.size() < bytes.size()) {
        data.resize(bytes.size() + (unterminated ? 1 : 0));
        return kErrorMoreData;
    }
    data = std::move(bytes);
    return kErrorSuccess;
}

long PosixHost::regSetValue(RegistryKey key, const std::string& name, std::uint32_t type,
                            std::string_view data) {
    const auto path = openKeyPath(key);
    if (!path) return kErrorInvalidHandle;
    if (ArchiverLinks::isRegistrationKey(*path)) return kErrorAccessDenied;
    // RegSetValueExA stores a string given without its NUL with one, so its size counts it.
    std::string stored(data);
    if (type == kRegSz && (stored.empty() || stored.back() != '\0')) stored += '\0';
    return store_.setValue(*path, name, type, stored) ? kErrorSuccess : kErrorAccessDenied;
}

long PosixHost::regCloseKey(RegistryKey key) {
    if (rootName(key)) return kErrorSuccess;
    return openKeys_.erase(key) != 0 ? kErrorSuccess : kErrorInvalidHandle;
}

}  // namespace orvanta
