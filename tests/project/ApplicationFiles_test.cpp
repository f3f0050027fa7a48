#include "project/ApplicationFiles.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "support/Sandbox.h"

namespace orvanta {
namespace {

std::vector<std::string> sorted(std::vector<std::string> names) {
    std::sort(names.begin(), names.end());
    return names;
}

TEST(ApplicationFiles, ListsAreRelativeToTheFilesFolderAndEmptyWithoutIt) {
    testing::Sandbox box;
    const std::string base = applicationFilesBase(box.windowsPath("Orvanta"), "My App");
    EXPECT_EQ(base, box.windowsPath("Orvanta\\myinstallers\\My App\\files"));
    EXPECT_TRUE(refreshedFiles(box.host(), base).empty());
    EXPECT_TRUE(refreshedFolders(box.host(), base).empty());

    box.writeFile("Orvanta\\myinstallers\\My App\\files\\app.exe", "x");
    box.writeFile("Orvanta\\myinstallers\\My App\\files\\data\\maps\\one.map", "x");
    box.makeFolder("Orvanta\\myinstallers\\My App\\files\\empty");
    EXPECT_EQ(sorted(refreshedFiles(box.host(), base)),
              (std::vector<std::string>{"app.exe", "data\\maps\\one.map"}));
    EXPECT_EQ(sorted(refreshedFolders(box.host(), base)),
              (std::vector<std::string>{"data", "data\\maps", "empty"}));
}

TEST(ApplicationFiles, EveryOccurrenceOfTheBaseIsTakenOut) {
    EXPECT_EQ(removeEveryOccurrence("C:\\p\\files\\x\\C:\\p\\files\\y", "C:\\p\\files\\"), "x\\y");
    EXPECT_EQ(removeEveryOccurrence("abc", ""), "abc");
    EXPECT_EQ(removeEveryOccurrence("aaaa", "aa"), "");
}

}  // namespace
}  // namespace orvanta
