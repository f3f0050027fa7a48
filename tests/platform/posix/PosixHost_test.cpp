#include <gtest/gtest.h>

#include <sys/statvfs.h>

#include <filesystem>

#include "support/Sandbox.h"

namespace orvanta {
namespace {

TEST(PosixPlaces, SystemFoldersAndTheCommandLineSpeakOfTheSimulatedDriveWhoseSpaceIsTheFileSystems) {
    testing::Sandbox box;
    Host& host = box.host();
    EXPECT_EQ(host.specialFolder(38), "C:\\Program Files");
    EXPECT_EQ(host.specialFolder(41), "C:\\Windows\\SysWOW64");
    EXPECT_EQ(host.specialFolder(43), "C:\\Program Files\\Common Files");
    EXPECT_TRUE(std::filesystem::is_directory(box.hostRoot() / "data/drive_c/Program Files/Common Files"));
    EXPECT_TRUE(std::filesystem::is_directory(box.hostRoot() / "data/drive_c/Windows/SysWOW64"));
    EXPECT_EQ(host.specialFolder(5), box.documentsFolder()) << "the configured documents folder";
    EXPECT_EQ(host.specialFolder(7), "");
    box.config().commandLineSet = false;
    EXPECT_EQ(box.restartHost().commandLine().find('/'), std::string::npos)
        << "host paths arrive in Windows form";

    const auto space = box.host().diskSpace("C:\\");
    struct statvfs info {};
    ASSERT_EQ(::statvfs(box.hostRoot().c_str(), &info), 0);
    ASSERT_TRUE(space.has_value());
    const std::uint64_t cluster = std::uint64_t{space->sectorsPerCluster} * space->bytesPerSector;
    EXPECT_EQ(cluster * space->totalClusters / info.f_frsize, info.f_blocks);
    EXPECT_FALSE(box.host().diskSpace("Q:\\").has_value());
}

TEST(PosixAttributes, HiddenAndSystemAreKeptBesideTheFileWhereTheFileSystemAllows) {
    testing::Sandbox box;
    Host& host = box.host();
    box.writeFile("desktop.ini", "[x]");
    const std::string path = box.windowsPath("desktop.ini");
    ASSERT_TRUE(host.setFileAttributes(path, kAttributeHidden | kAttributeSystem));
    const auto kept = *host.fileAttributes(path) & (kAttributeHidden | kAttributeSystem);
    if (kept == 0) GTEST_SKIP() << "no user attributes on this file system";
    EXPECT_EQ(kept, kAttributeHidden | kAttributeSystem);
    ASSERT_TRUE(host.writeFileAtomic(path, "[y]"));
    EXPECT_EQ(*host.fileAttributes(path) & kAttributeHidden, kAttributeHidden) << "a rewrite keeps them";
    ASSERT_TRUE(host.setFileAttributes(path, kAttributeArchive));
    EXPECT_EQ(*host.fileAttributes(path) & (kAttributeHidden | kAttributeSystem), 0u);
}

// A large folder is stat'ed on two threads; every entry must still get its own size, a dangling
// link is left out as it was before, and a second large folder reuses the worker.
TEST(PosixListing, LargeFoldersListEveryEntryWithItsOwnLength) {
    testing::Sandbox box;
    for (int file = 0; file < 300; ++file)
        box.writeFile("big\\f" + std::to_string(file) + ".dat",
                      std::string(static_cast<std::size_t>(file), 'x'));
    box.makeFolder("big\\sub");
    std::filesystem::create_symlink(box.hostRoot() / "nowhere",
                                    box.host().toHostPath(box.windowsPath("big")) + "/dangling");
    for (int round = 0; round < 2; ++round) {
        const auto entries = box.host().listDirectoryLengths(box.windowsPath("big\\*"), true);
        std::size_t files = 0;
        for (const DirectoryEntry& entry : entries) {
            if (entry.name == "." || entry.name == ".." || entry.name == "sub") {
                EXPECT_TRUE(entry.isFolder()) << entry.name;
                continue;
            }
            ASSERT_EQ(entry.name.front(), 'f') << entry.name;
            EXPECT_EQ(entry.length, std::stoull(entry.name.substr(1))) << entry.name;
            ++files;
        }
        EXPECT_EQ(files, 300u);
        EXPECT_EQ(entries.size(), 303u) << "the dangling link is not listed";
    }
}

}  // namespace
}  // namespace orvanta
