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
    for (const char* refused : {"", ":", ":\\x", " Themes\\x", "mylocation", "C:mylocation",
                                "program files\\x"})  // no letter before ":\", tokens keep their case
        EXPECT_FALSE(hasLocationStructure(refused)) << refused;
    for (const char* kept : {"C:\\", "?:\\", "Themes\\x", "<>\\"})  // any character is a letter
        EXPECT_TRUE(hasLocationStructure(kept)) << kept;
    for (const char* root : {"User ApplicationData (Roaming)\\", "Themes\\", "<>\\"})
        EXPECT_TRUE(isRootLocation(root)) << root;
    for (const char* deeper : {"C:\\", "Themes", "Themes\\x"}) EXPECT_FALSE(isRootLocation(deeper)) << deeper;
}

}  // namespace
}  // namespace orvanta
