#include "core/commonFunctions.h"

#include <gtest/gtest.h>

#include "core/SpecialFolderAPI.h"
#include "support/FailingHost.h"
#include "support/Sandbox.h"
#include "support/ScriptedDialogs.h"

namespace orvanta {
namespace {

TEST(FileTests, WildcardsFilesAndFolders) {
    testing::Sandbox box;
    box.writeFile("p\\mainsettings.cfg", "x");
    box.makeFolder("p\\files");
    Host& host = box.host();
    EXPECT_EQ(fileExists(host, box.windowsPath("p\\mainsettings.cfg")), kTrue);
    EXPECT_EQ(fileExists(host, box.windowsPath("p\\*.cfg")), kTrue);
    EXPECT_EQ(fileExists(host, box.windowsPath("p\\*.hsh")), kFalse);
    EXPECT_EQ(fileExists(host, box.windowsPath("p\\files")), kFalse) << "a folder is no file";
    EXPECT_EQ(fileExists(host, box.windowsPath("p\\missing\\x.cfg")), kFalse);
    EXPECT_EQ(fileExists(host, ""), kFalse);
    EXPECT_EQ(folderExists(host, box.windowsPath("p\\files")), kTrue);
    EXPECT_EQ(folderExists(host, box.windowsPath("p\\mainsettings.cfg")), kTrue) << "a file counts too";
    EXPECT_EQ(folderExists(host, box.windowsPath("p\\files\\")), kTrue);
    EXPECT_EQ(folderExists(host, box.windowsPath("p\\nothing")), kFalse);
}

TEST(WindowsVersionName, FollowsTheVersionWords) {
    struct Row {
        VersionWords words;
        const char* name;
    };
    const Row rows[] = {
        {{5, 0}, "Windows 2000"},  {{5, 1}, "Windows XP"}, {{5, 2}, "Windows XP"}, {{5, 3}, ""},
        {{6, 0}, "Windows Vista"}, {{6, 1}, "Windows 7"},  {{6, 3}, "Windows 7"},  {{10, 0}, "Windows old"},
        {{4, 0}, "Windows old"}};
    for (const auto& row : rows) {
        testing::Sandbox box;
        box.config().versionWords = row.words;
        EXPECT_EQ(windowsVersionName(box.host()), row.name) << row.words.major << "." << row.words.minor;
    }
}

// Says what could not be opened, with the shell's reason, in the system's form of a message.
TEST(ShellOpen, EveryFailureNamesWhatCouldNotBeOpened) {
    EXPECT_EQ(shellErrorText(3), "Caminho n\xE3o encontrado.");
    EXPECT_EQ(shellErrorText(4), "");
    struct Row {
        VersionWords words;
        int code;
        const char* reason;
    };
    const Row rows[] = {{{6, 1}, 2, "File not found."},
                        {{5, 1}, 31, "There's no application available for this filetype."},
                        {{6, 0}, 32, "The specified dynamic-link library was not found. "},
                        {{10, 0}, 0, "The system gave the error 0."}};
    for (const Row& row : rows) {
        testing::Sandbox box;
        box.config().versionWords = row.words;
        testing::FailingHost host(box.host());
        host.answerShell(row.code);
        testing::ScriptedDialogs dialogs;
        shellOpen(host, dialogs, "C:\\p\\changelog.txt", "");
        const std::string instruction = "Could not open C:\\p\\changelog.txt";
        if (row.words.major == 6) {
            ASSERT_EQ(dialogs.taskDialogs.size(), 1u) << row.code;
            EXPECT_EQ(dialogs.taskDialogs[0].instruction, instruction);
            EXPECT_EQ(dialogs.taskDialogs[0].content, row.reason);
        } else {
            ASSERT_EQ(dialogs.messageBoxes.size(), 1u) << row.code;
            EXPECT_EQ(dialogs.messageBoxes[0].text, instruction + "\r\n" + row.reason);
        }
    }
    testing::Sandbox box;
    testing::FailingHost opened(box.host());
    opened.answerShell(42);
    testing::ScriptedDialogs dialogs;
    shellOpen(opened, dialogs, "https://example.org", "");
    EXPECT_TRUE(dialogs.messageBoxes.empty() && dialogs.taskDialogs.empty());
}

TEST(SpecialFolders, EndWithABackslash) {
    testing::Sandbox box;
    EXPECT_EQ(specialFolder(box.host(), kFolderDocuments), box.documentsFolder() + "\\");
    for (const int csidl : {kFolderProgramFiles, kFolderSystem32Bit, kFolderCommonProgramFiles}) {
        const std::string folder = specialFolder(box.host(), csidl);
        ASSERT_GT(folder.size(), 3u) << csidl;
        EXPECT_EQ(folder.back(), '\\');
        EXPECT_EQ(folder[1], ':');
    }
    EXPECT_EQ(specialFolder(box.host(), 9999), "");
}

}  // namespace
}  // namespace orvanta
