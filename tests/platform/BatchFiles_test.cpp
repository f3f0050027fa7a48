// Batch files of the kinds this system writes, run through the host: by cmd.exe on Windows (and
// under wine), by ovcmd elsewhere. The expectations are the same on every host. Deleting a
// project ("rd /s /q") runs in the user's day; each line's own rules are the command processor's.
#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <thread>

#include "support/Sandbox.h"

namespace orvanta {
namespace {

class BatchFiles : public ::testing::Test {
protected:
    // Writes the lines (CR LF after each) to "job.bat", ending with the line that deletes it,
    // runs it to its end and tells whether it deleted itself.
    bool runBatch(const std::vector<std::string>& lines) {
        const std::string batch = box.windowsPath("work dir\\job.bat");
        std::string text;
        for (const auto& line : lines) text += line + "\r\n";
        text += "del \"" + batch + "\"\r\n";
        box.writeFile("work dir\\job.bat", text);
        Host& host = box.host();
        const auto id = host.startProcess("\"" + batch + "\"", kWindowHidden);
        if (!id) return false;
        const ProcessHandle process = host.openProcess(*id);
        const bool ended = process != 0 && host.waitForProcess(process, 30000) == WaitResult::Signalled;
        host.closeProcess(process);
        return ended && !box.exists("work dir\\job.bat");
    }

    std::string quoted(const std::string& relative) { return "\"" + box.windowsPath(relative) + "\""; }
    std::string recorder() { return "\"" + box.programFolder() + "\\recordargs.exe\""; }

    testing::Sandbox box;
};

TEST_F(BatchFiles, QuotedProgramCallGetsPathsItCanOpen) {
    box.writeFile("in file.txt", "hello");
    box.makeFolder("out dir");
    // The second call lacks its closing quote, as the first lines of the packing batch file do.
    ASSERT_TRUE(
        runBatch({recorder() + " " + quoted("out dir\\one.txt") + " plain " + quoted("in file.txt"),
                  recorder() + " " + quoted("out dir\\two.txt") + " \"" + box.windowsPath("in file.txt")}));
    EXPECT_EQ(box.readFile("out dir\\one.txt"), "plain\nfile:hello\n");
    EXPECT_EQ(box.readFile("out dir\\two.txt"), "file:hello\n");
}

TEST_F(BatchFiles, CopyJoinsStubAndArchiveByteForByte) {
    const std::string stub("MZ\0\x01\r\n\x1a stub", 12);
    const std::string archive("7z\xbc\xaf\x27\x1c\0\r\n end", 14);
    box.writeFile("compiled\\package2.exe", stub);
    box.writeFile("compiled\\package.7z", archive);
    box.writeFile("compiled\\package.exe", "an older package that is longer than the new one");
    ASSERT_TRUE(runBatch({"copy /b " + quoted("compiled\\package2.exe") + " + " +
                          quoted("compiled\\package.7z") + " " + quoted("compiled\\package.exe")}));
    EXPECT_EQ(box.readFile("compiled\\package.exe"), stub + archive);
    EXPECT_EQ(box.readFile("compiled\\package.7z"), archive) << "sources stay";
}

TEST_F(BatchFiles, XcopyTakesSubfoldersAndSkipsFilesThatAreNotNewer) {
    // Windows' xcopy overwrites without asking inside a batch file; wine's asks unless told so.
    static char overwriteQuietly[] = "COPYCMD=/Y";
    ::putenv(overwriteQuietly);
    box.writeFile("source\\app.exe", "new app");
    box.writeFile("source\\data\\level1\\map.dat", "map");
    box.makeFolder("source\\empty");
    box.writeFile("project\\files\\app.exe", "old app");
    box.writeFile("project\\files\\data\\level1\\map.dat", "edited here");
    // The copy in the project is newer than its source, so /d leaves it alone.
    std::this_thread::sleep_for(std::chrono::milliseconds(1100));
    box.writeFile("source\\app.exe", "new app");
    std::this_thread::sleep_for(std::chrono::milliseconds(1100));
    box.writeFile("project\\files\\data\\level1\\map.dat", "edited here");
    box.writeFile("source\\readme.txt", "read me");
    ASSERT_TRUE(runBatch({"xcopy /s /d " + quoted("source") + " " + quoted("project\\files")}));
    EXPECT_EQ(box.readFile("project\\files\\app.exe"), "new app");
    EXPECT_EQ(box.readFile("project\\files\\readme.txt"), "read me");
    EXPECT_EQ(box.readFile("project\\files\\data\\level1\\map.dat"), "edited here");
    EXPECT_FALSE(box.exists("project\\files\\empty")) << "/s leaves empty folders out";
}

}  // namespace
}  // namespace orvanta
