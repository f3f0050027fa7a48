#include "core/StartBitch.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "core/RegistryAPI.h"
#include "core/RuntimeError.h"
#include "core/vars.h"
#include "support/Sandbox.h"
#include "support/ScriptedDialogs.h"

namespace orvanta {
namespace {

constexpr const char* kAppPaths = "HKLM\\Software\\Microsoft\\Windows\\CurrentVersion\\App Paths\\";

class MainTest : public ::testing::Test {
protected:
    void SetUp() override {
        vars::reset();
        for (const char* stub : {"install", "uninstall", "package", "install.exe.manifest"})
            box.writeFile(std::string("app\\data\\") + stub, "stub");
    }

    // Registers an archiver the way this host knows them: a program on the search path for the
    // POSIX host, a key of its own for the real registry.
    void registerArchiver(const std::string& keyName, const std::string& program) {
        box.writeFile("bin\\" + program, "#!/bin/sh\n");
        std::filesystem::permissions(box.hostRoot() / "bin" / program, std::filesystem::perms::owner_all);
        RegistryAPI registry(box.host());
        registry.createMissingKeys = true;
        registry.writeRegistryString(kAppPaths + keyName, "Path", "C:\\Tools\\" + program);
    }

    std::string registeredFolder(const std::string& keyName) {
        RegistryAPI registry(box.host());
        return registry.readRegistryString(kAppPaths + keyName, "Path", "") + "\\";
    }

    MainOutcome runMain() {
        MainHandOver handOver;
        handOver.showStart = [this] { ++startShown; };
        handOver.loadProject = [this](const std::string& folder) { loadedFolders.push_back(folder); };
        return Main(box.host(), dialogs, handOver);
    }

    testing::Sandbox box;
    testing::ScriptedDialogs dialogs;
    int startShown = 0;
    std::vector<std::string> loadedFolders;
};

TEST_F(MainTest, AMissingStubEndsWithTheCriticalBoxAndNothingElse) {
    std::filesystem::remove(box.hostRoot() / "app" / "data" / "package");
    EXPECT_EQ(runMain(), MainOutcome::SupportFileMissing);
    ASSERT_EQ(dialogs.messageBoxes.size(), 1u);
    EXPECT_EQ(dialogs.messageBoxes[0].text, "A required file is missing. Reinstall Orvanta.");
    EXPECT_EQ(dialogs.messageBoxes[0].icon, MessageIcon::Critical);
    EXPECT_EQ(startShown, 0);
    EXPECT_TRUE(vars::workspaceFolder.empty());
}

TEST_F(MainTest, FixesTheProcessWideValuesAndCreatesTheSettingsKeysOnce) {
    registerArchiver("7zFM.exe", "7z");
    EXPECT_EQ(runMain(), MainOutcome::StartShown);
    EXPECT_EQ(startShown, 1);
    EXPECT_EQ(vars::workspaceFolder, box.documentsFolder() + "\\Orvanta");
    EXPECT_EQ(vars::settingsRootKey, "HKCU\\Software\\Orvanta");
    RegistryAPI registry(box.host());
    EXPECT_TRUE(registry.registryKeyExists("HKCU\\Software\\Orvanta\\Settings"));

    // A second run finds the root key and leaves everything below it alone.
    registry.writeSettingNumber("HKCU\\Software\\Orvanta\\Settings", "saveAlways", 1);
    EXPECT_EQ(runMain(), MainOutcome::StartShown);
    EXPECT_EQ(registry.readSettingNumber("HKCU\\Software\\Orvanta\\Settings", "saveAlways", 0), 1);
}

TEST_F(MainTest, EachRegistrationGivesItsFolderAndThePrivateSevenZipWinsOverAll) {
    registerArchiver("WinRAR.exe", "rar");
    runMain();
    EXPECT_EQ(vars::rarFolder, registeredFolder("WinRAR.exe"));
    EXPECT_GT(vars::rarFolder.size(), 2u);
    EXPECT_EQ(vars::sevenZipFolder, "");
    EXPECT_EQ(vars::compressorChoice, "7zip");
    EXPECT_TRUE(dialogs.taskDialogs.empty());
    EXPECT_TRUE(dialogs.messageBoxes.empty());

    registerArchiver("7zFM.exe", "7z");
    runMain();
    EXPECT_EQ(vars::rarFolder, registeredFolder("WinRAR.exe"));
    EXPECT_EQ(vars::sevenZipFolder, registeredFolder("7zFM.exe"));

    box.writeFile("app\\7z\\7z.exe", "private");
    vars::reset();  // a real start begins with none of these set
    runMain();
    EXPECT_EQ(vars::sevenZipFolder, box.applicationFolder() + "\\7z\\") << "the private 7-Zip wins over both";
    EXPECT_EQ(vars::rarFolder, "");
    EXPECT_EQ(vars::compressorChoice, "7zip");
}

// Windows 7 warns with a task dialog and XP, which has none, with a message box; both go on.
TEST_F(MainTest, NoArchiverWarnsInTheFormTheSystemHas) {
    box.config().versionWords = VersionWords{6, 1};
    EXPECT_EQ(runMain(), MainOutcome::StartShown);
    EXPECT_EQ(vars::compressorChoice, "");
    ASSERT_EQ(dialogs.taskDialogs.size(), 1u);
    EXPECT_EQ(dialogs.taskDialogs[0].instruction, "7-zip or WinRAR are not installed on the system");
    EXPECT_EQ(dialogs.taskDialogs[0].content,
              "To create the final package you need to install at least one of them.");
    EXPECT_EQ(dialogs.taskDialogs[0].title, "Orvanta");
    EXPECT_TRUE(dialogs.messageBoxes.empty());

    box.config().versionWords = VersionWords{5, 1};
    box.restartHost();
    EXPECT_EQ(runMain(), MainOutcome::StartShown);
    ASSERT_EQ(dialogs.messageBoxes.size(), 1u);
    EXPECT_EQ(
        dialogs.messageBoxes[0].text,
        "7-zip or WinRAR are not installed on the system. To create the final package you need to install "
        "at least one of them.");
    EXPECT_EQ(dialogs.messageBoxes[0].icon, MessageIcon::Exclamation);
    EXPECT_EQ(dialogs.taskDialogs.size(), 1u);
}

TEST_F(MainTest, AQuotedCommandLineFailsAtTheOpenAndAMarkerNamingAnotherProjectHandsOverItsOwnPath) {
    box.writeFile("Demo.ovproj", "Demo\r\n");
    box.config().commandLine = "\"" + box.windowsPath("Demo.ovproj") + "\"";
    box.restartHost();
    try {
        runMain();
        FAIL() << "the quoted path was opened";
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.number(), 53);
    }
    EXPECT_TRUE(loadedFolders.empty());

    box.writeFile("Demo.ovproj", "Other\r\n");
    box.config().commandLine = box.windowsPath("Demo.ovproj");
    box.restartHost();
    runMain();
    ASSERT_EQ(loadedFolders.size(), 1u);
    EXPECT_EQ(loadedFolders[0], box.windowsPath("Demo.ovproj"));
}

TEST(ProjectFolderFromMarker, RemovesEveryOccurrenceExactly) {
    EXPECT_EQ(projectFolderFromMarker("C:\\p\\A\\A.ovproj", "A"), "C:\\p\\A");
    EXPECT_EQ(projectFolderFromMarker("C:\\x\\A.ovproj\\A.ovproj", "A"), "C:\\x");
    EXPECT_EQ(projectFolderFromMarker("C:\\p\\A\\a.ovproj", "A"), "C:\\p\\A\\a.ovproj");
}

}  // namespace
}  // namespace orvanta
