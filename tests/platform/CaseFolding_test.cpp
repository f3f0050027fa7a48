#include "platform/CaseFolding.h"

#include <gtest/gtest.h>

#include <clocale>

namespace orvanta {
namespace {

// The fold must not follow the user's locale: the same names compare the same on every account.
TEST(CaseFolding, FoldsTheLettersOfWindows1252InAnyLocale) {
    std::setlocale(LC_ALL, "");
    struct Row {
        const char* a;
        const char* b;
        bool equal;
    };
    const Row rows[] = {
        {"Program Files\\", "PROGRAM files\\", true},
        {"\xC4\xD6\xDC\xC0\xDE", "\xE4\xF6\xFC\xE0\xFE", true},  // umlauts, grave, thorn
        {"\x8A\x8C\x8E\x9F", "\x9A\x9C\x9E\xFF", true},          // the letters apart from the others
        {"\xD7", "\xF7", false},                                 // multiplication and division signs
        {"\xDF", "SS", false},                                   // sharp s has no capital here
        {"[", "{", false},
        {"a", "ab", false},
    };
    for (const Row& row : rows) EXPECT_EQ(equalsIgnoringCase(row.a, row.b), row.equal) << row.a;
    EXPECT_EQ(toUpperCase("con.txt \xE9\xFF"), "CON.TXT \xC9\x9F");
    EXPECT_EQ(toLowerCase("HKCU\\\xC9"), "hkcu\\\xE9");
    EXPECT_LT(compareIgnoringCase("apple", "BANANA"), 0) << "case does not decide the order";
    EXPECT_LT(compareIgnoringCase("Ab", "abc"), 0);
    EXPECT_EQ(findIgnoringCase("C:\\P\\\xC4PP\\files\\a.exe", "\xE4pp\\FILES\\"), 5u);
    EXPECT_TRUE(endsWithIgnoringCase("setup.EXE", ".exe"));
    EXPECT_FALSE(startsWithIgnoringCase("ht", "http"));
    std::setlocale(LC_ALL, "C");
}

}  // namespace
}  // namespace orvanta
