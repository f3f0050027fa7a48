// The registry sandbox is checked with the raw API, so a fault in the host cannot hide itself.
#include <windows.h>

#include <gtest/gtest.h>

#include "support/Sandbox.h"

namespace orvanta {
namespace {

bool rawKeyExists(const std::string& path) {
    HKEY key = nullptr;
    if (RegOpenKeyExA(HKEY_CURRENT_USER, path.c_str(), 0, KEY_READ, &key) != ERROR_SUCCESS) return false;
    RegCloseKey(key);
    return true;
}

std::string rawString(const std::string& path, const char* name) {
    char buffer[256] = {};
    DWORD size = sizeof buffer;
    if (RegGetValueA(HKEY_CURRENT_USER, path.c_str(), name, RRF_RT_REG_SZ, nullptr, buffer, &size) !=
        ERROR_SUCCESS)
        return "<missing>";
    return buffer;
}

std::string writeBelow(Host& host, RegistryKey root, const std::string& subKey, const std::string& text) {
    RegistryKey key = 0;
    if (host.regCreateKey(root, subKey, key) != kErrorSuccess) return "create failed";
    const long status = host.regSetValue(key, "Name", kRegSz, text);
    host.regCloseKey(key);
    return status == kErrorSuccess ? "" : "set failed";
}

TEST(RegistrySandbox, MachineKeysLandBelowTheSandboxKeyAndGoWithTheHost) {
    testing::Sandbox box;
    const std::string sandboxKey = box.config().registrySandboxKey;
    ASSERT_EQ(writeBelow(box.host(), kHkeyLocalMachine, "Software\\OrvantaProbe", "machine"), "");
    ASSERT_EQ(writeBelow(box.host(), kHkeyCurrentUser, "Software\\OrvantaProbe", "user"), "");

    EXPECT_EQ(rawString(sandboxKey + "\\HKEY_LOCAL_MACHINE\\Software\\OrvantaProbe", "Name"), "machine");
    EXPECT_EQ(rawString(sandboxKey + "\\HKEY_CURRENT_USER\\Software\\OrvantaProbe", "Name"), "user");
    EXPECT_FALSE(rawKeyExists("Software\\OrvantaProbe")) << "the real HKCU key was written";

    box.restartHost();
    EXPECT_FALSE(rawKeyExists(sandboxKey)) << "the sandbox outlived its host";
}

TEST(RegistrySandbox, RootsAndOpenedKeysServeEveryCall) {
    testing::Sandbox box;
    Host& host = box.host();
    ASSERT_EQ(host.regSetValue(kHkeyCurrentUser, "OnRoot", kRegDword, std::string("\x2A\0\0\0", 4)),
              kErrorSuccess);
    EXPECT_EQ(host.regCloseKey(kHkeyCurrentUser), kErrorSuccess);

    RegistryKey opened = 0;
    ASSERT_EQ(host.regOpenKey(kHkeyCurrentUser, "", kKeyRead, opened), kErrorSuccess);
    std::uint32_t type = kRegNone;
    std::string data(4, ' ');
    EXPECT_EQ(host.regQueryValue(opened, "OnRoot", type, data), kErrorSuccess);
    EXPECT_EQ(type, kRegDword);
    EXPECT_EQ(data, std::string("\x2A\0\0\0", 4));
    EXPECT_EQ(host.regCloseKey(opened), kErrorSuccess);
}

TEST(RegistryWithoutSandbox, RootNumbersReachTheMachineRoots) {
    // The 32-bit root numbers must become the sign-extended handles of a 64-bit process.
    auto host = createHost({});
    RegistryKey key = 0;
    ASSERT_EQ(host->regOpenKey(kHkeyLocalMachine, "Software", kKeyRead, key), kErrorSuccess);
    host->regCloseKey(key);
    EXPECT_EQ(host->regOpenKey(kHkeyCurrentUser, "Software\\OrvantaNoSuchKey", kKeyRead, key),
              kErrorFileNotFound);
}

}  // namespace
}  // namespace orvanta
