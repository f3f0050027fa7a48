#include <gtest/gtest.h>

#include <algorithm>

#include "core/modShellAndWait.h"
#include "project/ProjectIndex.h"
#include "support/Sandbox.h"

namespace orvanta {
namespace {

class ProjectIndex : public ::testing::Test {
protected:
    std::string workspace() { return box.windowsPath("Orvanta"); }
    testing::Sandbox box;
};

TEST_F(ProjectIndex, NamesAreCheckedAgainstThePlaceholderTheListAndTheFileSystem) {
    Host& host = box.host();
    const std::string placeholder = "Application name";
    box.makeFolder("Orvanta\\myinstallers\\Taken App");
    const std::pair<const char*, ProjectNameCheck> cases[] = {
        {"", ProjectNameCheck::Empty},
        {"Application name", ProjectNameCheck::Empty},
        {"Application names", ProjectNameCheck::Acceptable},
        {"Taken App", ProjectNameCheck::Taken},
        {"TAKEN APP", ProjectNameCheck::Taken},  // folder names ignore case
        {"a:b", ProjectNameCheck::Unusable},
        {"why?", ProjectNameCheck::Unusable},
        {"ends in a dot.", ProjectNameCheck::Unusable},
        {"nul", ProjectNameCheck::Unusable},
        {"Com1.txt", ProjectNameCheck::Unusable},
        {"Company", ProjectNameCheck::Acceptable},
        {"tab\there", ProjectNameCheck::Unusable},
    };
    for (const auto& [name, expected] : cases)
        EXPECT_EQ(checkProjectName(host, workspace(), name, placeholder), expected) << name;
}

TEST_F(ProjectIndex, TheFirstProjectMakesTheWholeTreeAndTheListShowsIt) {
    Host& host = box.host();
    EXPECT_TRUE(listProjects(host, workspace()).empty());
    EXPECT_EQ(createProjectTree(host, workspace(), "My App"), std::nullopt);
    for (const char* folder : {"files", "executables", "fonts", "packages", "settingsset", "msi"})
        EXPECT_TRUE(box.exists(std::string("Orvanta\\myinstallers\\My App\\") + folder)) << folder;
    box.writeFile("Orvanta\\myinstallers\\stray.txt", "x");
    std::vector<std::string> names = listProjects(host, workspace());
    std::sort(names.begin(), names.end());
    EXPECT_EQ(names, (std::vector<std::string>{"My App", "stray.txt"}));
    // A second creation over an existing tree makes nothing and fails nothing.
    EXPECT_EQ(createProjectTree(host, workspace(), "My App"), std::nullopt);
    // A file where a folder must go stops the creation and is named.
    box.writeFile("Orvanta\\myinstallers\\Blocked\\files", "not a folder");
    box.makeFolder("Orvanta\\myinstallers\\Blocked\\executables");
    EXPECT_EQ(createProjectTree(host, workspace(), "Blocked"),
              workspace() + "\\myinstallers\\Blocked\\files");
}

TEST_F(ProjectIndex, BatchFilesCopyAndRemoveAProject) {
    Host& host = box.host();
    const std::string ws = workspace();
    EXPECT_EQ(copyFilesBatchText("C:\\ws", "D:\\app", "X"),
              "xcopy /s /d \"D:\\app\" \"C:\\ws\\myinstallers\\X\\files\" /e /h /y\r\ndel "
              "C:\\ws\\copyfiles.bat\r\n");
    EXPECT_EQ(deleteProjectBatchText("C:\\ws", "X"),
              "rd /s /q \"C:\\ws\\myinstallers\\X\"\r\ndel \"C:\\ws\\deleteproject.bat\"\r\n");

    // Run for real: the copy takes nested and empty folders, the removal takes the whole tree.
    box.writeFile("source app\\app.exe", "MZ");
    box.writeFile("source app\\data\\deep\\table.dat", "rows");
    box.makeFolder("source app\\empty");
    ASSERT_EQ(createProjectTree(host, ws, "Copy Test"), std::nullopt);
    ASSERT_TRUE(host.writeFileAtomic(ws + "\\copyfiles.bat",
                                     copyFilesBatchText(ws, box.windowsPath("source app"), "Copy Test")));
    shellAndWait(host, "\"" + ws + "\\copyfiles.bat\"", 0, 60);
    EXPECT_EQ(box.readFile("Orvanta\\myinstallers\\Copy Test\\files\\data\\deep\\table.dat"), "rows");
    EXPECT_TRUE(box.exists("Orvanta\\myinstallers\\Copy Test\\files\\empty"));
    // The workspace path has no blank, so the unquoted line removes the batch file.
    EXPECT_FALSE(box.exists("Orvanta\\copyfiles.bat"));

    ASSERT_TRUE(host.writeFileAtomic(ws + "\\deleteproject.bat", deleteProjectBatchText(ws, "Copy Test")));
    shellAndWait(host, "\"" + ws + "\\deleteproject.bat\"", 0, 0);
    EXPECT_FALSE(box.exists("Orvanta\\myinstallers\\Copy Test"));
    EXPECT_FALSE(box.exists("Orvanta\\deleteproject.bat"));
}

TEST_F(ProjectIndex, PreviewReadsNameAndAuthor) {
    box.writeFile("p\\mainsettings.cfg", "My App\r\nAnn Author\r\n 1 \r\n");
    EXPECT_EQ(projectPreviewLines(box.host(), box.windowsPath("p")),
              (std::pair<std::string, std::string>{"My App", "Ann Author"}));
    EXPECT_EQ(projectPreviewLines(box.host(), box.windowsPath("missing")), std::nullopt);
}

}  // namespace
}  // namespace orvanta
