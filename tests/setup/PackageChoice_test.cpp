// The optional packages as the start panel counts them and the drop-down list chooses them.
#include <gmock/gmock.h>

#include "setup/PackageChoice.h"
#include "setup/WizardFixture.h"

namespace orvanta::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

TEST_F(WizardTest, PackagesAreCountedWithTheWordsTheManagerWrites) {
    packages = block("Docs", "1", "0") + block("Samples", "True", "0") + block("Extras", "False", "0") +
               block("Core", "0", "1");
    ASSERT_TRUE(open());
    EXPECT_EQ(counters.total, 4);
    EXPECT_EQ(counters.chosen, 2);
    EXPECT_TRUE(screen().visible("Label21"));
    EXPECT_EQ(screen().text("Label21"), "2/4 packages to install");

    wizard->Command6_Click();
    EXPECT_TRUE(window.chooserShown);
    EXPECT_EQ(screen().text("Command6"), "<");
    PackageChooser chooser(tables, counters);
    EXPECT_THAT(chooser.rows(), ElementsAre("Docs", "Samples", "Extras", "Core (required)"));
    EXPECT_THAT(chooser.selected(), ElementsAre(true, true, false, false));
    // A required package listed unselected is selected by its first click, and stays so.
    chooser.clickRow(3, false);
    EXPECT_TRUE(chooser.requiredShown());
    EXPECT_EQ(chooser.description(), "About Core");
    EXPECT_TRUE(chooser.selected()[3]);
    chooser.clickRow(3, false);
    EXPECT_TRUE(chooser.selected()[3]);
    chooser.clickRow(0, false);
    EXPECT_FALSE(chooser.requiredShown());
    EXPECT_EQ(counters.chosen, 2);
    EXPECT_EQ(tables.slot(0).installByDefault, "0");
    EXPECT_EQ(tables.slot(3).installByDefault, "1");
    // The choice outlives the list: a new chooser shows it, and the start panel counts it.
    EXPECT_THAT(PackageChooser(tables, counters).selected(), ElementsAre(false, true, false, true));
    EXPECT_EQ(counters.chosen, 2);
    chooser.clickRow(1, false);
    wizard->packagesRecounted();
    EXPECT_EQ(screen().text("Label21"), "1/4 packages to install");
    wizard->packageChooserClosed();
    EXPECT_EQ(screen().text("Command6"), ">");
}

TEST_F(WizardTest, PackageFieldThatIsNoNumberStopsTheSimulationWithItsName) {
    packages = block("Docs", "1", "0") + block("Broken", "maybe", "0");
    EXPECT_FALSE(open());
    EXPECT_THAT(dialogs.messageTexts().back(), HasSubstr("\"Broken\""));
    EXPECT_THAT(dialogs.messageTexts().back(), HasSubstr("\"maybe\""));
}

TEST_F(WizardTest, ProjectWithoutItsSavedFilesIsNotPlayed) {
    ASSERT_TRUE(open());
    std::filesystem::remove(sandbox.hostRoot() / "Documents/Orvanta/myinstallers/Demo App/packages.cfg");
    wizard.emplace(host, dialogs, window, WizardProject{"Demo App", projectFolder(), projectFolder(), "", ""},
                   tables, counters);
    EXPECT_FALSE(wizard->Form_Load());
    EXPECT_THAT(dialogs.messageTexts().back(), HasSubstr("packages.cfg"));
}

}  // namespace
}  // namespace orvanta::testing
