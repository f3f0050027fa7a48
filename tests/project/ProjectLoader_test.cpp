#include <random>
#include <stdexcept>

#include "EditorFixture.h"
#include "project/SkipFailures.h"

namespace orvanta {
namespace {

using namespace ctrl;
using Items = std::vector<ListItem>;

class ProjectLoaderTest : public EditorFixture {
protected:
    // A "mainsettings.cfg" as a new project saves it, with the given lines (numbered from 1) changed.
    void writeSettings(const std::vector<std::pair<int, std::string>>& changed = {}) {
        std::vector<std::string> settings(49, " 0 ");
        for (const int text : {2, 5, 6, 9, 10, 13, 16, 18, 19, 22, 23, 26, 30, 32, 33, 34, 35, 36, 40})
            settings[static_cast<std::size_t>(text - 1)].clear();
        settings[0] = "Demo";
        settings[23] = "NONE";
        settings[43] = "s";
        for (const auto& [line, text] : changed) settings[static_cast<std::size_t>(line - 1)] = text;
        box.writeFile(rel("mainsettings.cfg"), linesText(settings));
    }
    static std::string numbered(std::size_t count, const std::string& stem) {
        std::string text;
        for (std::size_t i = 0; i < count; ++i) appendLine(text, stem + std::to_string(i));
        return text;
    }
};

TEST_F(ProjectLoaderTest, ReportsEachStepInOrderAndShowsTheEditor) {
    writeSettings();
    fields->setVisible(noway(0), false);
    ASSERT_EQ(load(), LoadOutcome::Loaded);
    std::vector<std::string> expected = {"controlTips: Loading..."};
    for (const char* step :
         {"...reading mainsettings file", "...reading tips file", "...reading intro file",
          "...reading uninstall intro file", "...reading uninstall end file", "...reading license/notes file",
          "...reading uninstall registry locations file", "...reading uninstall appdata settings file",
          "...reading dependencies file", "...reading application files file",
          "...reading application folders file", "...reading application msi files",
          "...reading executables file", "...reading fonts file", "...loading background image",
          "...loading logo image", "...loading preview image", "...applying other frontend settings"}) {
        expected.push_back(std::string("start.loading: ") + step);
        expected.push_back("events");
    }
    expected.push_back("controlTips: ");
    EXPECT_EQ(fields->journal(), expected);
    EXPECT_EQ(fields->control(mainfrm).caption, "Orvanta ~ " + root);
    EXPECT_TRUE(fields->visible(mainfrm));
    EXPECT_TRUE(fields->enabled(mainfrm));
    // Without logo, licence or packages the placeholders show.
    EXPECT_TRUE(fields->visible(noway(0)) && fields->visible(noway(1)));
    EXPECT_EQ(fields->control(Command15).caption, "Add logo");
    EXPECT_EQ(fields->text(Text10), "<>");
    EXPECT_FALSE(fields->enabled(Command8) || fields->enabled(Command41));
    EXPECT_EQ(fields->control(Command35).caption, "Manage packages \r\n0 package(s)");
    EXPECT_FALSE(fields->enabled(Option1) || fields->enabled(Option2)) << "no locations to delete";
}

TEST_F(ProjectLoaderTest, AMainSettingsFileThatCannotBeOpenedStopsTheLoad) {
    EXPECT_EQ(load(), LoadOutcome::MainSettingsMissing);
    ASSERT_EQ(dialogs.messageBoxes.size(), 1u);
    EXPECT_EQ(
        dialogs.messageBoxes[0].text,
        "mainsettings.cfg file not found. The mainsettings file stores most of the settings of the project.");
    EXPECT_EQ(dialogs.messageBoxes[0].icon, MessageIcon::Critical);
    EXPECT_EQ(fields->journal(),
              (std::vector<std::string>{"controlTips: Loading...",
                                        "start.loading: ...reading mainsettings file", "events"}));
    EXPECT_FALSE(fields->enabled(mainfrm));

    box.makeFolder(rel("mainsettings.cfg"));
    EXPECT_EQ(load(), LoadOutcome::MainSettingsUnreadable);
    EXPECT_EQ(dialogs.messageBoxes.at(1).text, "Path/File access error (" + root + "\\mainsettings.cfg)");
}

TEST_F(ProjectLoaderTest, LinesReadOverOrTakenApart) {
    fields->setValue(Option2, 1);
    fields->setValue(startMenuShortcut, 1);
    writeSettings({{2, "AnnAuthor"},
                   {3, "x"},
                   {13, " "},
                   {24, "WHATEVER"},
                   {26, "readme.txt"},
                   {32, "http://support"},
                   {44, "i"}});
    std::string damaged = box.readFile(rel("mainsettings.cfg"));
    damaged.replace(damaged.find("AnnAuthor"), 9, std::string("Ann\0Author\x01", 11));
    box.writeFile(rel("mainsettings.cfg"), damaged);
    box.writeFile(rel("intro.cfg"), std::string("one\r\nt\0wo\r\n", 11));
    load();
    ASSERT_EQ(dialogs.messageBoxes.size(), 1u) << "one message for all the damage";
    EXPECT_EQ(
        dialogs.messageBoxes[0].text,
        "Some settings of the project are damaged and could not be read as they stand.\r\n" + root +
            "\\intro.cfg:\r\n  line 2: control characters left out\r\n" + root +
            "\\mainsettings.cfg:\r\n  line 2: control characters left out\r\n  line 3: \"x\" is no number; "
            "the field keeps its value\r\n  line 24: \"WHATEVER\" is none of FULLDEL, REGDEL and NONE; the "
            "option stays as it was\r\nSaving the project keeps what the editor shows now.");
    EXPECT_EQ(fields->text(appAuthor), "AnnAuthor");
    EXPECT_EQ(fields->text(introText), "one\r\ntwo");
    EXPECT_EQ(fields->value(startMenuShortcut), 1) << "a flag that is no number keeps the box";
    EXPECT_EQ(fields->value(Check23), 0) << "a blank executable name";
    EXPECT_EQ(fields->value(Option2), 1) << "an unknown word selects nothing";
    EXPECT_TRUE(fields->enabled(Command38));
    EXPECT_EQ(fields->text(supportLink), "http://support");
    EXPECT_FALSE(fields->control(supportLink).placeholderLook);
    EXPECT_EQ(fields->value(Check15), 1);
    EXPECT_TRUE(fields->control(helpLink).placeholderLook) << "an empty line leaves the placeholder";
    EXPECT_EQ(fields->value(Option5), 1);
    EXPECT_FALSE(fields->enabled(updateIgnoreLicense));
    EXPECT_TRUE(fields->enabled(updateSilent) && fields->enabled(updateRunApp));
}

TEST_F(ProjectLoaderTest, ListsAreClearedOnlyWhereTheirFileSaysSo) {
    writeSettings();
    fields->addListItems(registryLocations, {"old registry"});
    fields->addListItems(fonts, {"old.ttf"});
    fields->addListItems(files, {"old.exe"});
    fields->addListItem(dependencies, "old.ocx", true);
    box.writeFile(rel("registrylocations.cfg"), "<>\r\nignored\r\n");
    box.writeFile(rel("fonts.cfg"), "");
    box.writeFile(rel("files.cfg"), "a.exe\r\n");
    box.writeFile(rel("dependencies.cfg"), "x.ocx\r\n 1 \r\ny.dll\r\n0\r\n");
    load();
    EXPECT_EQ(fields->listItems(registryLocations), (Items{{"old registry"}}));
    EXPECT_FALSE(fields->enabled(Option1)) << "no application data locations to delete";
    EXPECT_TRUE(fields->enabled(Option2));
    EXPECT_EQ(fields->listCount(fonts), 0u);
    EXPECT_EQ(fields->listItems(files), (Items{{"a.exe"}}));
    EXPECT_EQ(fields->listItems(dependencies), (Items{{"x.ocx", true}, {"y.dll", false}}));

    load();
    EXPECT_EQ(fields->listItems(files), (Items{{"a.exe"}})) << "a second load lists each file once";
}

TEST_F(ProjectLoaderTest, PackagesLogoAndLicenceSwitchTheirControls) {
    writeSettings();
    packageTables.entries[2].name = "from an earlier project";
    box.writeFile(rel("packages.cfg"), numbered(14, "field "));
    box.writeFile(rel("logo.png"), "PNG");
    box.writeFile(rel("slicense.txt"), "terms\r\n");
    fields->setText(fullLicenseFile, "license.rtf");
    load();
    EXPECT_EQ(packageTables.count, 2u);
    EXPECT_EQ(packageTables.entries[1].removeByDefault, "field 13");
    EXPECT_EQ(packageTables.entries[2].name, "from an earlier project");
    EXPECT_EQ(fields->control(Command35).caption, "Manage packages \r\n2 package(s)");
    EXPECT_EQ(fields->control(logo2).picture, root + "\\logo.png");
    EXPECT_TRUE(fields->visible(noway(0)));
    EXPECT_FALSE(fields->visible(noway(1)));
    EXPECT_TRUE(fields->enabled(Command40));
    EXPECT_EQ(fields->control(Command15).caption, "Replace logo");
    EXPECT_EQ(fields->value(resumedLicenseEnabled), 1);
    EXPECT_EQ(fields->text(resumedLicenseText), "terms");
    EXPECT_EQ(fields->text(Text10), "slicense.txt");
    EXPECT_TRUE(fields->enabled(Command41));
}

// Whatever the files held, no control byte comes back in a saved file but the CR LF of line ends.
TEST_F(ProjectLoaderTest, DamagedFilesNeverStopTheLoadAndAreSavedClean) {
    std::mt19937 random(7);
    const char* names[] = {
        "mainsettings.cfg", "intro.cfg",       "tips.cfg",    "slicense.txt", "registrylocations.cfg",
        "dependencies.cfg", "files.cfg",       "folders.cfg", "fonts.cfg",    "packages.cfg",
        "msi.cfg",          "executables.cfg", "1.jpg",       "logo.png"};
    for (int round = 0; round < 20; ++round) {
        for (const char* name : names) {
            std::string bytes(random() % 3000, '\0');
            for (char& c : bytes)
                c = random() % 4 == 0 ? "\r\n\0 "[random() % 4] : static_cast<char>(random() % 256);
            box.writeFile(rel(name), bytes);
        }
        fields = freshEditor();
        dialogs.messageBoxes.clear();
        EXPECT_EQ(load(), LoadOutcome::Loaded) << round;
        EXPECT_TRUE(fields->visible(mainfrm));
        EXPECT_EQ(std::count_if(dialogs.messageBoxes.begin(), dialogs.messageBoxes.end(),
                                [](const auto& asked) { return asked.text.starts_with("Some settings"); }),
                  1);
        fields->setText(appName, "Demo");  // a name no folder can hold is another story
        ASSERT_EQ(save(), SaveOutcome::Saved) << round;
        for (const auto& entry : box.host().listDirectory(root + "\\*", false)) {
            if (entry.name == "1.jpg" || entry.name == "logo.png" ||
                entry.name.ends_with("executables.cfg") || entry.name == "msi.cfg" ||
                entry.name == "packages.cfg")
                continue;  // not written by the save
            const std::string bytes = box.readFile(rel(entry.name));
            for (std::size_t i = 0; i < bytes.size(); ++i) {
                const bool lineEnd = (bytes[i] == '\r' && i + 1 < bytes.size() && bytes[i + 1] == '\n') ||
                                     (bytes[i] == '\n' && i > 0 && bytes[i - 1] == '\r');
                ASSERT_TRUE(static_cast<unsigned char>(bytes[i]) >= 0x20 || lineEnd)
                    << entry.name << " byte " << i << " round " << round;
            }
        }
    }
}

// The window ties the desktop shortcut to its "checked" box and to the main executable's box;
// the loader must leave them as the file's line order does.
class RuledFields : public MemoryProjectFields {
public:
    using MemoryProjectFields::MemoryProjectFields;
    void setValue(ControlName control, int value) override {
        MemoryProjectFields::setValue(control, value);
        if (control == Check23 && value == 0) {
            MemoryProjectFields::setValue(desktopShortcut, 0);
            MemoryProjectFields::setValue(desktopChecked, 0);
        }
        if (control == desktopChecked && value == 1) MemoryProjectFields::setValue(desktopShortcut, 1);
    }
};

TEST_F(ProjectLoaderTest, ValuesAreAppliedInLineOrder) {
    writeSettings({{4, " 1 "}, {13, ".exe"}, {28, " 1 "}});
    RuledFields ruled(&box.host());
    ASSERT_EQ(load(ruled), LoadOutcome::Loaded);
    EXPECT_EQ(ruled.value(desktopChecked), 1) << "line 28 comes after the executable's line 13";
    EXPECT_EQ(ruled.value(desktopShortcut), 1);
}

TEST(SkipOnFailure, DropsRunTimeErrorsAndLetsProgrammingErrorsThrough) {
    EXPECT_NO_THROW(skipOnFailure([] { throw RuntimeError(kErrorNumberFileNotFound, "File not found"); }));
    EXPECT_THROW(skipOnFailure([] { throw std::out_of_range("no such control"); }), std::out_of_range);
}

TEST_F(ProjectLoaderTest, OverlongFilesAreCutAtTheirBuffers) {
    writeSettings();
    const std::string huge = numbered(200'000, "line ");
    for (const char* name : {"files.cfg", "folders.cfg", "fonts.cfg", "registrylocations.cfg",
                             "dependencies.cfg", "packages.cfg", "intro.cfg", "executables.cfg"})
        box.writeFile(rel(name), huge);
    ASSERT_EQ(load(), LoadOutcome::Loaded);
    EXPECT_EQ(fields->listCount(files), 100'001u);
    EXPECT_EQ(fields->listItems(folders).back().text, "line 100000");
    EXPECT_EQ(fields->listCount(fonts), 51u);
    EXPECT_EQ(fields->listCount(registryLocations), 51u);
    EXPECT_EQ(fields->listCount(dependencies), 101u);
    EXPECT_EQ(packageTables.count, 1'001u);
    EXPECT_TRUE(fields->text(introText).ends_with("\r\nline 50"));
}

}  // namespace
}  // namespace orvanta
