#include <gtest/gtest.h>

#include "project/ContentList.h"
#include "project/DependencyList.h"
#include "project/DesktopIni.h"
#include "project/FontList.h"
#include "project/InstallerLists.h"
#include "project/LeftoverTemporaries.h"
#include "project/LineFile.h"
#include "project/LocationList.h"
#include "project/MarkerFile.h"
#include "project/PackageList.h"
#include "project/ProjectPaths.h"
#include "project/SettingsSetFile.h"
#include "project/TextFile.h"
#include "support/Sandbox.h"

namespace orvanta {
namespace {

using Items = std::vector<std::string>;

TEST(TextFiles, DoNotGrowOverSaveAndLoadAndKeepAnEmptyLastLine) {
    testing::Sandbox box;
    Host& host = box.host();
    const std::string path = box.windowsPath("intro.cfg");
    for (const std::string original : {"one\r\ntwo", "ends empty\r\n", "", "\r\n\r\n"}) {
        std::string text = original;
        for (int cycle = 0; cycle < 3; ++cycle) {
            ASSERT_TRUE(writeTextFile(host, path, text));
            text = readTextFile(host, path).value();
        }
        EXPECT_EQ(text, original);
    }
    ASSERT_TRUE(writeTextFile(host, path, "a\r\nb"));
    EXPECT_EQ(box.readFile("intro.cfg"), "a\r\nb\r\n");
    EXPECT_FALSE(readTextFile(host, box.windowsPath("missing.cfg")));
}

TEST(LocationLists, AnEmptyListIsWrittenAsAMarkThatKeepsTheList) {
    testing::Sandbox box;
    Host& host = box.host();
    const std::string path = box.windowsPath("registrylocations.cfg");
    ASSERT_TRUE(writeLocationList(host, path, {}));
    EXPECT_EQ(box.readFile("registrylocations.cfg"), "<>\r\n");
    Items list = {"HKCU\\Software\\Old"};
    applyListUpdate(readLocationList(host, path), list);
    EXPECT_EQ(list, Items{"HKCU\\Software\\Old"});

    ASSERT_TRUE(writeLocationList(host, path, {"a", "b"}));
    EXPECT_EQ(box.readFile("registrylocations.cfg"), "a\r\nb\r\n");
    applyListUpdate(readLocationList(host, path), list);
    EXPECT_EQ(list, (Items{"a", "b"}));

    EXPECT_EQ(readLocationList(host, box.windowsPath("missing.cfg")).action, ListAction::Keep);
}

TEST(FontLists, AnEmptyFileClearsAndTheMarkKeeps) {
    testing::Sandbox box;
    Host& host = box.host();
    const std::string path = box.windowsPath("fonts.cfg");
    ASSERT_TRUE(writeFontList(host, path, {}));
    EXPECT_EQ(box.readFile("fonts.cfg"), "");
    Items list = {"old.ttf"};
    applyListUpdate(readFontList(host, path), list);
    EXPECT_TRUE(list.empty());

    list = {"old.ttf"};
    box.writeFile("fonts.cfg", "<>\r\n");
    applyListUpdate(readFontList(host, path), list);
    EXPECT_EQ(list, Items{"old.ttf"});
}

TEST(ContentLists, ReplaceTheListEvenWhenTheFileIsMissing) {
    testing::Sandbox box;
    Host& host = box.host();
    ASSERT_TRUE(writeContentList(host, box.windowsPath("files.cfg"), {"a.exe", "sub\\b.dll"}));
    EXPECT_EQ(box.readFile("files.cfg"), "a.exe\r\nsub\\b.dll\r\n");
    Items list = {"earlier.txt"};
    applyListUpdate(readContentList(host, box.windowsPath("files.cfg")), list);
    EXPECT_EQ(list, (Items{"a.exe", "sub\\b.dll"}));
    applyListUpdate(readContentList(host, box.windowsPath("missing.cfg")), list);
    EXPECT_TRUE(list.empty());
}

TEST(DependencyLists, WriteNameAndBlankedFlagAndReadEitherFlagForm) {
    testing::Sandbox box;
    Host& host = box.host();
    const std::string path = box.windowsPath("dependencies.cfg");
    ASSERT_TRUE(writeDependencyList(host, path, {{"a.ocx", true}, {"b.dll", false}}));
    EXPECT_EQ(box.readFile("dependencies.cfg"), "a.ocx\r\n 1 \r\nb.dll\r\n 0 \r\n");
    const auto read = readDependencyList(host, path);
    ASSERT_EQ(read.size(), 2u);
    EXPECT_EQ(read[0].name, "a.ocx");
    EXPECT_TRUE(read[0].selected);
    EXPECT_FALSE(read[1].selected);

    box.writeFile("dependencies.cfg", "c.dll\r\n1\r\nd.dll\r\nx\r\ne.dll");
    const auto odd = readDependencyList(host, path);
    ASSERT_EQ(odd.size(), 3u);
    EXPECT_TRUE(odd[0].selected);
    EXPECT_FALSE(odd[1].selected);
    EXPECT_EQ(odd[2].name, "e.dll");
}

TEST(PackageLists, SevenLinesAPackageWithBareFlags) {
    testing::Sandbox box;
    Host& host = box.host();
    const std::string path = box.windowsPath("packages.cfg");
    const std::vector<Package> packages = {{"Extras", "Program Files\\", "More", "1", "0", "2048", "1"},
                                           {"Docs", "<>", "", "0", "1", "0", "0"}};
    ASSERT_TRUE(writePackageList(host, path, packages));
    EXPECT_EQ(
        box.readFile("packages.cfg"),
        "Extras\r\nProgram Files\\\r\nMore\r\n1\r\n0\r\n2048\r\n1\r\nDocs\r\n<>\r\n\r\n0\r\n1\r\n0\r\n0\r\n");
    std::vector<Package> slots;
    EXPECT_EQ(readPackageList(host, path, slots), 2u);
    EXPECT_EQ(slots[1].name, "Docs");
    EXPECT_EQ(slots[0].occupiedSpace, "2048");
}

TEST(PackageLists, ACutBlockCountsAndKeepsTheOldFieldsOfItsSlot) {
    testing::Sandbox box;
    Host& host = box.host();
    box.writeFile("packages.cfg", "A\r\nloc\r\nd\r\n1\r\n1\r\n5\r\n0\r\nB\r\n");
    std::vector<Package> slots(3, Package{"old", "oldloc", "olddesc", "0", "0", "9", "1"});
    EXPECT_EQ(readPackageList(host, box.windowsPath("packages.cfg"), slots), 2u);
    EXPECT_EQ(slots[1].name, "B");
    EXPECT_EQ(slots[1].installLocation, "oldloc");
    EXPECT_EQ(slots[2].name, "old");
    EXPECT_FALSE(readPackageList(host, box.windowsPath("missing.cfg"), slots));
}

TEST(SmallFiles, MarkerSettingsSetDesktopIniAndInstallerLists) {
    testing::Sandbox box;
    Host& host = box.host();
    ASSERT_TRUE(writeMarker(host, box.windowsPath("Demo.ovproj"), "Demo"));
    EXPECT_EQ(box.readFile("Demo.ovproj"), "Demo\r\nNo Editions\r\nNo Versions\r\ndeployLocal\r\nf\r\n");
    EXPECT_EQ(readMarker(host, box.windowsPath("Demo.ovproj"))->appName, "Demo");
    box.writeFile("short.ovproj", "Only");
    EXPECT_EQ(readMarker(host, box.windowsPath("short.ovproj"))->lastWord, "");

    const SettingsSet set{"keys.reg", "File types", "REG"};
    ASSERT_TRUE(writeSettingsSetFile(host, box.windowsPath("0.cfg"), set));
    EXPECT_EQ(box.readFile("0.cfg"), "keys.reg\r\nFile types\r\nREG\r\n");
    EXPECT_EQ(readSettingsSetFile(host, box.windowsPath("0.cfg")), set);
    box.writeFile("1.cfg", "old.reg");
    EXPECT_EQ(readSettingsSetFile(host, box.windowsPath("1.cfg")), (SettingsSet{"old.reg", "old.reg", ""}))
        << "a file of the member alone keeps its set in use";

    const std::string icon = desktopIniIconPath("C:\\Orvanta", "Demo", "demo.exe");
    EXPECT_EQ(icon, "C:\\Orvanta\\myinstallers\\Demo\\files\\demo.exe");
    ASSERT_TRUE(writeDesktopIni(host, box.windowsPath("desktop.ini"), icon));
    EXPECT_EQ(box.readFile("desktop.ini"), "[.ShellClassInfo]\r\nIconFile=" + icon +
                                               "\r\nIconIndex = 0\r\nIconResource=" + icon + ",0\r\n");
    EXPECT_EQ(readDesktopIniIcon(host, box.windowsPath("desktop.ini")), icon);

    EXPECT_FALSE(skimInstallerList(host, box.windowsPath("msi.cfg")));
    box.writeFile("msi.cfg", std::string(100000, '\n'));
    EXPECT_TRUE(skimInstallerList(host, box.windowsPath("msi.cfg")));
}

// The POSIX host's temporaries and the Windows host's (GetTempFileName with the prefix "ovt").
TEST(LeftoverTemporaries, AreKnownByEitherHostsNames) {
    for (const auto& [name, leftover] : {std::pair{"mainsettings.cfg.~ovtmp-a1B2c3", true},
                                         {"ovt1A2F.tmp", true},
                                         {"OVTFFFF.TMP", true},
                                         {"ovt.tmp", false},
                                         {"ovtx1.tmp", false},
                                         {"overtime.tmp", false},
                                         {"notes.~ovtmp", false}})
        EXPECT_EQ(isLeftoverTemporary(name), leftover) << name;
}

}  // namespace
}  // namespace orvanta
