#include "editor/rules/MainExecutable.h"

#include <gtest/gtest.h>

namespace orvanta {
namespace {

TEST(MainExecutable, KeepsThePathBelowTheFilesFolderFoundInAnyCase) {
    const std::string files = "C:\\Orvanta\\myinstallers\\\xC4pp\\files";
    const struct {
        const char* picked;
        const char* kept;
    } rows[] = {
        {"C:\\Orvanta\\myinstallers\\\xC4pp\\files\\bin\\app.exe", "bin\\app.exe"},
        {"c:\\orvanta\\MYINSTALLERS\\\xE4PP\\FILES\\Bin\\app.exe",
         "Bin\\app.exe"},                         // accented letters fold too
        {"D:\\elsewhere\\tool.bat", "tool.bat"},  // outside: the bare name
        {"tool.exe", "tool.exe"},
    };
    for (const auto& row : rows) EXPECT_EQ(mainExecutableName(row.picked, files), row.kept) << row.picked;
}

}  // namespace
}  // namespace orvanta
