#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "FakeProgram.h"
#include "support/Sandbox.h"

namespace orvanta {
namespace {

constexpr const char* kWinRar = "Software\\Microsoft\\Windows\\CurrentVersion\\App Paths\\WinRAR.exe";
constexpr const char* kSevenZip = "Software\\Microsoft\\Windows\\CurrentVersion\\App Paths\\7zFM.exe";

long queryString(Host& host, RegistryKey key, const std::string& name, std::string& value) {
    std::uint32_t type = kRegNone;
    value.assign(255, ' ');
    const long status = host.regQueryValue(key, name, type, value);
    if (const auto nul = value.find('\0'); nul != std::string::npos) value.resize(nul);
    return status;
}

long openKey(Host& host, RegistryKey root, const std::string& path, RegistryKey& key) {
    return host.regOpenKey(root, path, kKeyRead, key);
}

TEST(KeyStoreFile, KeepsValuesAcrossHostsReadsADamagedFileAsEmptyAndKnowsOnlyItsRootsAndHandles) {
    testing::Sandbox box;
    RegistryKey key = 0;
    ASSERT_EQ(box.host().regCreateKey(kHkeyCurrentUser, "Software\\Orvanta\\Settings", key), kErrorSuccess);
    ASSERT_EQ(box.host().regSetValue(key, "name", kRegSz, std::string("a\nb \0=", 6)), kErrorSuccess);
    RegistryKey reopened = 0;
    Host& restarted = box.restartHost();
    EXPECT_EQ(openKey(restarted, kHkeyCurrentUser, "SOFTWARE\\ORVANTA", reopened), kErrorSuccess)
        << "the keys above are made too";
    ASSERT_EQ(openKey(restarted, kHkeyCurrentUser, "software\\orvanta\\SETTINGS", reopened), kErrorSuccess)
        << "the store outlives its host";
    std::uint32_t type = kRegNone;
    std::string value(7, ' ');
    ASSERT_EQ(restarted.regQueryValue(reopened, "Name", type, value), kErrorSuccess);
    EXPECT_EQ(value, std::string("a\nb \0=\0", 7)) << "REG_SZ may hold any byte, and gets its NUL";
    EXPECT_EQ(box.readFile("data\\registry.store").find("Orvanta"), std::string::npos) << "names are encoded";

    std::string damaged = box.readFile("data\\registry.store");
    damaged[damaged.size() - 3] ^= 1;
    box.writeFile("data\\registry.store", damaged);
    Host& host = box.restartHost();
    EXPECT_EQ(openKey(host, kHkeyCurrentUser, "Software\\Orvanta", key), kErrorFileNotFound);
    box.writeFile("data\\registry.store", "garbage");
    EXPECT_EQ(openKey(host, kHkeyCurrentUser, "Software\\Orvanta", key), kErrorFileNotFound);

    ASSERT_EQ(host.regCreateKey(kHkeyCurrentUser, "Software\\Other", key), kErrorSuccess);
    ASSERT_EQ(host.regSetValue(key, "", kRegDword, std::string(4, '\x01')), kErrorSuccess);
    EXPECT_EQ(openKey(box.restartHost(), kHkeyCurrentUser, "software\\other", key), kErrorSuccess);
    EXPECT_EQ(box.readFile("data\\registry.store").rfind("ORVANTA-KEYSTORE", 0), 0u) << "rewritten whole";

    EXPECT_EQ(openKey(box.host(), 0, "Software", key), kErrorFileNotFound);
    EXPECT_EQ(box.host().regCreateKey(kHkeyDynData + 1, "Software", key), kErrorFileNotFound);
    EXPECT_EQ(openKey(box.host(), 0x12345678, "Software", key), kErrorInvalidHandle);
    EXPECT_EQ(box.host().regCloseKey(0x12345678), kErrorInvalidHandle);
}

TEST(ArchiverRegistrations, ExistExactlyWhenTheProgramIsOnTheSearchPath) {
    testing::Sandbox box;
    Host& host = box.host();
    RegistryKey key = 0;
    EXPECT_EQ(openKey(host, kHkeyLocalMachine, kWinRar, key), kErrorFileNotFound);
    EXPECT_EQ(host.regCreateKey(kHkeyLocalMachine, kWinRar, key), kErrorAccessDenied)
        << "the machine's, not ours";
    EXPECT_EQ(
        openKey(host, kHkeyLocalMachine, "Software\\Microsoft\\Windows\\CurrentVersion\\App Paths", key),
        kErrorSuccess);

    testing::writeFakeProgram(box.hostRoot() / "bin" / "rar", "echo rar \"$@\"");
    ASSERT_EQ(openKey(host, kHkeyLocalMachine, kWinRar, key), kErrorSuccess) << "found without a restart";
    std::string folder, program;
    ASSERT_EQ(queryString(host, key, "path", folder), kErrorSuccess);
    ASSERT_EQ(queryString(host, key, "", program), kErrorSuccess);
    EXPECT_EQ(program, folder + "\\rar.exe");
    EXPECT_EQ(std::filesystem::read_symlink(host.toHostPath(program)), box.hostRoot() / "bin" / "rar");
    EXPECT_EQ(host.regSetValue(key, "Path", kRegSz, "elsewhere"), kErrorAccessDenied);
    EXPECT_EQ(openKey(host, kHkeyLocalMachine, kSevenZip, key), kErrorFileNotFound) << "7z is still absent";
}

}  // namespace
}  // namespace orvanta
