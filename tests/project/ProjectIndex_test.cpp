#include <gtest/gtest.h>

#include <algorithm>

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
    const std::pair<std::string, ProjectNameCheck> cases[] = {
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
        // The workspace here is short: a name this long is refused only for the paths it makes.
        {std::string(50, 'n'), ProjectNameCheck::Acceptable},
        {std::string(200, 'n'), ProjectNameCheck::TooLong},
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
    const auto blocked = createProjectTree(host, workspace(), "Blocked");
    ASSERT_TRUE(blocked.has_value());
    EXPECT_EQ(folderFailureText(*blocked), "The folder\n" + workspace() +
                                               "\\myinstallers\\Blocked\\files\ncould not be created: a file "
                                               "of that name is in the way.");
    // A folder the system refuses is named with the system's own words.
    const std::string overlong = workspace() + "\\" + std::string(300, 'w');
    const auto refused = createProjectTree(host, overlong, "My App");
    ASSERT_TRUE(refused.has_value());
    EXPECT_EQ(refused->folder, overlong);
    EXPECT_NE(folderFailureText(*refused).find("the system said \"" + host.lastFolderError() + "\"."),
              std::string::npos);
    EXPECT_FALSE(host.lastFolderError().empty());
}

TEST_F(ProjectIndex, TheLongestPathCountsTheDeepestWorkingSetAndTheTemporaryName) {
    // "\versions\" 16 "\" 32 "\" "settingsset\settings.cfg" ".~ovtmp-XXXXXX" below "W\myinstallers\N"
    EXPECT_EQ(longestProjectPath("W", "N"), 16u + 10 + 16 + 1 + 32 + 1 + 24 + 14);
    // Past 17 characters the marker's name is the longest file name.
    EXPECT_EQ(longestProjectPath("W", std::string(20, 'n')) - longestProjectPath("W", std::string(19, 'n')),
              2u);
    const std::string workspace(100, 'w');
    const std::string name(80, 'n');
    const std::string text = tooLongNameText(workspace, name);
    std::size_t fits = 0;
    while (longestProjectPath(workspace, std::string(fits + 1, 'n')) <= kLongestWindowsPath) ++fits;
    EXPECT_EQ(text, "This name is too long: use at most " + std::to_string(fits) +
                        " characters. With it the project's longest path would have " +
                        std::to_string(longestProjectPath(workspace, name)) +
                        " characters, and Windows allows 259.");
}

}  // namespace
}  // namespace orvanta
