#include "platform/win32/RegistryRoots.h"

#include <utility>

namespace orvanta {

namespace {

HKEY machineRoot(RegistryKey root) {
    // The API's roots are LONG constants, so a 64-bit HKEY carries them sign-extended.
    const auto value = static_cast<LONG>(static_cast<std::uint32_t>(root));
    return reinterpret_cast<HKEY>(static_cast<LONG_PTR>(value));
}

}  // namespace

std::string registryRootName(RegistryKey root) {
    switch (root) {
        case kHkeyClassesRoot:
            return "HKEY_CLASSES_ROOT";
        case kHkeyCurrentUser:
            return "HKEY_CURRENT_USER";
        case kHkeyLocalMachine:
            return "HKEY_LOCAL_MACHINE";
        case kHkeyUsers:
            return "HKEY_USERS";
        case kHkeyPerformanceData:
            return "HKEY_PERFORMANCE_DATA";
        case kHkeyCurrentConfig:
            return "HKEY_CURRENT_CONFIG";
        case kHkeyDynData:
            return "HKEY_DYN_DATA";
        default:
            return {};
    }
}

RegistryRoots::RegistryRoots(std::string sandboxKey) : sandboxKey_(std::move(sandboxKey)) {}

RegistryRoots::~RegistryRoots() {
    for (const auto& [root, key] : sandboxRoots_) RegCloseKey(key);
    if (!sandboxKey_.empty()) RegDeleteTreeA(HKEY_CURRENT_USER, sandboxKey_.c_str());
}

bool RegistryRoots::isRoot(RegistryKey key) {
    return !registryRootName(key).empty();
}

HKEY RegistryRoots::keyOf(RegistryKey key) {
    if (!isRoot(key)) return reinterpret_cast<HKEY>(key);
    if (sandboxKey_.empty()) return machineRoot(key);
    return sandboxRoot(key);
}

HKEY RegistryRoots::sandboxRoot(RegistryKey root) {
    if (const auto known = sandboxRoots_.find(root); known != sandboxRoots_.end()) return known->second;
    const std::string path = sandboxKey_ + "\\" + registryRootName(root);
    HKEY key = nullptr;
    if (RegCreateKeyExA(HKEY_CURRENT_USER, path.c_str(), 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &key,
                        nullptr) != ERROR_SUCCESS)
        return nullptr;
    sandboxRoots_[root] = key;
    return key;
}

}  // namespace orvanta
