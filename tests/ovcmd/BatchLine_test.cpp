// The line rules of the command processor that a batch file run cannot show one by one.
#include <gtest/gtest.h>

#include "ovcmd/BatchLine.h"

namespace orvanta {
namespace {

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

TEST(BatchLine, FirstWordEndsAtBlankOrSwitch) {
    EXPECT_EQ(firstWord("del/q x").word, "del");
    EXPECT_EQ(firstWord("\"C:\\Program Files\\WinRAR\\rar.exe\" a").word,
              "C:\\Program Files\\WinRAR\\rar.exe");
    const auto word = firstWord("copy /b a + b c");
    EXPECT_EQ(word.word, "copy");
    EXPECT_EQ(std::string("copy /b a + b c").substr(word.restAt), " /b a + b c");
}

}  // namespace
}  // namespace orvanta
