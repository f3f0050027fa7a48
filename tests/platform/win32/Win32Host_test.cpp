// What only the real Windows calls can show: shell folders, cmd.exe running batch files, and the
// attributes kept by an atomic write.
#include <windows.h>

#include <gtest/gtest.h>

#include "support/Sandbox.h"

namespace orvanta {
namespace {

TEST(Win32Host, DocumentsFolderWithoutOverrideIsARealFolder) {
    auto host = createHost({});
    const std::string documents = host->specialFolder(5);
    ASSERT_FALSE(documents.empty());
    EXPECT_NE(documents.back(), '\\');
    const auto attributes = host->fileAttributes(documents);
    ASSERT_TRUE(attributes.has_value()) << documents;
    EXPECT_NE(*attributes & kAttributeDirectory, 0u);
    EXPECT_EQ(host->specialFolder(12345), "");
}

TEST(Win32Host, BatchFileRunsUnderCmdAndIsWaitedFor) {
    testing::Sandbox box;
    Host& host = box.host();
    // "%~nx0" is cmd.exe's own expansion: another processor would write it literally.
    box.writeFile("with blank\\probe.bat", "@echo off\r\nping -n 2 127.0.0.1 > nul\r\necho ran %~nx0 %1> \"" +
                                               box.windowsPath("out.txt") + "\"\r\n");
    const auto id =
        host.startProcess("\"" + box.windowsPath("with blank\\probe.bat") + "\" first", kWindowHidden);
    ASSERT_TRUE(id.has_value());
    const ProcessHandle process = host.openProcess(*id);
    ASSERT_NE(process, 0u);
    EXPECT_EQ(host.waitForProcess(process, 20000), WaitResult::Signalled);
    host.closeProcess(process);
    EXPECT_EQ(box.readFile("out.txt"), "ran probe.bat first\r\n");
}

TEST(Win32Host, MissingProgramDoesNotStart) {
    testing::Sandbox box;
    EXPECT_FALSE(
        box.host().startProcess("\"" + box.windowsPath("none.exe") + "\"", kWindowHidden).has_value());
    EXPECT_EQ(box.host().openProcess(0xFFFFFFF0u), 0u);
}

TEST(Win32Host, AtomicWriteKeepsHiddenBitAndLeavesNoTemporary) {
    testing::Sandbox box;
    Host& host = box.host();
    const std::string path = box.windowsPath("hidden.cfg");
    ASSERT_TRUE(host.writeFileAtomic(path, "old"));
    ASSERT_TRUE(host.setFileAttributes(path, kAttributeHidden));
    ASSERT_TRUE(host.writeFileAtomic(path, "new"));
    EXPECT_EQ(box.readFile("hidden.cfg"), "new");
    EXPECT_NE(host.fileAttributes(path).value_or(0) & kAttributeHidden, 0u);
    EXPECT_EQ(host.listDirectory(box.windowsPath("*"), false).size(), 1u);
}

}  // namespace
}  // namespace orvanta
