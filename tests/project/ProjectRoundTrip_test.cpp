// Save an editor, load it into a fresh one, compare.
#include <utility>

#include "EditorFixture.h"

namespace orvanta {
namespace {

using namespace ctrl;

// Line numbers of "mainsettings.cfg" as the file format fixes them, independent of the code.
const std::vector<std::pair<ControlName, int>> kFlagLines = {
    {startMenuShortcut, 3},    {desktopShortcut, 4},      {startupOption, 7},     {startupChecked, 8},
    {quickLaunchShortcut, 11}, {quickLaunchChecked, 12},  {noRepair, 14},         {noModify, 15},
    {rollEffect, 17},          {authorFolder, 20},        {instantInstall, 21},   {cleanAll, 25},
    {lockInstallPath, 27},     {desktopChecked, 28},      {startMenuChecked, 29}, {startupAllUsers, 31},
    {startupRequired, 37},     {appIconOnRootFolder, 38}, {noUninstaller, 39},    {showEditionName, 41},
    {justRunMode, 42},         {updateIgnoreLicense, 45}, {updateRunApp, 46},     {updateSilent, 47},
    {createRestorePoint, 48},
};

using ProjectRoundTrip = EditorFixture;

TEST_F(ProjectRoundTrip, EachFlagHasItsOwnLineBothWays) {
    for (const auto& [flag, line] : kFlagLines) {
        fields = freshEditor();
        fields->setText(appName, "Demo");
        fields->setText(workingFolder, root);
        fields->setValue(Option1, 1);
        fields->setValue(Option4, 1);
        fields->setValue(flag, 1);
        save();
        const auto saved = lines("mainsettings.cfg");
        ASSERT_EQ(saved.size(), 49u);
        for (std::size_t i = 0; i < saved.size(); ++i) {
            EXPECT_TRUE(saved[i] != " 1 " || i + 1 == static_cast<std::size_t>(line))
                << flag.name << " on line " << i + 1;
        }

        auto loaded = freshEditor();
        load(*loaded);
        for (const auto& [other, unused] : kFlagLines)
            EXPECT_EQ(loaded->value(other), other == flag ? 1 : 0)
                << flag.name << " loaded into " << other.name;
    }
}

TEST_F(ProjectRoundTrip, PlaceholdersAreNeverStoredAndComeBackAsPlaceholders) {
    fields->setText(helpLink, "Help link");  // typed by hand, the look already normal
    fields->setPlaceholderLook(helpLink, false);
    fields->setValue(Check31, 1);
    save();
    const auto saved = lines("mainsettings.cfg");
    for (const int line : {6, 30, 32, 33, 34, 36}) EXPECT_EQ(saved[static_cast<std::size_t>(line - 1)], "");

    auto loaded = freshEditor();
    load(*loaded);
    EXPECT_EQ(loaded->text(helpLink), "Help link");
    EXPECT_TRUE(loaded->control(helpLink).placeholderLook);
    EXPECT_EQ(loaded->value(Check31), 0);
}

}  // namespace
}  // namespace orvanta
