// What the command processor does with lines that cmd.exe would refuse or treat specially.
#include <gtest/gtest.h>

#include <iostream>
#include <sstream>

#include "ovcmd/CommandProcessor.h"
#include "support/Sandbox.h"

namespace orvanta {
namespace {

class CommandProcessorTest : public ::testing::Test {
protected:
    int run(const std::string& line) {
        std::ostringstream captured;
        auto* old = std::cerr.rdbuf(captured.rdbuf());
        CommandProcessor processor(box.host());
        const int level = processor.runLine(line);
        std::cerr.rdbuf(old);
        errors = captured.str();
        return level;
    }

    testing::Sandbox box;
    std::string errors;
};

TEST_F(CommandProcessorTest, UnknownCommandsAreErrorsNotSkipped) {
    EXPECT_EQ(run("frobnicate /x"), 9009);
    EXPECT_NE(errors.find("'frobnicate' is not recognized"), std::string::npos);
}

TEST_F(CommandProcessorTest, MissingFilesAreReportedAndLeaveTheRestAlone) {
    box.writeFile("a.txt", "a");
    EXPECT_EQ(run("copy \"" + box.windowsPath("none.txt") + "\" \"" + box.windowsPath("b.txt") + "\""), 1);
    EXPECT_FALSE(box.exists("b.txt"));
    EXPECT_EQ(run("rd /s /q \"" + box.windowsPath("no folder") + "\""), 2);
    EXPECT_EQ(run("copy /b \"" + box.windowsPath("a.txt") + "\" +"), 1) << "a dangling + is a syntax error";
}

TEST_F(CommandProcessorTest, DelTakesWildcardsAndSparesReadOnlyFilesWithoutF) {
    box.writeFile("t\\one.tmp", "1");
    box.writeFile("t\\Two.TMP", "2");
    box.writeFile("t\\keep.txt", "3");
    box.writeFile("t\\locked.tmp", "4");
    Host& host = box.host();
    ASSERT_TRUE(host.setFileAttributes(box.windowsPath("t\\locked.tmp"), kAttributeReadOnly));
    run("del /q \"" + box.windowsPath("t\\*.tmp") + "\"");
    EXPECT_FALSE(box.exists("t\\one.tmp"));
    EXPECT_FALSE(box.exists("t\\Two.TMP"));
    EXPECT_TRUE(box.exists("t\\keep.txt"));
    EXPECT_TRUE(box.exists("t\\locked.tmp"));
    EXPECT_NE(errors.find("Access is denied."), std::string::npos);
    run("del /f /q \"" + box.windowsPath("t\\locked.tmp") + "\"");
    EXPECT_FALSE(box.exists("t\\locked.tmp"));
}

TEST_F(CommandProcessorTest, AttribSetsTheReadOnlyBitOfAFolderAndFiles) {
    box.writeFile("p\\desktop.ini", "x");
    Host& host = box.host();
    EXPECT_EQ(run("attrib +r \"" + box.windowsPath("p") + "\""), 0);
    EXPECT_NE(host.fileAttributes(box.windowsPath("p")).value_or(0) & kAttributeDirectory, 0u);
    EXPECT_EQ(run("attrib +h +s \"" + box.windowsPath("p\\desktop.ini") + "\""), 0);
    const auto attributes = host.fileAttributes(box.windowsPath("p\\desktop.ini")).value_or(0);
    EXPECT_EQ(attributes & (kAttributeHidden | kAttributeSystem), kAttributeHidden | kAttributeSystem);
    box.writeFile("p\\new.txt", "the folder still takes files");
}

// Windows' cmd.exe reads a batch file a line at a time, so nothing runs after the file is gone
// (wine's reads it whole, which is why this is not among the tests shared with it).
TEST_F(CommandProcessorTest, NothingRunsAfterTheBatchFileDeletedItself) {
    const std::string batch = box.windowsPath("job.bat");
    box.writeFile("x", "x");
    box.writeFile("job.bat", "del \"" + batch + "\"\r\ncopy \"" + box.windowsPath("x") + "\" \"" +
                                 box.windowsPath("y") + "\"\r\n");
    CommandProcessor processor(box.host());
    processor.runBatchFile(batch, {});
    EXPECT_FALSE(box.exists("job.bat"));
    EXPECT_FALSE(box.exists("y"));
}

}  // namespace
}  // namespace orvanta
