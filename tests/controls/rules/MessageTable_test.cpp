#include "controls/rules/MessageTable.h"

#include <gtest/gtest.h>

namespace orvanta {
namespace {

TEST(MessageTable, AllMessagesAbsorbsAddsAndOnlyItsOwnDeletion) {
    MessageTable table;
    EXPECT_EQ(table.add(ALL_MESSAGES), MessageTable::Change::Done);
    for (int message = 1; message <= 40; ++message) EXPECT_EQ(table.add(message), MessageTable::Change::Done);
    EXPECT_TRUE(table.contains(12345));
    EXPECT_EQ(table.remove(ALL_MESSAGES), MessageTable::Change::Done);
    EXPECT_FALSE(table.contains(1));
    EXPECT_TRUE(table.empty());
    table.add(7);
    table.add(7);
    table.remove(7);
    EXPECT_FALSE(table.contains(7)) << "a number is held once";
}

}  // namespace
}  // namespace orvanta
