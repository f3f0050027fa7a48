#include "core/RegistryAPI.h"

#include <array>
#include <cstring>
#include <utility>

#include "platform/CaseFolding.h"
#include "platform/WindowsPath.h"

namespace orvanta {

namespace {

struct RootName {
    const char* shortName;
    const char* longName;
    RegistryKey handle;
};

constexpr std::array<RootName, 7> kRoots = {{
    {"HKCU", "HKEY_CURRENT_USER", kHkeyCurrentUser},
    {"HKLM", "HKEY_LOCAL_MACHINE", kHkeyLocalMachine},
    {"HKCR", "HKEY_CLASSES_ROOT", kHkeyClassesRoot},
    {"HKUS", "HKEY_USERS", kHkeyUsers},
    {"HKPD", "HKEY_PERFORMANCE_DATA", kHkeyPerformanceData},
    {"HKDD", "HKEY_DYN_DATA", kHkeyDynData},
    {"HKCC", "HKEY_CURRENT_CONFIG", kHkeyCurrentConfig},
}};

// Replaces every occurrence of `from`, ignoring case, as the path's long root names are replaced.
void replaceIgnoringCase(std::string& text, std::string_view from, std::string_view to) {
    std::string upper = toUpperCase(text);
    std::size_t at = 0;
    while ((at = upper.find(from, at)) != std::string::npos) {
        text.replace(at, from.size(), to);
        upper.replace(at, from.size(), to);
        at += to.size();
    }
}

// The query gives what fits a buffer of 255 characters; a longer value is cut there.
constexpr std::size_t kStringBufferSize = 255;

std::string trimBlanks(const std::string& text) {
    const auto first = text.find_first_not_of(' ');
    if (first == std::string::npos) return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

}  // namespace

RegistryKey RegistryAPI::parseRegistryPath(std::string& path, std::string& subKey) {
    for (const auto& root : kRoots) replaceIgnoringCase(path, root.longName, root.shortName);
    const auto cut = path.find('\\');
    const std::string rootName = toUpperCase(path.substr(0, cut));
    subKey = cut == std::string::npos ? std::string() : path.substr(cut + 1);
    for (const auto& root : kRoots)
        if (rootName == root.shortName) return root.handle;
    return 0;
}

RegistryKey RegistryAPI::createRegistryKey(std::string path) {
    rootKey_ = parseRegistryPath(path, subKey_);
    openKey_ = 0;
    host_.regCreateKey(rootKey_, subKey_, openKey_);
    host_.regCloseKey(openKey_);
    return openKey_;
}

bool RegistryAPI::openKey(std::string path, std::uint32_t access) {
    rootKey_ = parseRegistryPath(path, subKey_);
    openKey_ = 0;
    return host_.regOpenKey(rootKey_, subKey_, access, openKey_) == kErrorSuccess;
}

bool RegistryAPI::registryKeyExists(std::string path) {
    if (!openKey(std::move(path), kKeyAllAccess)) return false;
    host_.regCloseKey(openKey_);
    return true;
}

RegistryKey RegistryAPI::writeValue(const std::string& path, const std::string& valueName, std::uint32_t type,
                                    const std::string& data) {
    if (!registryKeyExists(path)) {
        if (!createMissingKeys) return 0;
        createRegistryKey(path);
    }
    if (!openKey(path, kKeyWrite)) return 0;
    const std::string name = valueName == "@" ? std::string() : valueName;
    if (host_.regSetValue(openKey_, name, type, data) == kErrorSuccess) host_.regCloseKey(openKey_);
    return openKey_;
}

RegistryKey RegistryAPI::writeRegistryString(const std::string& path, const std::string& valueName,
                                             const std::string& value) {
    return writeValue(path, valueName, kRegSz, value);
}

RegistryKey RegistryAPI::writeSettingNumber(const std::string& path, const std::string& valueName,
                                            std::int32_t value) {
    std::string bytes(4, '\0');
    const auto bits = static_cast<std::uint32_t>(value);
    for (std::size_t i = 0; i < 4; ++i) bytes[i] = static_cast<char>((bits >> (8 * i)) & 0xFF);
    return writeValue(path, valueName, kRegDword, bytes);
}

bool RegistryAPI::queryString(const std::string& path, const std::string& valueName, std::string& value) {
    if (!openKey(path, kKeyRead)) return false;
    std::uint32_t type = kRegSz;
    std::string data(kStringBufferSize, ' ');
    long result = host_.regQueryValue(openKey_, valueName, type, data);
    if (result == kErrorMoreData) result = host_.regQueryValue(openKey_, valueName, type, data);
    // The module leaves the key open on a failed query; closing it changes nothing a caller sees.
    host_.regCloseKey(openKey_);
    if (result != kErrorSuccess) return false;
    if (data.size() > kStringBufferSize) data.resize(kStringBufferSize);
    value = trimBlanks(data);
    if (const auto nul = value.find('\0'); nul != std::string::npos) value.resize(nul);
    return true;
}

std::string RegistryAPI::readRegistryString(const std::string& path, const std::string& valueName,
                                            const std::string& fallback) {
    std::string value;
    return queryString(path, valueName, value) ? value : fallback;
}

std::int32_t RegistryAPI::readSettingNumber(const std::string& path, const std::string& valueName,
                                            std::int32_t fallback) {
    if (!openKey(path, kKeyRead)) return fallback;
    std::uint32_t type = kRegDword;
    std::string data(4, '\0');
    const long result = host_.regQueryValue(openKey_, valueName, type, data);
    host_.regCloseKey(openKey_);
    if (result != kErrorSuccess) return fallback;
    // Any value of up to four bytes reads as a number, whatever its type.
    std::uint32_t bits = 0;
    for (std::size_t i = 0; i < data.size() && i < 4; ++i)
        bits |= static_cast<std::uint32_t>(static_cast<unsigned char>(data[i])) << (8 * i);
    return static_cast<std::int32_t>(bits);
}

bool RegistryAPI::registryValueExists(const std::string& path, const std::string& valueName) {
    std::string ignored;
    return queryString(path, valueName, ignored);
}

}  // namespace orvanta
