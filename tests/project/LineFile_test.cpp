#include "project/LineFile.h"

#include <gtest/gtest.h>

#include "project/NumberText.h"
#include "support/Sandbox.h"

namespace orvanta {
namespace {

using Lines = std::vector<std::string>;

TEST(ReadLines, SplitsCrLfAndLoneLfAndKeepsTextAfterTheLastLineEnd) {
    struct Row {
        const char* bytes;
        Lines lines;
    };
    const Row rows[] = {
        {"", {}},
        {"\r\n", {""}},
        {"a\r\nb\r\n", {"a", "b"}},
        {"a\nb", {"a", "b"}},
        {"a\r\n\r\n", {"a", ""}},
        {"a\rb\r\n", {"a\rb"}},  // a lone CR is part of the line
    };
    testing::Sandbox box;
    for (const auto& row : rows) {
        box.writeFile("f.txt", row.bytes);
        EXPECT_EQ(readLines(box.host(), box.windowsPath("f.txt"), 10), row.lines) << row.bytes;
    }
    // Not "nul.bin": Windows takes any name "nul.*" for its null device.
    box.writeFile("zero.bin", std::string("x\0y\nz", 5));
    EXPECT_EQ(readLines(box.host(), box.windowsPath("zero.bin"), 10), (Lines{std::string("x\0y", 3), "z"}));
    EXPECT_FALSE(readLines(box.host(), box.windowsPath("missing.txt"), 10));
}

TEST(NumberText, WritesBlanksAroundAndReadsBothForms) {
    EXPECT_EQ(numberLine(1), " 1 ");
    EXPECT_EQ(numberLine(0), " 0 ");
    EXPECT_EQ(numberLine(-1), "-1 ");
    EXPECT_EQ(parseFlag(" 1 "), 1);
    EXPECT_EQ(parseFlag("1"), 1);
    EXPECT_EQ(parseFlag("0"), 0);
    EXPECT_EQ(parseFlag(""), std::nullopt);
    EXPECT_EQ(parseFlag("yes"), std::nullopt);
}

TEST(NumberText, IntegerPartRoundsDownDirectConversionRoundsHalfToEven) {
    struct Row {
        const char* text;
        std::optional<int> integerPart;
        std::optional<int> direct;
    };
    const Row rows[] = {
        {" 1 ", 1, 1},   {"1.5", 1, 2},        {" 2.5 ", 2, 2}, {"-0.5", -1, 0},   {"+3", 3, 3},
        {"1e1", 10, 10}, {".5", 0, 0},         {"0.7", 0, 1},   {"", {}, {}},      {" ", {}, {}},
        {"1 2", {}, {}}, {"inf", {}, {}},      {"nan", {}, {}}, {"40000", {}, {}}, {"-32768", -32768, -32768},
        {"1x", {}, {}},  {"\xff\xfe", {}, {}},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(integerPartOf(row.text), row.integerPart) << '"' << row.text << '"';
        EXPECT_EQ(convertedNumber(row.text), row.direct) << '"' << row.text << '"';
    }
}

}  // namespace
}  // namespace orvanta
