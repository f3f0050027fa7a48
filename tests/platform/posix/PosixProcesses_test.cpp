#include <gtest/gtest.h>

#include <signal.h>

#include <cstdlib>
#include <thread>

#include "FakeProgram.h"
#include "platform/posix/PosixHost.h"
#include "support/Sandbox.h"

namespace orvanta {
namespace {

// Runs a command line to its end; false when it could not start or did not end in time.
bool runToEnd(Host& host, const std::string& commandLine) {
    const auto id = host.startProcess(commandLine, kWindowHidden);
    if (!id) return false;
    const ProcessHandle process = host.openProcess(*id);
    const bool ended = process != 0 && host.waitForProcess(process, 10000) == WaitResult::Signalled;
    host.closeProcess(process);
    return ended;
}

class Processes : public ::testing::Test {
protected:
    void SetUp() override {
        // Stands in for the command processor: records its arguments and the data folder it was given.
        const auto recorder = testing::writeFakeProgram(
            box.hostRoot() / "ovcmd", "printf '%s\\n' \"$@\" > \"" + (box.hostRoot() / "args").string() +
                                          "\"; echo \"$" + kDataFolderEnvironmentVariable + "\" >> \"" +
                                          (box.hostRoot() / "args").string() + "\"");
        box.config().commandProcessor = recorder.string();
    }

    testing::Sandbox box;
};

TEST_F(Processes, BatchFilesRunUnderTheCommandProcessorAndProgramsWithTheirArgumentsMapped) {
    Host& host = box.host();
    box.writeFile("job\\Packager.bat", "echo hi\r\n");
    const std::string dataFolder = (box.hostRoot() / "data").string();
    ASSERT_TRUE(runToEnd(host, "\"" + box.windowsPath("JOB\\packager.bat") + "\""));
    EXPECT_EQ(box.readFile("args"),
              (box.hostRoot() / "job" / "Packager.bat").string() + "\n" + dataFolder + "\n");
    ASSERT_TRUE(runToEnd(host, "del /q \"C:\\a b.txt\""));
    EXPECT_EQ(box.readFile("args"), "/c\ndel /q \"C:\\a b.txt\"\n" + dataFolder + "\n")
        << "the line is passed whole";
    EXPECT_FALSE(host.startProcess("\"" + box.windowsPath("missing.bat") + "\"", kWindowHidden).has_value());

    testing::writeFakeProgram(box.hostRoot() / "bin" / "7z",
                              "printf '%s\\n' \"$@\" > \"" + (box.hostRoot() / "out").string() + "\"");
    const std::string line =
        "\"" + box.windowsPath("bin\\7z.exe") + "\" a -t7z \"" + box.windowsPath("Out File.7z") + "\" -mx9";
    ASSERT_TRUE(runToEnd(host, line)) << "\"7z.exe\" runs \"7z\"";
    EXPECT_EQ(box.readFile("out"), "a\n-t7z\n" + (box.hostRoot() / "Out File.7z").string() + "\n-mx9\n");
    EXPECT_FALSE(
        host.startProcess("\"" + box.windowsPath("bin\\none.exe") + "\"", kWindowHidden).has_value());
    EXPECT_FALSE(host.startProcess("", kWindowHidden).has_value());
}

TEST_F(Processes, AWaitEndsWithTheProcessOrTimesOutAndTheListNamesTheRunningTestProgram) {
    Host& host = box.host();
    const auto id = host.startProcess("sh -c \"sleep 5\"", kWindowHidden);
    ASSERT_TRUE(id.has_value()) << "a bare name is searched on PATH";
    const ProcessHandle process = host.openProcess(*id);
    ASSERT_NE(process, 0u);
    const auto start = host.tickMilliseconds();
    EXPECT_EQ(host.waitForProcess(process, 100), WaitResult::TimedOut);
    EXPECT_GE(host.tickMilliseconds() - start, 100u);
    ::kill(static_cast<pid_t>(*id), SIGKILL);
    EXPECT_EQ(host.waitForProcess(process, 5000), WaitResult::Signalled);
    EXPECT_EQ(host.waitForProcess(process, 0), WaitResult::Signalled) << "the end is remembered once reaped";
    host.closeProcess(process);
    EXPECT_EQ(host.waitForProcess(0, 0), WaitResult::Failed);

    const auto names = host.processNames();
    EXPECT_NE(std::find(names.begin(), names.end(), "platform_tests"), names.end());
}

class ShellOpen : public ::testing::Test {
protected:
    void SetUp() override { savedPath = std::getenv("PATH"); }
    void TearDown() override { ::setenv("PATH", savedPath.c_str(), 1); }
    void searchOnlySandboxBin() { ::setenv("PATH", (box.hostRoot() / "bin").c_str(), 1); }

    std::string savedPath;
    testing::Sandbox box;
};

TEST_F(ShellOpen, OpensFilesAndAddressesWithXdgOpenAndReportsWhatItCouldNotOpen) {
    Host& host = box.host();
    box.writeFile("final.exe", "MZ");
    box.writeFile("notes.odd", "?");
    searchOnlySandboxBin();
    EXPECT_EQ(host.shellExecute(box.windowsPath("final.exe"), "", kWindowNormalFocus), 31) << "no opener";
    // xdg-open's own verdict: 4 when no program takes the file, as for a type nothing handles.
    testing::writeFakeProgram(box.hostRoot() / "bin" / "xdg-open",
                              "echo \"$1\" >> \"" + (box.hostRoot() / "opened").string() +
                                  "\"\ncase \"$1\" in *.odd) exit 4;; esac");
    EXPECT_EQ(host.shellExecute(box.windowsPath("missing.exe"), "", kWindowNormalFocus), 2);
    EXPECT_EQ(host.shellExecute(box.windowsPath("FINAL.EXE"), "", kWindowNormalFocus), 42);
    EXPECT_EQ(host.shellExecute("https://example.org/a?b", "", kWindowNormalFocus), 42);
    EXPECT_EQ(host.shellExecute(box.windowsPath("notes.odd"), "", kWindowNormalFocus), 31);
    EXPECT_EQ(box.readFile("opened"), (box.hostRoot() / "final.exe").string() +
                                          "\nhttps://example.org/a?b\n" +
                                          (box.hostRoot() / "notes.odd").string() + "\n");
}

}  // namespace
}  // namespace orvanta
