#include "project/EditionSwitch.h"

#include "EditorFixture.h"
#include "project/WorkingSetFiles.h"

namespace orvanta {
namespace {

using namespace ctrl;

class EditionSwitchTest : public EditorFixture {
protected:
    void SetUp() override {
        EditorFixture::SetUp();
        save();
    }
    std::optional<LoadOutcome> change(std::string edition, std::string& version) {
        auto switching = context();
        return changes_edition(switching, edition, version);
    }
};

TEST_F(EditionSwitchTest, SavesTheCurrentSetThenLoadsTheEditionAndBack) {
    box.makeFolder(rel("editions\\Pro"));
    edver_file_copier(box.host(), "\\editions\\Pro", {root, "Demo", "", "", ""});
    fields->setText(website, "http://root.example");
    std::string version = "No versions";
    ASSERT_EQ(change("Pro", version), LoadOutcome::Loaded);
    EXPECT_EQ(lines("mainsettings.cfg")[8], "http://root.example") << "the root was saved first";
    EXPECT_EQ(fields->text(workingFolder), root + "\\editions\\Pro");
    EXPECT_EQ(fields->text(editionName), "Pro");
    EXPECT_EQ(fields->text(website), "") << "the edition's copy predates the change";

    fields->setText(website, "http://pro.example");
    version = "2.0";
    ASSERT_EQ(change("No editions", version), LoadOutcome::Loaded);
    EXPECT_EQ(version, "2.0") << "without an edition the version is left alone";
    EXPECT_EQ(fields->text(workingFolder), root);
    EXPECT_EQ(fields->text(editionName), "No editions");
    EXPECT_EQ(fields->text(website), "http://root.example");
    EXPECT_EQ(lines("editions\\Pro\\mainsettings.cfg")[8], "http://pro.example");
}

TEST_F(EditionSwitchTest, AnEditionWithoutAWorkingSetOnlyChangesTheName) {
    std::string version = "No versions";
    fields->setText(website, "unsaved");
    EXPECT_FALSE(change("Gold", version));
    EXPECT_EQ(version, "No versions");
    EXPECT_EQ(fields->text(workingFolder), root);
    EXPECT_EQ(fields->text(editionName), "Gold");
    EXPECT_EQ(lines("mainsettings.cfg")[8], "unsaved") << "saved all the same";
}

}  // namespace
}  // namespace orvanta
