#include "project/ProjectSaver.h"

#include "EditorFixture.h"
#include "project/ProjectPaths.h"
#include "support/FailingHost.h"

namespace orvanta {
namespace {

using namespace ctrl;

class ProjectSaverTest : public EditorFixture {
protected:
    std::vector<std::string> records(const std::string& folder) {
        std::vector<std::string> names;
        for (const auto& entry : box.host().listDirectory(folder + "\\*.hsh", false))
            names.push_back(entry.name);
        return names;
    }
};

TEST_F(ProjectSaverTest, CleanAllIsClearedAtEverySaveForABareUserRoot) {
    const std::vector<std::pair<std::string, int>> cases = {
        {"User MyDocuments\\", 0},
        {"Themes\\", 0},
        {"User Local ApplicationData\\", 0},
        {"User ApplicationData (Roaming)\\", 0},
        {"Themes\\Demo", 1},
        {"Program Files\\", 1},
        {"Allusers ApplicationData\\", 1},
        {"<>", 1},
    };
    for (const auto& [path, kept] : cases) {
        fields->setText(installPath, path);
        fields->setValue(cleanAll, 1);
        save();
        EXPECT_EQ(fields->value(cleanAll), kept) << path;
        EXPECT_EQ(lines("mainsettings.cfg")[24], kept ? " 1 " : " 0 ") << path;
    }
}

TEST_F(ProjectSaverTest, MakesWhatAWorkingSetNeedsAndKeepsWhatItHas) {
    box.writeFile(rel("packages.cfg"), "kept\r\n");
    box.writeFile(rel("settingsset\\settings.cfg"), "old index");
    box.writeFile("Documents\\Orvanta\\backgrounds\\Default.jpg", "JPEG");
    box.writeFile(rel("fonts\\new.TTF"), "font");
    box.writeFile(rel("fonts\\notes.txt"), "text");
    fields->addListItems(fonts, {"gone.ttf"});
    fields->setText(appVersion, "3.0");
    fields->setText(finalPackageName, "setup-%version-%Version.exe");
    fields->setListIndex(fonts, 0);
    fields->setText(anyFile, "missing.txt");

    ASSERT_EQ(save(), SaveOutcome::Saved);
    EXPECT_EQ(box.readFile(rel("packages.cfg")), "kept\r\n");
    EXPECT_EQ(box.readFile(rel("settingsset\\settings.cfg")), "") << "the first set is unused";
    EXPECT_EQ(box.readFile(rel("1.jpg")), "JPEG") << "found as default.jpg";
    for (const char* folder : {"packages", "msi", "settingsset"})
        EXPECT_TRUE(box.exists(rel(folder))) << folder;
    EXPECT_EQ(box.readFile(rel("fonts.cfg")), "gone.ttf\r\nnew.TTF\r\n");
    EXPECT_EQ(lines("mainsettings.cfg")[25], "") << "an any-file that is not there";
    EXPECT_EQ(lines("mainsettings.cfg")[34], "setup-%version-%Version.exe");
    EXPECT_EQ(vars::finalPackageFile, "setup-3.0-%Version.exe");
    EXPECT_EQ(fields->control(fonts).listIndex, -1);
    EXPECT_FALSE(fields->enabled(Command12));
    EXPECT_EQ(fields->journal().front(), "controlTips: Saving project...");
    EXPECT_EQ(fields->status(StatusLabel::ControlTips), "Project Saved!");

    box.writeFile(rel("1.jpg"), "own");
    save();
    EXPECT_EQ(box.readFile(rel("1.jpg")), "own");
    EXPECT_EQ(records(root).size(), 1u) << "each save replaces the record";
}

TEST_F(ProjectSaverTest, TheLicenceIsWrittenInTheWorkingSetButRemovedFromTheRoot) {
    const std::string edition = root + "\\editions\\Pro";
    box.writeFile(rel("slicense.txt"), "root licence\r\n");
    box.writeFile(rel("editions\\Pro\\slicense.txt"), "edition licence\r\n");
    fields->setText(workingFolder, edition);

    save();  // the licence is off: both files stay
    EXPECT_TRUE(box.exists(rel("slicense.txt")));
    fields->setValue(resumedLicenseEnabled, 1);
    save();  // on and empty: the root's goes, the working set's stays
    EXPECT_FALSE(box.exists(rel("slicense.txt")));
    EXPECT_EQ(box.readFile(rel("editions\\Pro\\slicense.txt")), "edition licence\r\n");
    fields->setText(resumedLicenseText, "new terms");
    save();
    EXPECT_EQ(box.readFile(rel("editions\\Pro\\slicense.txt")), "new terms\r\n");
    EXPECT_FALSE(box.exists(rel("slicense.txt")));
    EXPECT_EQ(records(edition).size(), 1u);
    EXPECT_TRUE(box.exists(rel("Demo.ovproj"))) << "the marker stays at the root";
}

TEST_F(ProjectSaverTest, TheFolderIconIsWrittenOnceAndOnlyForARealExecutable) {
    save();
    EXPECT_FALSE(box.exists(rel("desktop.ini"))) << "\".exe\" names no executable";
    fields->setText(mainExecutable, "demo.exe");
    save();
    const std::string icon = root + "\\files\\demo.exe";
    EXPECT_EQ(box.readFile(rel("desktop.ini")), "[.ShellClassInfo]\r\nIconFile=" + icon +
                                                    "\r\nIconIndex = 0\r\nIconResource=" + icon + ",0\r\n");
    const auto attributes = box.host().fileAttributes(root + "\\desktop.ini").value_or(0);
    EXPECT_EQ(attributes & (kAttributeHidden | kAttributeSystem), kAttributeHidden | kAttributeSystem);
    fields->setText(mainExecutable, "other.exe");
    save();
    EXPECT_NE(box.readFile(rel("desktop.ini")).find("demo.exe"), std::string::npos);
}

TEST_F(ProjectSaverTest, AFailedWriteOffersRetryOrCancel) {
    testing::FailingHost failing(box.host());
    EditorContext saving{failing, dialogs, *fields, [] { return 0.0; }};
    failing.failWrite(2);  // the marker is written, "mainsettings.cfg" is not
    EXPECT_EQ(project_saver(saving), SaveOutcome::Cancelled);
    ASSERT_EQ(dialogs.messageBoxes.size(), 1u);
    const auto& question = dialogs.messageBoxes[0];
    EXPECT_EQ(question.text,
              "Path/File access error (" + root + "\\mainsettings.cfg)75Something went wrong while saving.");
    EXPECT_EQ(question.buttons, MessageButtons::RetryCancel);
    EXPECT_EQ(question.icon, MessageIcon::Exclamation);
    EXPECT_TRUE(box.exists(rel("Demo.ovproj"))) << "what was written stays";
    EXPECT_TRUE(records(root).empty());
    EXPECT_NE(fields->status(StatusLabel::ControlTips), "Project Saved!");

    failing.failWrite(3);
    dialogs.answerNext(DialogAnswer::Retry);
    EXPECT_EQ(project_saver(saving), SaveOutcome::Saved);
    EXPECT_EQ(dialogs.messageBoxes.size(), 2u);
    EXPECT_EQ(lines("mainsettings.cfg").size(), 49u);
    EXPECT_EQ(records(root).size(), 1u);
}

}  // namespace
}  // namespace orvanta
