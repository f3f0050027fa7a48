#include "core/DirRecurse.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "core/vars.h"
#include "support/Sandbox.h"

namespace orvanta {
namespace {

TEST(NormalizePath, SlashesDoubledBackslashesAndTheEnd) {
    EXPECT_EQ(normalizePath("C:/a/b"), "C:\\a\\b\\");
    EXPECT_EQ(normalizePath("C:\\a\\\\b\\"), "C:\\a\\b\\");
    EXPECT_EQ(normalizePath("C:\\a/"), "C:\\a\\");
    EXPECT_EQ(normalizePath(""), "\\");
}

class WalkTest : public ::testing::Test {
protected:
    void SetUp() override {
        vars::reset();
        box.writeFile("f\\a.txt", "12345");
        box.writeFile("f\\b.cfg", "123");
        box.writeFile("f\\c.bin", "1");
        box.writeFile("f\\sub\\d.txt", "1234567890");
        box.writeFile("f\\sub\\deeper\\e.cfg", "12");
        box.makeFolder("f\\empty");
        box.makeFolder("f\\...");
    }
    std::string root() { return box.windowsPath("f"); }

    testing::Sandbox box;
};

TEST_F(WalkTest, FindFilesTakesEachPatternAndTheDeepWalksReachEveryLevel) {
    std::vector<std::string> found;
    findFiles(box.host(), found, root(), "*.txt;*.cfg");
    std::sort(found.begin(), found.end());
    EXPECT_EQ(found, (std::vector<std::string>{root() + "\\a.txt", root() + "\\b.cfg"}));

    std::vector<std::string> files;
    findFilesDeep(box.host(), files, root() + "\\", "*.cfg");
    std::sort(files.begin(), files.end());
    EXPECT_EQ(files, (std::vector<std::string>{root() + "\\b.cfg", root() + "\\sub\\deeper\\e.cfg"}));

    std::vector<std::string> folders;
    listFoldersDeep(box.host(), folders, root());
    std::sort(folders.begin(), folders.end());
    EXPECT_EQ(folders, (std::vector<std::string>{root(), root() + "\\empty", root() + "\\sub",
                                                 root() + "\\sub\\deeper"}))
        << "a name of dots alone is passed over";
}

TEST_F(WalkTest, FolderSizeAndTheOneTreeWalkAgreeWithTheThreeWalksAndTheAbortFlagStopsAWalk) {
    int pumps = 0;
    box.host().setMessagePump([&] { ++pumps; });
    EXPECT_EQ(folderSize(box.host(), root(), false), 9.0);
    EXPECT_EQ(folderSize(box.host(), root(), true), 21.0);
    EXPECT_GE(pumps, 4) << "messages run at each level";
    EXPECT_EQ(folderSize(box.host(), box.windowsPath("missing"), true), 0.0);

    box.writeFile("f\\sub\\README", "no extension");
    for (const std::string& start : {root(), root() + "\\"}) {
        std::vector<std::string> files, folders;
        findFilesDeep(box.host(), files, start, "*.*");
        listFoldersDeep(box.host(), folders, start);
        const FolderTree tree = walkFolderTree(box.host(), start);
        EXPECT_EQ(tree.files, files);
        EXPECT_EQ(tree.folders, folders);
        EXPECT_EQ(tree.size, folderSize(box.host(), start, true));
    }

    vars::abortWalks = true;
    std::vector<std::string> files;
    findFilesDeep(box.host(), files, root(), "*.txt");
    EXPECT_TRUE(files.empty());
    vars::abortWalks = false;
}

}  // namespace
}  // namespace orvanta
