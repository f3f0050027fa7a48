#include "project/ProjectSaver.h"

#include <zlib.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <set>
#include <sstream>

#include "EditorFixture.h"
#include "project/EditionSwitch.h"
#include "project/IntegrityRecord.h"
#include "project/LeftoverTemporaries.h"
#include "project/ProjectPaths.h"
#include "support/FailingHost.h"
#include "support/Split.h"

namespace orvanta {
namespace {

using namespace ctrl;

// A record entry as the record prints it, from zlib's CRC-32 rather than the engine under test.
std::string expectedEntry(const std::string& bytes) {
    if (bytes.empty()) return "0";
    const auto crc = crc32(0L, reinterpret_cast<const Bytef*>(bytes.data()), static_cast<uInt>(bytes.size()));
    return crcHex(static_cast<std::int32_t>(static_cast<std::uint32_t>(crc)));
}

// Every file and folder below a folder of the disk, by relative path.
struct Tree {
    std::map<std::string, std::string> files;
    std::set<std::string> folders;

    static Tree of(const std::filesystem::path& top) {
        Tree tree;
        for (const auto& entry : std::filesystem::recursive_directory_iterator(top)) {
            const std::string name = entry.path().lexically_relative(top).generic_string();
            if (entry.is_directory()) {
                tree.folders.insert(name);
            } else {
                std::ifstream in(entry.path(), std::ios::binary);
                std::ostringstream bytes;
                bytes << in.rdbuf();
                tree.files[name] = bytes.str();
            }
        }
        return tree;
    }
    void restoreAt(const std::filesystem::path& top) const {
        std::filesystem::remove_all(top);
        std::filesystem::create_directories(top);
        for (const auto& folder : folders) std::filesystem::create_directories(top / folder);
        for (const auto& [name, bytes] : files) std::ofstream(top / name, std::ios::binary) << bytes;
    }
    std::set<std::string> names() const {
        std::set<std::string> all = folders;
        for (const auto& [name, unused] : files) all.insert(name);
        return all;
    }
    std::vector<std::string> records() const {
        std::vector<std::string> found;
        for (const auto& [name, unused] : files)
            if (name.ends_with(".hsh")) found.push_back(name);
        return found;
    }
};

class ProjectSaverTest : public EditorFixture {
protected:
    std::vector<std::string> records(const std::string& folder) {
        std::vector<std::string> names;
        for (const auto& entry : box.host().listDirectory(folder + "\\*.hsh", false))
            names.push_back(entry.name);
        return names;
    }
    std::filesystem::path projectOnDisk() { return box.hostRoot() / "Documents/Orvanta/myinstallers/Demo"; }

    // Every file of the record differs from every other, so two swapped entries show.
    void fillEveryFile() {
        fields->setText(introText, "Welcome");
        fields->setText(tipsText, "tip one\r\ntip two");
        fields->setText(uninstallIntroText, "Remove Demo?");
        fields->setText(uninstallEndText, "Thanks for using Demo!");
        fields->setValue(resumedLicenseEnabled, 1);
        fields->setText(resumedLicenseText, "Short licence");
        fields->setText(anyFile, "readme.txt");
        fields->setText(mainExecutable, "demo.exe");
        fields->setValue(Check23, 1);
        fields->addListItems(registryLocations, {"HKCU\\Software\\Demo"});
        fields->addListItems(appDataLocations, {"ROAMING\\Demo"});
        fields->addListItem(dependencies, "a.ocx", true);
        fields->addListItems(fonts, {"demo.ttf"});
        for (const auto& [name, bytes] : {std::pair{"readme.txt", "read me"},
                                          {"files\\demo.exe", "MZ"},
                                          {"files\\sub\\data.bin", "12345"},
                                          {"packages.cfg", "Extras\r\n"},
                                          {"1.jpg", "JPEG"},
                                          {"preview.png", "PNG preview"},
                                          {"logo.png", "PNG logo"},
                                          {"settingsset\\keys.reg", "REGEDIT4"},
                                          {"settingsset\\run.exe", "MZ run"}})
            box.writeFile(rel(name), bytes);
        box.writeFile("app\\data\\install", "install stub");
        box.writeFile("app\\data\\uninstall", "uninstall stub");
        settingsSets.sets[0] = {"keys.reg", "File types", "REG"};
        settingsSets.sets[3] = {"run.exe", "Tools", "EXE"};
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
    box.writeFile(rel("mainsettings.cfg"), "Demo\r\n");
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
    for (const char* none : {".exe", "", " "}) {
        fields->setText(mainExecutable, none);
        save();
        EXPECT_FALSE(box.exists(rel("desktop.ini"))) << "\"" << none << "\" names no executable";
    }
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
    EXPECT_EQ(question.text, "Path/File access error (" + root +
                                 "\\mainsettings.cfg)75\r\nSomething went wrong while saving.");
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

// The settings sets go through the files and back: the second save knows set 0 and set 3 only
// from what the loader read.
TEST_F(ProjectSaverTest, TheRecordHoldsEveryEntryComputedApart) {
    fillEveryFile();
    ASSERT_EQ(save(), SaveOutcome::Saved);
    settingsSets = {};
    fields = freshEditor();
    ASSERT_EQ(load(), LoadOutcome::Loaded);
    EXPECT_EQ(settingsSets.sets[3], (SettingsSet{"run.exe", "Tools", "EXE"}));
    ASSERT_EQ(save(), SaveOutcome::Saved);

    // The entries that record a file of the working set, each with the file ("entry file|...").
    std::map<std::size_t, std::string> filled;
    for (const std::string& row : testing::split(
             "0 uninstallIntro.cfg|1 fonts.cfg|2 uninstallEnd.cfg|3 appdatalocations.cfg|"
             "5 mainsettings.cfg|6 folders.cfg|7 intro.cfg|8 registrylocations.cfg|9 packages.cfg|"
             "10 files.cfg|11 dependencies.cfg|12 tips.cfg|13 uninstallEnd.cfg|14 readme.txt|"
             "18 settingsset\\keys.reg|21 settingsset\\run.exe|23 files\\demo.exe|24 1.jpg|25 preview.png|"
             "26 logo.png|29 slicense.txt|31 settingsset\\0.cfg|34 settingsset\\3.cfg|"
             "36 settingsset\\settings.cfg",
             '|'))
        filled[std::stoul(row)] = row.substr(row.find(' ') + 1);
    std::set<std::string> contents;
    std::vector<std::string> expected(kRecordEntries);
    for (const auto& [entry, file] : filled) {
        expected[entry] = expectedEntry(box.readFile(rel(file)));
        if (file != "uninstallEnd.cfg") contents.insert(box.readFile(rel(file)));
    }
    expected[27] = expectedEntry("uninstall stub");
    expected[28] = expectedEntry("install stub");
    EXPECT_EQ(contents.size(), filled.size() - 2) << "no two recorded files alike";
    const auto saved = records(root);
    ASSERT_EQ(saved.size(), 1u);
    EXPECT_EQ(lines(saved[0]), expected);
}

// A save stopped after any of its changes to the disk leaves every file whole and one record;
// the next open and save leave what a clean save leaves.
TEST_F(ProjectSaverTest, ASaveKilledAtAnyPointLeavesAWholeProject) {
    fillEveryFile();
    box.writeFile(rel("desktop.ini"), "[.ShellClassInfo]\r\n");  // kept: no folder attributes to undo

    ASSERT_EQ(save(), SaveOutcome::Saved);
    const Tree before = Tree::of(projectOnDisk());
    fields->setText(introText, "Welcome back");
    fields->addListItems(registryLocations, {"HKLM\\Software\\Demo"});
    settingsSets.sets[0] = {};
    settingsSets.sets[1] = {"keys.reg", "Keys", "REGFILE"};
    const SettingsSetTables changed = settingsSets;
    testing::FailingHost killing(box.host());
    EditorContext saving{killing, dialogs, *fields, [] { return 0.5; }};
    ASSERT_EQ(project_saver(saving), SaveOutcome::Saved);
    const Tree after = Tree::of(projectOnDisk());
    const int total = killing.changes();
    ASSERT_GT(total, 10);

    for (int kill = 1; kill <= total; ++kill) {
        before.restoreAt(projectOnDisk());
        killing.killAtChange(kill);
        EXPECT_THROW(project_saver(saving), testing::Killed) << kill;
        const Tree stopped = Tree::of(projectOnDisk());
        for (const auto& [name, bytes] : stopped.files) {
            if (isLeftoverTemporary(name)) continue;
            const bool old = before.files.count(name) && before.files.at(name) == bytes;
            const bool renewed = after.files.count(name) && after.files.at(name) == bytes;
            EXPECT_TRUE(old || renewed || name.ends_with(".hsh")) << name << " after change " << kill;
        }
        for (const auto& [name, bytes] : before.files)
            EXPECT_TRUE(name.ends_with(".hsh") || !after.files.count(name) || stopped.files.count(name))
                << name << " missing after change " << kill;
        // The new record comes before the old one goes: one or both, each whole under its own name.
        ASSERT_FALSE(stopped.records().empty()) << "after change " << kill;
        for (const std::string& record : stopped.records()) {
            const auto whole = [&](const Tree& tree) {
                return record == tree.records()[0] && stopped.files.at(record) == tree.files.at(record);
            };
            EXPECT_TRUE(whole(before) || whole(after)) << record << " after change " << kill;
        }

        auto reopened = freshEditor();
        ASSERT_EQ(load(*reopened), LoadOutcome::Loaded);
        for (const auto& name : Tree::of(projectOnDisk()).names())
            EXPECT_FALSE(isLeftoverTemporary(name)) << name << " after change " << kill;
        killing.killAtChange(0);
        settingsSets = changed;
        ASSERT_EQ(project_saver(saving), SaveOutcome::Saved);
        EXPECT_EQ(Tree::of(projectOnDisk()).names(), after.names()) << "after change " << kill;
    }
}

// The folder walk lets events run; a click that saves, loads or switches then is refused.
TEST_F(ProjectSaverTest, ASaveLoadOrSwitchStartedInsideASaveIsRefused) {
    save();
    std::vector<std::string> inner;
    bool once = true;
    box.host().setMessagePump([&] {
        if (!std::exchange(once, false)) return;
        auto again = context();
        std::string edition = "No editions", version = "No versions";
        inner.push_back(project_saver(again) == SaveOutcome::Refused ? "save refused" : "save ran");
        inner.push_back(loadProject(again, root) == LoadOutcome::Refused ? "load refused" : "load ran");
        inner.push_back(changes_edition(again, edition, version) == LoadOutcome::Refused ? "switch refused"
                                                                                         : "switch ran");
    });
    fields->setText(introText, "changed");
    ASSERT_EQ(save(), SaveOutcome::Saved);
    EXPECT_EQ(inner, (std::vector<std::string>{"save refused", "load refused", "switch refused"}));
    EXPECT_EQ(records(root).size(), 1u);
    box.host().setMessagePump({});
    EXPECT_EQ(save(), SaveOutcome::Saved) << "the task ends with the save";
}

// A copy made by hand still names the project it came from; it saves into itself alone.
TEST_F(ProjectSaverTest, AHandCopiedFolderWritesOnlyIntoItself) {
    fields->setText(mainExecutable, "demo.exe");
    save();
    const std::filesystem::path original = projectOnDisk();
    const Tree untouched = Tree::of(original);
    std::filesystem::copy(original, original.parent_path() / "Copy",
                          std::filesystem::copy_options::recursive);
    const std::string copy = vars::workspaceFolder + "\\myinstallers\\Copy";
    std::filesystem::remove(original.parent_path() / "Copy/desktop.ini");

    auto editor = freshEditor();
    auto opening = context(*editor);
    ASSERT_EQ(loadProject(opening, copy), LoadOutcome::Loaded);
    EXPECT_EQ(dialogs.messageTexts(),
              std::vector<std::string>{"The folder \"" + copy +
                                       "\" holds the project \"Demo\", whose own folder is \"" + root +
                                       "\".\r\nSaving writes only into \"" + copy +
                                       "\", with the marker file \"Demo.ovproj\" there."});
    editor->setText(introText, "the copy's own");
    ASSERT_EQ(save(*editor), SaveOutcome::Saved);
    EXPECT_EQ(Tree::of(original).files, untouched.files);
    EXPECT_EQ(box.readFile("Documents\\Orvanta\\myinstallers\\Copy\\intro.cfg"), "the copy's own\r\n");
    EXPECT_EQ(box.readFile("Documents\\Orvanta\\myinstallers\\Copy\\Demo.ovproj"),
              box.readFile(rel("Demo.ovproj")));
    EXPECT_NE(
        box.readFile("Documents\\Orvanta\\myinstallers\\Copy\\desktop.ini").find(copy + "\\files\\demo.exe"),
        std::string::npos);
}

}  // namespace
}  // namespace orvanta
