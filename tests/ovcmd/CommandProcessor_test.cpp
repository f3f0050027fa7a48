// What the command processor does with each kind of line, those cmd.exe would refuse included,
// and the line rules that a run cannot show one by one.
// The lines that batch files of this system run are compared with cmd.exe in the platform tests.
#include <gtest/gtest.h>

#include <iostream>
#include <sstream>

#include "ovcmd/BatchLine.h"
#include "ovcmd/CommandProcessor.h"
#include "support/Sandbox.h"

namespace orvanta {
namespace {

class CommandProcessorTest : public ::testing::Test {
protected:
    // "<>" in a line stands for the sandbox's root.
    int run(testing::Sandbox& box, std::string line) {
        for (auto at = line.find("<>"); at != std::string::npos; at = line.find("<>"))
            line.replace(at, 2, box.windowsRoot());
        std::ostringstream captured;
        auto* old = std::cerr.rdbuf(captured.rdbuf());
        CommandProcessor processor(box.host());
        const int level = processor.runLine(line);
        std::cerr.rdbuf(old);
        errors = captured.str();
        return level;
    }

    std::string errors;
};

TEST_F(CommandProcessorTest, EachLineDoesItsWorkOrSaysWhyNot) {
    struct Row {
        const char* line;
        int level;
        const char* error;  // a part of what goes to standard error; "" for nothing
        std::vector<const char*> gone, kept;
        const char* attributesOf = nullptr;
        std::uint32_t attributes = 0;
    };
    const Row rows[] = {
        {"frobnicate /x", 9009, "'frobnicate' is not recognized", {}, {}},
        {"copy \"<>\\none.txt\" \"<>\\b.txt\"", 1, "", {"b.txt"}, {}},
        {"rd /s /q \"<>\\no folder\"", 2, "", {}, {}},
        {"copy /b \"<>\\a.txt\" +", 1, "", {}, {}},  // a dangling + is a syntax error
        // Wildcards ignore case; a read-only file stays without /f.
        {"del /q \"<>\\t\\*.tmp\"",
         0,
         "Access is denied.",
         {"t\\one.tmp", "t\\Two.TMP"},
         {"t\\keep.txt", "t\\locked.tmp"}},
        {"del/f /q \"<>\\t\\locked.tmp\"", 0, "", {"t\\locked.tmp"}, {"t\\one.tmp"}},  // a switch ends a word
        {"attrib +r \"<>\\t\"", 0, "", {}, {}, "t", kAttributeDirectory},
        {"attrib +h +s \"<>\\t\\keep.txt\"",
         0,
         "",
         {},
         {},
         "t\\keep.txt",
         kAttributeHidden | kAttributeSystem},
    };
    for (const Row& row : rows) {
        testing::Sandbox box;
        for (const char* file : {"a.txt", "t\\one.tmp", "t\\Two.TMP", "t\\keep.txt", "t\\locked.tmp"})
            box.writeFile(file, file);
        ASSERT_TRUE(box.host().setFileAttributes(box.windowsPath("t\\locked.tmp"), kAttributeReadOnly));
        EXPECT_EQ(run(box, row.line), row.level) << row.line;
        EXPECT_NE(errors.find(row.error), std::string::npos) << row.line << ": " << errors;
        for (const char* file : row.gone) EXPECT_FALSE(box.exists(file)) << row.line << ": " << file;
        for (const char* file : row.kept) EXPECT_TRUE(box.exists(file)) << row.line << ": " << file;
        if (row.attributesOf) {
            const auto attributes = box.host().fileAttributes(box.windowsPath(row.attributesOf)).value_or(0);
            EXPECT_EQ(attributes & row.attributes, row.attributes) << row.line;
        }
    }
}

// Windows' cmd.exe reads a batch file a line at a time, so nothing runs after the file is gone
// (wine's reads it whole, which is why this is not among the tests shared with it).
TEST_F(CommandProcessorTest, NothingRunsAfterTheBatchFileDeletedItself) {
    testing::Sandbox box;
    const std::string batch = box.windowsPath("job.bat");
    box.writeFile("x", "x");
    box.writeFile("job.bat", "del \"" + batch + "\"\r\ncopy \"" + box.windowsPath("x") + "\" \"" +
                                 box.windowsPath("y") + "\"\r\n");
    CommandProcessor processor(box.host());
    processor.runBatchFile(batch, {});
    EXPECT_FALSE(box.exists("job.bat"));
    EXPECT_FALSE(box.exists("y"));
}

TEST(BatchLine, RedirectionOutsideQuotesIsTakenOff) {
    struct Case {
        const char* line;
        const char* command;
        const char* output;
        bool append;
    };
    const Case cases[] = {
        {"@dir /b /s \"C:\\a\\files\" > \"C:\\a\\my files.txt\"", "dir /b /s \"C:\\a\\files\"",
         "C:\\a\\my files.txt", false},
        {"echo x>>log.txt", "echo x", "log.txt", true},
        {"\"C:\\a>b\\7z.exe\" a", "\"C:\\a>b\\7z.exe\" a", "", false},
        {"   del C:\\x   ", "del C:\\x", "", false},
    };
    for (const auto& c : cases) {
        const BatchLine parsed = parseBatchLine(c.line);
        EXPECT_EQ(parsed.command, c.command) << c.line;
        EXPECT_EQ(parsed.output, c.output) << c.line;
        EXPECT_EQ(parsed.append, c.append) << c.line;
    }
}

TEST(BatchLine, ReferencesExpandLikeABatchFile) {
    ::setenv("ORVANTA_TEST_WORD", "value", 1);
    const std::vector<std::string> arguments = {"C:\\job.bat", "first"};
    EXPECT_EQ(expandReferences("%0 %1 %2 100%% %ORVANTA_TEST_WORD% %ORVANTA_UNSET_WORD%.", arguments),
              "C:\\job.bat first  100% value .");
    EXPECT_EQ(expandReferences("50% off", arguments), "50% off") << "a lone % stays";
}

}  // namespace
}  // namespace orvanta
