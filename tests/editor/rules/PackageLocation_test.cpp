#include "editor/rules/PackageLocation.h"

#include <gtest/gtest.h>

namespace orvanta {
namespace {

TEST(PackageLocation, RemoveByDefaultFollowsTheKindOfLocation) {
    const struct {
        const char* location;
        bool ticked;
        bool enabled;
    } rows[] = {
        {"<>\\", true, true},  // the default location wins over "a token alone"
        {"<>\\plugins", true, true},
        {"D:\\<>\\odd", true, true},  // held anywhere, not only at the start
        {"Themes\\", false, false},
        {"User MyDocuments\\", false, false},
        {"Program Files\\Tools", true, true},
        {"D:\\Program Files\\Tools", true, true},
        {"Allusers ApplicationData\\x", true, true},
        {"C:\\Tools", false, false},
        {"", false, false},
    };
    for (const auto& row : rows) {
        const RemoveByDefaultBox box = removeByDefaultFor(row.location);
        EXPECT_EQ(box.ticked, row.ticked) << row.location;
        EXPECT_EQ(box.enabled, row.enabled) << row.location;
    }
}

TEST(PackageLocation, StructureAndRootTestsOnShortAndOddTexts) {
    EXPECT_FALSE(hasLocationStructure(""));
    EXPECT_FALSE(hasLocationStructure(":"));
    EXPECT_FALSE(hasLocationStructure(":\\x"));  // the drive letter is missing
    EXPECT_TRUE(hasLocationStructure("C:\\"));
    EXPECT_TRUE(hasLocationStructure("?:\\"));  // any character stands for the letter
    EXPECT_FALSE(hasLocationStructure(" Themes\\x"));
    EXPECT_FALSE(isRootLocation("C:\\"));
    EXPECT_FALSE(isRootLocation("Themes"));
    EXPECT_TRUE(isRootLocation("User ApplicationData (Roaming)\\"));
}

}  // namespace
}  // namespace orvanta
