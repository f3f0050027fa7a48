#include <gtest/gtest.h>

#include "project/FolderCopy.h"
#include "support/Sandbox.h"

namespace orvanta {
namespace {

TEST(FolderCopy, CopiesNestedEmptyAndHiddenEntriesAndNamesTheFilesThatFailed) {
    testing::Sandbox box;
    box.writeFile("source\\app.exe", "MZ");
    box.writeFile("source\\data\\deep\\table.dat", "rows");
    box.writeFile("source\\data\\blocked.dat", "x");
    box.makeFolder("source\\empty");
    box.writeFile("source\\.hidden", "h");
    // A folder where a file must go cannot be overwritten.
    box.makeFolder("target\\data\\blocked.dat");
    std::vector<std::size_t> told;
    const FolderCopyOutcome outcome =
        copyFolderContents(box.host(), box.windowsPath("source"), box.windowsPath("target"),
                           [&](std::size_t done, std::size_t total) {
                               EXPECT_EQ(total, 4u);
                               told.push_back(done);
                               return true;
                           });
    EXPECT_EQ(told, (std::vector<std::size_t>{0, 1, 2, 3, 4}));
    EXPECT_EQ(outcome.copied, 3u);
    EXPECT_EQ(outcome.failedFiles, std::vector<std::string>{"data\\blocked.dat"});
    EXPECT_EQ(box.readFile("target\\data\\deep\\table.dat"), "rows");
    EXPECT_TRUE(box.exists("target\\empty"));
    EXPECT_EQ(box.readFile("target\\.hidden"), "h");
    EXPECT_EQ(folderCopyReport(outcome, "S", "T"),
              "These files could not be copied into\nT\ndata\\blocked.dat");

    const FolderCopyOutcome missing =
        copyFolderContents(box.host(), box.windowsPath("gone"), box.windowsPath("target"),
                           [](std::size_t, std::size_t) { return true; });
    EXPECT_TRUE(missing.sourceMissing);
    EXPECT_EQ(
        folderCopyReport(missing, "S", "T"),
        "The folder\nS\nwas not found, so no files were copied. The project is saved without them; copy "
        "them into\nT\nand save again.");
}

}  // namespace
}  // namespace orvanta
