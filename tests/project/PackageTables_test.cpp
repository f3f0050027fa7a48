#include "project/PackageTables.h"

#include <gtest/gtest.h>

#include "core/RuntimeError.h"
#include "support/Sandbox.h"

namespace orvanta {
namespace {

TEST(PackageTables, SlotsZeroToAThousandAndABoundsErrorPastThem) {
    PackageTables tables;
    tables.slot(kLastPackageSlot).name = "last";
    EXPECT_EQ(tables.slot(1000).name, "last");
    for (int outside : {-1, 1001}) {
        try {
            tables.slot(outside);
            ADD_FAILURE() << outside;
        } catch (const RuntimeError& error) {
            EXPECT_EQ(error.number(), 9);
            EXPECT_EQ(error.description(), "Subscript out of range");
        }
    }
}

TEST(PackageTables, WritesOnlyTheCountedSlotsAndSkipsNamelessOnesWhenAsked) {
    testing::Sandbox box;
    PackageTables tables;
    tables.slot(0) = {"A", "<>\\a", "", "1", "0", "0", "1"};
    tables.slot(1) = {"", "<>\\b", "", "0", "0", "0", "0"};
    tables.slot(2) = {"stale", "<>\\c", "", "0", "0", "0", "0"};
    const std::string path = box.windowsPath("packages.cfg");
    ASSERT_TRUE(tables.write(box.host(), path, 2, true));
    EXPECT_EQ(box.readFile("packages.cfg"), "A\r\n<>\\a\r\n\r\n1\r\n0\r\n0\r\n1\r\n");
    ASSERT_TRUE(tables.write(box.host(), path, 2, false));
    EXPECT_EQ(box.readFile("packages.cfg"),
              "A\r\n<>\\a\r\n\r\n1\r\n0\r\n0\r\n1\r\n\r\n<>\\b\r\n\r\n0\r\n0\r\n0\r\n0\r\n");

    // Reading back fills from slot 0 and leaves the slots past the file alone.
    EXPECT_EQ(tables.read(box.host(), path), 2u);
    EXPECT_EQ(tables.count, 2u);
    EXPECT_EQ(tables.slot(2).name, "stale");
}

TEST(PackageTables, TheInstallByDefaultFieldTakesEveryFormItIsStoredIn) {
    for (const char* set : {"1", " 1 ", "-1", "True", "true"}) EXPECT_TRUE(packageFlagSet(set)) << set;
    for (const char* clear : {"0", " 0 ", "False", "", "yes"}) EXPECT_FALSE(packageFlagSet(clear)) << clear;
}

}  // namespace
}  // namespace orvanta
