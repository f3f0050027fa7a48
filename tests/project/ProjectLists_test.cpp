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

// The three kinds of short list differ only in what an empty list, the "<>" mark and a missing
// file do to the list the editor holds.
TEST(StringLists, EmptyListsMarksAndMissingFilesKeepOrClearByKind) {
    using Write = bool (*)(Host&, const std::string&, const std::vector<std::string>&);
    using Read = ListUpdate (*)(Host&, const std::string&);
    const struct {
        const char* file;
        Write write;
        Read read;
        const char* emptyWritten;
        bool emptyKeeps, markKeeps, missingKeeps;
    } kinds[] = {
        {"registrylocations.cfg", writeLocationList, readLocationList, "<>\r\n", true, true, true},
        {"fonts.cfg", writeFontList, readFontList, "", false, true, true},
        {"files.cfg", writeContentList, readContentList, "", false, false, false},
    };
    testing::Sandbox box;
    Host& host = box.host();
    const Items old = {"earlier"};
    const auto after = [&](const Read read, const std::string& file) {
        Items list = old;
        applyListUpdate(read(host, box.windowsPath(file)), list);
        return list;
    };
    for (const auto& kind : kinds) {
        const std::string path = box.windowsPath(kind.file);
        ASSERT_TRUE(kind.write(host, path, {"a", "sub\\b"}));
        EXPECT_EQ(box.readFile(kind.file), "a\r\nsub\\b\r\n") << kind.file;
        EXPECT_EQ(after(kind.read, kind.file), (Items{"a", "sub\\b"})) << kind.file;
        ASSERT_TRUE(kind.write(host, path, {}));
        EXPECT_EQ(box.readFile(kind.file), kind.emptyWritten) << kind.file;
        EXPECT_EQ(after(kind.read, kind.file), kind.emptyKeeps ? old : Items{}) << kind.file << ", empty";
        box.writeFile(kind.file, "<>\r\n");
        EXPECT_EQ(after(kind.read, kind.file), kind.markKeeps ? old : Items{"<>"}) << kind.file << ", mark";
        EXPECT_EQ(after(kind.read, "missing.cfg"), kind.missingKeeps ? old : Items{})
            << kind.file << ", missing";
    }
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
