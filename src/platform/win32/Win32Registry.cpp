// The registry of the Windows host: the Reg*A calls themselves, with the roots the sandbox chooses.
#include <windows.h>

#include "platform/win32/Win32Host.h"

namespace orvanta {

namespace {

RegistryKey handleOf(HKEY key) {
    return reinterpret_cast<RegistryKey>(key);
}

// The calls refuse a null buffer as a size query only when handed a real one, so an empty buffer
// still points somewhere.
BYTE* bufferOf(std::string& data) {
    static BYTE none = 0;
    return data.empty() ? &none : reinterpret_cast<BYTE*>(data.data());
}

}  // namespace

long Win32Host::regCreateKey(RegistryKey root, const std::string& subKey, RegistryKey& result) {
    HKEY parent = registryRoots_.keyOf(root);
    if (parent == nullptr) return kErrorInvalidHandle;
    HKEY key = nullptr;
    const LONG status = RegCreateKeyA(parent, subKey.c_str(), &key);
    if (status == ERROR_SUCCESS) result = handleOf(key);
    return status;
}

long Win32Host::regOpenKey(RegistryKey root, const std::string& subKey, std::uint32_t access,
                           RegistryKey& result) {
    HKEY parent = registryRoots_.keyOf(root);
    if (parent == nullptr) return kErrorInvalidHandle;
    HKEY key = nullptr;
    const LONG status = RegOpenKeyExA(parent, subKey.c_str(), 0, access, &key);
    if (status == ERROR_SUCCESS) result = handleOf(key);
    return status;
}

long Win32Host::regQueryValue(RegistryKey key, const std::string& name, std::uint32_t& type,
                              std::string& data) {
    HKEY open = registryRoots_.keyOf(key);
    if (open == nullptr) return kErrorInvalidHandle;
    DWORD storedType = REG_NONE;
    auto size = static_cast<DWORD>(data.size());
    const LONG status = RegQueryValueExA(open, name.c_str(), nullptr, &storedType, bufferOf(data), &size);
    if (status == ERROR_SUCCESS || status == ERROR_MORE_DATA) {
        type = storedType;
        data.resize(size);
    }
    return status;
}

long Win32Host::regSetValue(RegistryKey key, const std::string& name, std::uint32_t type,
                            std::string_view data) {
    HKEY open = registryRoots_.keyOf(key);
    if (open == nullptr) return kErrorInvalidHandle;
    return RegSetValueExA(open, name.c_str(), 0, type, reinterpret_cast<const BYTE*>(data.data()),
                          static_cast<DWORD>(data.size()));
}

long Win32Host::regCloseKey(RegistryKey key) {
    // The roots stay open for the host's life, as the machine's own roots do.
    if (RegistryRoots::isRoot(key)) return kErrorSuccess;
    return RegCloseKey(reinterpret_cast<HKEY>(key));
}

}  // namespace orvanta
