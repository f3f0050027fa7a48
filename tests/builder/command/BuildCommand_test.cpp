// The parts of orvanta-build that its end-to-end test cannot reach cheaply: the refusals of its
// command line, the quoting of a signed file's path, and which files get the reproducible time.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "builder/command/BuildOptions.h"
#include "builder/command/ReproducibleTimes.h"
#include "builder/command/SignCommand.h"
#include "support/Sandbox.h"

namespace orvanta {
namespace {

TEST(BuildOptions, RefuseWhatCannotBeBuiltAndTakeBothValueForms) {
    struct Case {
        std::vector<std::string> arguments;
        std::string error;  // empty: accepted
    };
    const Case cases[] = {
        {{"p", "--level", "0", "--compressor=winrar", "--edition", "Pro", "--version=2"}, ""},
        {{"--help"}, ""},
        {{}, "Name the project folder to build."},
        {{"p", "q"}, "Only one project folder can be built at a time; \"q\" is one too many."},
        {{"p", "--level", "6"}, "--level takes a number from 0 to 5, not \"6\"."},
        {{"p", "--level=-1"}, "--level takes a number from 0 to 5, not \"-1\"."},
        {{"p", "--compressor", "zip"}, "--compressor takes 7zip or winrar, not \"zip\"."},
        {{"p", "--sign-command"}, "--sign-command needs a value."},
        {{"p", "--sign-command="}, "--sign-command needs a command."},
        {{"p", "--version", "2"}, "--version needs --edition."},
        {{"p", "--fast"}, "Unknown option \"--fast\"."},
    };
    for (const Case& c : cases) {
        const ParsedOptions parsed = parseBuildOptions(c.arguments);
        EXPECT_EQ(parsed.error, c.error) << ::testing::PrintToString(c.arguments);
        EXPECT_EQ(parsed.options.has_value(), c.error.empty());
    }
    const BuildOptions options = *parseBuildOptions(cases[0].arguments).options;
    EXPECT_EQ(options.level, 0);
    EXPECT_EQ(options.compressor, "winrar");
    EXPECT_EQ(options.edition, "Pro");
    EXPECT_EQ(options.version, "2");
}

TEST(SignCommand, QuotesThePathForTheShellThatRunsIt) {
    EXPECT_EQ(signCommandFor("sign -in {} -out {}.signed", "/tmp/it's here/a.exe"),
              "sign -in '/tmp/it'\\''s here/a.exe' -out '/tmp/it'\\''s here/a.exe'.signed");
    EXPECT_EQ(signCommandFor("sign {}", "C:/My Apps/a.exe"), "sign \"C:/My Apps/a.exe\"");
    EXPECT_EQ(signCommandFor("sign {", "/a"), "sign {");
}

// Only what the archive takes gets the time: the files at the top and the four folders whole.
TEST(ReproducibleTimes, StampTheArchivedFilesAndLeaveTheRestAlone) {
    testing::Sandbox box;
    for (const char* file : {"w\\mainsettings.cfg", "w\\files\\a\\b.txt", "w\\fonts\\f.ttf",
                             "w\\editions\\Pro\\mainsettings.cfg", "w\\compiled\\old.exe"})
        box.writeFile(file, "x");
    const auto root = box.hostRoot() / "w";
    const auto before = std::filesystem::last_write_time(root / "editions" / "Pro" / "mainsettings.cfg");

    EXPECT_EQ(stampArchivedFiles((root).string(), "\\files", 86400), "");
    for (const char* stamped : {"mainsettings.cfg", "files/a/b.txt", "fonts/f.ttf"})
        EXPECT_EQ(fileTimeSeconds((root / stamped).string()), 86400) << stamped;
    EXPECT_EQ(std::filesystem::last_write_time(root / "editions" / "Pro" / "mainsettings.cfg"), before);
    EXPECT_NE(fileTimeSeconds((root / "compiled" / "old.exe").string()), 86400);
}

}  // namespace
}  // namespace orvanta
