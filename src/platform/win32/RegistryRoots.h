#pragma once
// Turns the interface's registry handles into the HKEYs the calls take. The root numbers are the
// 32-bit values of the Windows API, while a 64-bit HKEY holds them sign-extended; keys opened by the
// calls pass through unchanged. With a sandbox key, each root is a key
// HKEY_CURRENT_USER\<sandbox>\<root name>, made when first used and deleted with this object.

#include <windows.h>

#include <map>
#include <string>

#include "platform/Host.h"

namespace orvanta {

class RegistryRoots {
public:
    explicit RegistryRoots(std::string sandboxKey);
    ~RegistryRoots();
    RegistryRoots(const RegistryRoots&) = delete;
    RegistryRoots& operator=(const RegistryRoots&) = delete;

    // The HKEY for a handle of the interface; nullptr for a root the sandbox cannot make.
    HKEY keyOf(RegistryKey key);
    static bool isRoot(RegistryKey key);

private:
    HKEY sandboxRoot(RegistryKey root);

    std::string sandboxKey_;
    std::map<RegistryKey, HKEY> sandboxRoots_;
};

// "HKEY_LOCAL_MACHINE" for kHkeyLocalMachine; empty for anything that is not a root.
std::string registryRootName(RegistryKey root);

}  // namespace orvanta
