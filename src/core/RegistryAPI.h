#pragma once
// A thin layer over the registry that takes a key as one path string ("HKCU\Software\x" or
// "HKEY_CURRENT_USER\Software\x"). Every failure is swallowed: a read gives the caller's
// default, a write vanishes.

#include <cstdint>
#include <string>

#include "platform/Host.h"

namespace orvanta {

class RegistryAPI {
public:
    explicit RegistryAPI(Host& host) : host_(host) {}

    // Whether writes create a missing key; nothing in the program turns it on.
    bool createMissingKeys = false;

    // The root handle named by the path (0 for an unknown root); long root names in `path` are
    // replaced by short ones, and the rest after the first backslash goes to `subKey`.
    RegistryKey parseRegistryPath(std::string& path, std::string& subKey);
    RegistryKey createRegistryKey(std::string path);
    bool registryKeyExists(std::string path);
    RegistryKey writeRegistryString(const std::string& path, const std::string& valueName,
                                    const std::string& value);
    std::string readRegistryString(const std::string& path, const std::string& valueName,
                                   const std::string& fallback);
    RegistryKey writeSettingNumber(const std::string& path, const std::string& valueName, std::int32_t value);
    std::int32_t readSettingNumber(const std::string& path, const std::string& valueName,
                                   std::int32_t fallback);
    bool registryValueExists(const std::string& path, const std::string& valueName);

private:
    // Opens the key of `path` with `access` into openKey_; false when that fails.
    bool openKey(std::string path, std::uint32_t access);
    // Reads a value as a string the way readRegistryString does; false when the query fails.
    bool queryString(const std::string& path, const std::string& valueName, std::string& value);
    RegistryKey writeValue(const std::string& path, const std::string& valueName, std::uint32_t type,
                           const std::string& data);

    Host& host_;
    // The state of the last call, overwritten by every call, as the module keeps it.
    RegistryKey rootKey_ = 0;
    RegistryKey openKey_ = 0;
    std::string subKey_;
};

}  // namespace orvanta
