#include "project/MainSettings.h"

#include <gtest/gtest.h>

#include "project/LineFile.h"
#include "support/Sandbox.h"
#include "support/Split.h"

namespace orvanta {
namespace {

MainSettings fullSettings() {
    MainSettings s;
    s.appName = "Demo";
    s.appAuthor = "Ann";
    s.startMenuShortcut = 1;
    s.desktopShortcut = 0;
    s.fullLicenseSlot = "";
    s.shortcutTooltip = "";
    s.startupOption = 1;
    s.startupChecked = 1;
    s.website = "http://demo.example";
    s.appSize = "1234";
    s.quickLaunchShortcut = 0;
    s.quickLaunchChecked = 1;
    s.mainExecutable = "demo.exe";
    s.noRepair = 1;
    s.noModify = 0;
    s.appVersion = "2.1";
    s.rollEffect = 1;
    s.installPath = "Program Files\\";
    s.minWindowsVersion = "Windows XP";
    s.authorFolder = 0;
    s.instantInstall = 1;
    s.licenseTitle = "License";
    s.licenseButtonCaption = "Read full license";
    s.uninstallDefault = UninstallDefault::DeleteRegistryOnly;
    s.cleanAll = 1;
    s.anyFile = "readme.txt";
    s.lockInstallPath = 1;
    s.desktopChecked = 0;
    s.startMenuChecked = 1;
    s.startupArguments = "-quiet";
    s.startupAllUsers = 1;
    s.supportLink = "";
    s.helpLink = "http://help";
    s.updateInfoLink = "";
    s.finalPackageName = "demo-%version.exe";
    s.shortcutArguments = "";
    s.startupRequired = 0;
    s.appIconOnRootFolder = 1;
    s.noUninstaller = 0;
    s.editionName = "No editions";
    s.showEditionName = 1;
    s.justRunMode = 0;
    s.updateInstallMode = UpdateInstallMode::Instant;
    s.updateIgnoreLicense = 1;
    s.updateRunApp = 0;
    s.updateSilent = 1;
    s.createRestorePoint = 0;
    return s;
}

// Lines 1 to 49, between bars.
const std::vector<std::string> kFullLines = testing::split(
    "Demo|Ann| 1 | 0 ||| 1 | 1 |http://demo.example|1234| 0 | 1 |demo.exe| 1 | 0 |2.1| 1 |"
    "Program Files\\|Windows XP| 0 | 1 |License|Read full license|REGDEL| 1 |readme.txt| 1 | 0 |"
    " 1 |-quiet| 1 ||http://help||demo-%version.exe|| 0 | 1 | 0 |No editions| 1 | 0 | 0 |i| 1 |"
    " 0 | 1 | 0 | 0 ",
    '|');

TEST(MainSettingsFile, WritesTheFortyNineLinesByteForByte) {
    EXPECT_EQ(mainSettingsText(fullSettings()), linesText(kFullLines));
    MainSettings s = fullSettings();
    s.uninstallDefault = UninstallDefault::DeleteAllSettings;
    s.updateInstallMode = UpdateInstallMode::Standard;
    auto lines = kFullLines;
    lines[23] = "FULLDEL";
    lines[43] = "s";
    EXPECT_EQ(mainSettingsText(s), linesText(lines));
}

TEST(MainSettingsFile, ReadsWhatTheLoaderTakesAndSkipsTheRest) {
    testing::Sandbox box;
    ASSERT_TRUE(writeMainSettings(box.host(), box.windowsPath("m.cfg"), fullSettings()));
    const auto read = readMainSettings(box.host(), box.windowsPath("m.cfg"));
    ASSERT_TRUE(read);
    MainSettings expected = fullSettings();
    // Read over, or taken only when the line is not empty.
    expected.fullLicenseSlot.reset();
    expected.licenseButtonCaption.reset();
    expected.editionName.reset();
    expected.shortcutTooltip.reset();
    expected.supportLink.reset();
    expected.updateInfoLink.reset();
    expected.shortcutArguments.reset();
    EXPECT_EQ(mainSettingsText(*read), mainSettingsText(expected));
    EXPECT_FALSE(read->licenseButtonCaption);
    EXPECT_FALSE(read->supportLink);
    EXPECT_EQ(read->helpLink, "http://help");
}

TEST(MainSettingsFile, AnUnsetUninstallGroupShiftsLaterLinesIntoTheWrongFields) {
    MainSettings s = fullSettings();
    s.uninstallDefault.reset();
    const std::string text = mainSettingsText(s);
    auto lines = kFullLines;
    lines.erase(lines.begin() + 23);
    ASSERT_EQ(text, linesText(lines));

    testing::Sandbox box;
    box.writeFile("m.cfg", text);
    const auto read = readMainSettings(box.host(), box.windowsPath("m.cfg"));
    ASSERT_TRUE(read);
    EXPECT_FALSE(read->uninstallDefault) << "\" 1 \" is no uninstall word";
    EXPECT_FALSE(read->cleanAll) << "line 25 now holds the any-file name";
    EXPECT_EQ(read->anyFile, " 1 ") << "line 26 now holds the lock flag";
    EXPECT_FALSE(read->startMenuChecked) << "\"-quiet\" does not convert";
    EXPECT_EQ(read->supportLink, "http://help");
    EXPECT_EQ(read->updateInstallMode, std::nullopt) << "line 43 holds the \"i\", line 44 a flag";
}

TEST(MainSettingsFile, AnUnsetUpdateGroupLeavesFortyEightLines) {
    MainSettings s = fullSettings();
    s.updateInstallMode.reset();
    auto lines = kFullLines;
    lines.erase(lines.begin() + 43);
    EXPECT_EQ(mainSettingsText(s), linesText(lines));
    testing::Sandbox box;
    box.writeFile("m.cfg", mainSettingsText(s));
    const auto read = readMainSettings(box.host(), box.windowsPath("m.cfg"));
    ASSERT_TRUE(read);
    EXPECT_EQ(read->updateIgnoreLicense, 0) << "line 45 holds the run-app flag";
    EXPECT_EQ(read->createRestorePoint, 0) << "the always-0 last line";
}

TEST(MainSettingsFile, AShortFileLeavesLaterFieldsUnsetAndNumberLinesConvertTheirOwnWay) {
    testing::Sandbox box;
    box.writeFile("short.cfg", "Demo\r\nAnn\r\n 1 ");
    const auto shortRead = readMainSettings(box.host(), box.windowsPath("short.cfg"));
    ASSERT_TRUE(shortRead);
    EXPECT_EQ(shortRead->startMenuShortcut, 1);
    EXPECT_FALSE(shortRead->desktopShortcut);
    EXPECT_FALSE(shortRead->appVersion);

    EXPECT_FALSE(readMainSettings(box.host(), box.windowsPath("missing.cfg")));

    // Number lines use their own conversion.
    auto lines = kFullLines;
    lines[2] = " 1.7 ";   // startMenuShortcut: integer part
    lines[13] = " 0.7 ";  // noRepair: direct
    lines[16] = "x";      // rollEffect: no number, stays unset
    box.writeFile("m.cfg", linesText(lines));
    const auto read = readMainSettings(box.host(), box.windowsPath("m.cfg"));
    ASSERT_TRUE(read);
    EXPECT_EQ(read->startMenuShortcut, 1);
    EXPECT_EQ(read->noRepair, 1);
    EXPECT_FALSE(read->rollEffect);
}

TEST(MainSettingsFile, MainExecutableCheckAndFinalPackageName) {
    EXPECT_TRUE(mainExecutableClearsCheck(".exe"));
    EXPECT_TRUE(mainExecutableClearsCheck(" "));
    EXPECT_TRUE(mainExecutableClearsCheck(""));
    EXPECT_FALSE(mainExecutableClearsCheck(".EXE"));
    EXPECT_FALSE(mainExecutableClearsCheck("a.exe"));
    EXPECT_EQ(finalPackageFileOf("demo-%version-%version.exe", "2.1"), "demo-2.1-2.1.exe");
    EXPECT_EQ(finalPackageFileOf("demo-%Version.exe", "2.1"), "demo-%Version.exe");
    EXPECT_EQ(finalPackageFileOf("%version", "%version"), "%version");
}

}  // namespace
}  // namespace orvanta
