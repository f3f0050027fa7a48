// Runs against the file store on POSIX hosts and the real registry (in a sandbox key) on Windows.
#include "core/RegistryAPI.h"

#include <gtest/gtest.h>

#include "support/Sandbox.h"

namespace orvanta {
namespace {

constexpr const char* kKey = "HKCU\\Software\\OrvantaRegistryTest";

class RegistryAPITest : public ::testing::Test {
protected:
    void SetUp() override {
        registry.createRegistryKey(kKey);
        ASSERT_TRUE(registry.registryKeyExists(kKey));
    }

    testing::Sandbox box;
    RegistryAPI registry{box.host()};
};

TEST_F(RegistryAPITest, RootNamesAreShortOrLongInAnyCaseAndParsingSplitsTheSubkey) {
    registry.writeSettingNumber("hkcu\\Software\\OrvantaRegistryTest", "lastproject", 7);
    EXPECT_EQ(
        registry.readSettingNumber("HKEY_CURRENT_USER\\Software\\OrvantaRegistryTest", "lastproject", -1), 7);
    EXPECT_EQ(
        registry.readSettingNumber("hkey_current_user\\Software\\OrvantaRegistryTest", "lastproject", -1), 7);
    EXPECT_TRUE(registry.registryKeyExists("HKEY_CURRENT_USER\\Software\\OrvantaRegistryTest"));

    std::string path = "hkey_local_machine\\Software\\X";
    std::string subKey;
    EXPECT_EQ(registry.parseRegistryPath(path, subKey), kHkeyLocalMachine);
    EXPECT_EQ(path, "HKLM\\Software\\X");
    EXPECT_EQ(subKey, "Software\\X");

    path = "HKCC";
    EXPECT_EQ(registry.parseRegistryPath(path, subKey), kHkeyCurrentConfig);
    EXPECT_EQ(subKey, "");

    path = "HKXX\\Software";
    EXPECT_EQ(registry.parseRegistryPath(path, subKey), 0u);
}

TEST_F(RegistryAPITest, ReadSettingNumberFallsBackOnlyWhenTheQueryFails) {
    const std::string key = kKey;
    EXPECT_EQ(registry.readSettingNumber(key + "\\Missing", "saveAlways", 5), 5) << "missing key";
    EXPECT_EQ(registry.readSettingNumber(key, "absent", -1), -1) << "missing value";
    registry.writeRegistryString(key, "long", "more than four bytes");
    EXPECT_EQ(registry.readSettingNumber(key, "long", 3), 3) << "a value too large for four bytes";
    registry.writeRegistryString(key, "abc", "abc");
    EXPECT_EQ(registry.readSettingNumber(key, "abc", 3), 0x00636261) << "a string's NUL is counted";
    registry.writeRegistryString(key, "abcd", "abcd");
    EXPECT_EQ(registry.readSettingNumber(key, "abcd", 3), 3) << "four letters and their NUL do not fit";
    Host& host = box.host();
    RegistryKey opened = 0;
    ASSERT_EQ(host.regOpenKey(kHkeyCurrentUser, "Software\\OrvantaRegistryTest", kKeyWrite, opened), 0);
    ASSERT_EQ(host.regSetValue(opened, "binary", kRegBinary, "wxyz"), 0);
    host.regCloseKey(opened);
    EXPECT_EQ(registry.readSettingNumber(key, "binary", 3), 0x7a797877)
        << "four bytes of any type are a number";
    registry.writeSettingNumber(key, "negative", -2);
    EXPECT_EQ(registry.readSettingNumber(key, "negative", 0), -2);
}

TEST_F(RegistryAPITest, StringsAreCutAndTrimmedAndWritesToAMissingKeyVanishUnlessKeysAreCreated) {
    registry.writeRegistryString(kKey, "long", std::string(300, 'x'));
    EXPECT_EQ(registry.readRegistryString(kKey, "long", ""), std::string(255, 'x'));
    registry.writeRegistryString(kKey, "blanks", "  padded  ");
    // The trim runs before the cut at the NUL, so only the leading blanks go.
    EXPECT_EQ(registry.readRegistryString(kKey, "blanks", ""), "padded  ");
    registry.writeRegistryString(kKey, "@", "default value");
    EXPECT_EQ(registry.readRegistryString(kKey, "", "none"), "default value");
    EXPECT_EQ(registry.readRegistryString(kKey, "absent", "fallback"), "fallback");
    EXPECT_TRUE(registry.registryValueExists(kKey, "blanks"));
    EXPECT_FALSE(registry.registryValueExists(kKey, "absent"));

    const std::string missing = std::string(kKey) + "\\Settings";
    registry.writeSettingNumber(missing, "compressor", 2);
    EXPECT_FALSE(registry.registryKeyExists(missing));
    EXPECT_EQ(registry.readSettingNumber(missing, "compressor", -1), -1);

    registry.createMissingKeys = true;
    registry.writeSettingNumber(missing, "compressor", 2);
    EXPECT_EQ(registry.readSettingNumber(missing, "compressor", -1), 2);
}

}  // namespace
}  // namespace orvanta
