// Expectations of every host, written against the interface alone so that they hold the same
// for the POSIX host here and for the Windows host under wine.
#include "platform/Host.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "platform/AnsiText.h"
#include "support/Sandbox.h"

namespace orvanta {
namespace {

std::vector<std::string> namesOf(const std::vector<DirectoryEntry>& entries) {
    std::vector<std::string> names;
    for (const auto& entry : entries) names.push_back(entry.name);
    std::sort(names.begin(), names.end());
    return names;
}

std::string readAll(Host& host, const std::string& path) {
    auto reader = host.openForReading(path);
    if (!reader) return "<cannot open>";
    std::string contents;
    char buffer[7];  // odd size: the reader must hand out the file in pieces
    while (const std::size_t got = reader->read(buffer, sizeof buffer)) contents.append(buffer, got);
    return reader->failed() ? "<failed>" : contents;
}

class HostFiles : public ::testing::Test {
protected:
    void SetUp() override {
        box.writeFile("w\\a.txt", "alpha");
        box.writeFile("w\\B.TXT", "bravo");
        box.writeFile("w\\readme", "no dot");
        box.writeFile("w\\sub\\c.txt", "charlie");
    }
    std::string at(const std::string& relative) { return box.windowsPath("w\\" + relative); }

    testing::Sandbox box;
    Host& host = box.host();
};

TEST_F(HostFiles, WildcardsMatchOnlyTheLastComponentIgnoringCaseAndFoldersComeOnlyWhenAsked) {
    using Names = std::vector<std::string>;
    EXPECT_EQ(namesOf(host.listDirectory(at("*.txt"), false)), (Names{"B.TXT", "a.txt"}));
    EXPECT_EQ(namesOf(host.listDirectory(at("?.TxT"), false)), (Names{"B.TXT", "a.txt"}));
    EXPECT_EQ(namesOf(host.listDirectory(at("*.*"), false)), (Names{"B.TXT", "a.txt", "readme"}))
        << "\"*.*\" also matches a name without a dot";
    EXPECT_TRUE(host.listDirectory(at("s*\\c.txt"), true).empty()) << "no wildcards in folders";
    EXPECT_TRUE(host.listDirectory(at("missing\\*"), true).empty());
    EXPECT_EQ(namesOf(host.listDirectory(at("*"), true)),
              (Names{".", "..", "B.TXT", "a.txt", "readme", "sub"}));
    EXPECT_EQ(namesOf(host.listDirectory(at("*"), false)), (Names{"B.TXT", "a.txt", "readme"}));
    for (const auto& entry : host.listDirectory(at("*"), true))
        EXPECT_EQ(entry.isFolder(), entry.name == "sub" || entry.name == "." || entry.name == "..")
            << entry.name;
}

TEST_F(HostFiles, TheListingForWalksGivesTheSameEntriesWithTheFolderBitAlone) {
    ASSERT_TRUE(host.setFileAttributes(at("a.txt"), kAttributeHidden | kAttributeReadOnly));
    for (const char* pattern : {"*", "*.txt", "SUB"}) {
        const auto full = host.listDirectory(at(pattern), true);
        const auto light = host.listDirectoryLengths(at(pattern), true);
        ASSERT_EQ(light.size(), full.size()) << pattern;
        for (std::size_t i = 0; i < full.size(); ++i) {
            EXPECT_EQ(light[i].name, full[i].name) << "in the same order";
            EXPECT_EQ(light[i].length, full[i].length);
            EXPECT_EQ(light[i].attributes, full[i].attributes & kAttributeDirectory) << full[i].name;
        }
    }
    host.setFileAttributes(at("a.txt"), kAttributeNormal);
}

TEST_F(HostFiles, APatternWithoutWildcardsNamesOneEntryAndFilesButNotFoldersHaveLengthAndContents) {
    const auto file = host.listDirectory(at("b.txt"), false);
    ASSERT_EQ(file.size(), 1u);
    EXPECT_EQ(file[0].name, "B.TXT");
    EXPECT_EQ(file[0].length, 5u);
    EXPECT_TRUE(host.listDirectory(at("sub"), false).empty());
    ASSERT_EQ(host.listDirectory(at("SUB"), true).size(), 1u);
    EXPECT_EQ(host.listDirectory(at("SUB"), true)[0].name, "sub");
    EXPECT_TRUE(host.listDirectory(at("nothing.txt"), true).empty());

    EXPECT_EQ(host.fileLength(at("sub\\c.txt")), 7u);
    EXPECT_EQ(readAll(host, at("SUB\\C.TXT")), "charlie");
    EXPECT_FALSE(host.fileLength(at("sub")).has_value());
    EXPECT_FALSE(host.fileLength(at("missing")).has_value());
    EXPECT_EQ(host.openForReading(at("sub")), nullptr);
    EXPECT_EQ(host.openForReading(at("missing")), nullptr);
}

TEST_F(HostFiles, AtomicWriteReplacesTheFileAndLeavesNothingBeside) {
    ASSERT_TRUE(host.writeFileAtomic(at("a.txt"), "a longer text"));
    EXPECT_EQ(readAll(host, at("a.txt")), "a longer text");
    ASSERT_TRUE(host.writeFileAtomic(at("new.txt"), ""));
    EXPECT_EQ(host.fileLength(at("new.txt")), 0u);
    EXPECT_FALSE(host.writeFileAtomic(at("missing\\x.txt"), "x"));
    EXPECT_EQ(namesOf(host.listDirectory(at("*"), false)),
              (std::vector<std::string>{"B.TXT", "a.txt", "new.txt", "readme"}));
}

TEST_F(HostFiles, ReadOnlyFilesRefuseDeleteAndReplace) {
    ASSERT_TRUE(host.setFileAttributes(at("a.txt"), kAttributeReadOnly));
    EXPECT_NE(*host.fileAttributes(at("a.txt")) & kAttributeReadOnly, 0u);
    EXPECT_FALSE(host.deleteFile(at("a.txt")));
    EXPECT_FALSE(host.writeFileAtomic(at("a.txt"), "changed"));
    EXPECT_FALSE(host.copyFile(at("B.TXT"), at("a.txt")));
    EXPECT_EQ(readAll(host, at("a.txt")), "alpha");
    EXPECT_EQ(namesOf(host.listDirectory(at("*"), false)),
              (std::vector<std::string>{"B.TXT", "a.txt", "readme"}))
        << "a refused atomic write leaves nothing beside";
    ASSERT_TRUE(host.setFileAttributes(at("a.txt"), kAttributeNormal));
    EXPECT_EQ(*host.fileAttributes(at("a.txt")) & kAttributeReadOnly, 0u);
    EXPECT_TRUE(host.deleteFile(at("a.txt")));
    EXPECT_FALSE(host.fileAttributes(at("a.txt")).has_value());
}

TEST_F(HostFiles, CopyOverwritesButRenameRefusesAnExistingTargetSaveOneOfOnlyAnotherCase) {
    EXPECT_TRUE(host.copyFile(at("a.txt"), at("B.TXT")));
    EXPECT_EQ(readAll(host, at("B.TXT")), "alpha");
    EXPECT_FALSE(host.copyFile(at("missing"), at("B.TXT")));
    EXPECT_FALSE(host.renameFile(at("readme"), at("a.txt")));
    EXPECT_EQ(readAll(host, at("a.txt")), "alpha");
    EXPECT_EQ(readAll(host, at("readme")), "no dot");
    EXPECT_TRUE(host.renameFile(at("readme"), at("sub\\moved")));
    EXPECT_EQ(readAll(host, at("sub\\moved")), "no dot");
    EXPECT_TRUE(host.renameFile(at("sub"), at("renamed"))) << "folders move too";
    EXPECT_EQ(readAll(host, at("renamed\\c.txt")), "charlie");
    EXPECT_FALSE(host.renameFile(at("missing"), at("other")));
    ASSERT_TRUE(host.renameFile(at("a.txt"), at("A.TXT")));
    EXPECT_EQ(namesOf(host.listDirectory(at("a.txt"), false)), (std::vector<std::string>{"A.TXT"}));
}

// Dialogs and Qt speak UTF-8; the system speaks the ANSI code page. A non-ASCII name must come
// through both conversions whole, on Windows as on POSIX.
TEST_F(HostFiles, NonAsciiNamesSurviveTheWayToAndFromDialogs) {
    if (host.ansiCodePage() != 1252) GTEST_SKIP() << "the names below are Windows-1252";
    const std::string file = at("\xC4rger \xE9t\xE9.txt");
    ASSERT_TRUE(host.writeFileAtomic(file, "x"));
    const std::string hostPath = host.toHostPath(file);
    EXPECT_TRUE(hostPath.ends_with("\xC3\x84rger \xC3\xA9t\xC3\xA9.txt")) << hostPath;
    EXPECT_EQ(host.toWindowsPath(hostPath), file);
    std::u8string utf8;
    for (char c : hostPath) utf8 += static_cast<char8_t>(c);
    EXPECT_TRUE(std::filesystem::exists(std::filesystem::path(utf8)));
    EXPECT_EQ(ansiToUtf8("\x80\xC4"), "\xE2\x82\xAC\xC3\x84");
    EXPECT_EQ(utf8ToAnsi("\xE2\x82\xAC\xC3\x84\xC4\x81"), "\x80\xC4?") << "a letter outside the code page";
}

TEST_F(HostFiles, FoldersAreMadeAndRemovedOneEmptyLevelAtATime) {
    EXPECT_FALSE(host.createFolder(at("x\\y"))) << "the parent is missing";
    EXPECT_TRUE(host.createFolder(at("x")));
    EXPECT_FALSE(host.createFolder(at("X"))) << "it exists";
    EXPECT_TRUE(host.createFolder(at("x\\y")));
    EXPECT_FALSE(host.removeFolder(at("x"))) << "not empty";
    EXPECT_FALSE(host.deleteFile(at("x\\y"))) << "a folder is no file";
    EXPECT_FALSE(host.removeFolder(at("a.txt"))) << "a file is no folder";
    EXPECT_TRUE(host.removeFolder(at("x\\y")));
    EXPECT_TRUE(host.removeFolder(at("x")));
    EXPECT_FALSE(host.fileAttributes(at("x")).has_value());
}

// Keys and names ignore case, a small buffer is told the size it needs, and what is missing or
// closed is reported with the system's own codes.
TEST(HostRegistry, BehavesAsTheWindowsRegistryDoes) {
    testing::Sandbox box;
    Host& host = box.host();
    RegistryKey key = 0;
    EXPECT_EQ(host.regOpenKey(kHkeyCurrentUser, "Software\\OrvantaHostTest\\Settings", kKeyRead, key),
              kErrorFileNotFound);
    ASSERT_EQ(host.regCreateKey(kHkeyCurrentUser, "Software\\OrvantaHostTest\\Settings", key), kErrorSuccess);
    const std::string four("\x05\x00\x00\x80", 4);
    ASSERT_EQ(host.regSetValue(key, "Compression level", kRegDword, four), kErrorSuccess);
    ASSERT_EQ(host.regSetValue(key, "Path", kRegSz, "C:\\tools"), kErrorSuccess);
    ASSERT_EQ(host.regCloseKey(key), kErrorSuccess);

    ASSERT_EQ(host.regOpenKey(kHkeyCurrentUser, "SOFTWARE\\orvantahosttest\\settings", kKeyRead, key),
              kErrorSuccess);
    std::uint32_t type = kRegNone;
    std::string data(4, '\0');
    EXPECT_EQ(host.regQueryValue(key, "COMPRESSION LEVEL", type, data), kErrorSuccess);
    EXPECT_EQ(type, kRegDword);
    EXPECT_EQ(data, four);

    data.assign(3, ' ');
    ASSERT_EQ(host.regQueryValue(key, "path", type, data), kErrorMoreData);
    EXPECT_EQ(data.size(), 9u) << "the needed size, its NUL counted";
    std::string empty;
    EXPECT_EQ(host.regQueryValue(key, "path", type, empty), kErrorMoreData);
    data.assign(255, ' ');
    ASSERT_EQ(host.regQueryValue(key, "path", type, data), kErrorSuccess);
    EXPECT_EQ(type, kRegSz);
    EXPECT_EQ(data, std::string("C:\\tools\0", 9)) << "a string ends with its NUL";

    EXPECT_EQ(host.regQueryValue(key, "absent", type, data), kErrorFileNotFound);
    ASSERT_EQ(host.regCloseKey(key), kErrorSuccess);
    EXPECT_EQ(host.regQueryValue(key, "absent", type, data), kErrorInvalidHandle) << "closed handle";
    EXPECT_EQ(host.regSetValue(key, "x", kRegSz, "x"), kErrorInvalidHandle);
}

}  // namespace
}  // namespace orvanta
