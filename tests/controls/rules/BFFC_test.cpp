#include "controls/rules/BFFC.h"

#include <gtest/gtest.h>

#include "controls/rules/ModBrowse.h"
#include "support/Sandbox.h"
#include "support/ScriptedDialogs.h"

namespace orvanta {
namespace {

TEST(BFFC, DefaultsAndAMissingDriveFirstThenRecurseOnlyWhenTheBoxWasShown) {
    testing::Sandbox box;
    testing::ScriptedDialogs dialogs;
    BFFC chooser(box.host(), dialogs);
    chooser.OpenBrowse();
    chooser.InitDir = "Q:\\";
    chooser.Title = "Where to?";
    chooser.SaveBrowse();
    ASSERT_EQ(dialogs.folderBrowsers.size(), 2u);
    EXPECT_EQ(dialogs.folderBrowsers[0].title, "Select a Folder");
    EXPECT_EQ(dialogs.folderBrowsers[0].initialFolder, "c:\\");
    EXPECT_EQ(dialogs.folderBrowsers[1].title, "Where to?");
    EXPECT_EQ(dialogs.folderBrowsers[1].initialFolder, firstDriveRoot(box.host()));
    EXPECT_EQ(firstDriveRoot(box.host()), "C:\\") << "the first drive there is";

    dialogs.answerNextFolder({"C:\\data", true});
    EXPECT_EQ(chooser.OpenBrowse(), "C:\\data");
    EXPECT_FALSE(chooser.DoRecurse());
    chooser.ShowRecurse = true;
    dialogs.answerNextFolder({"C:\\data", true});
    chooser.OpenBrowse();
    EXPECT_TRUE(chooser.DoRecurse());
    EXPECT_EQ(chooser.OpenBrowse(), "") << "a cancelled dialog";
    EXPECT_FALSE(chooser.DoRecurse());
}

}  // namespace
}  // namespace orvanta
