// The rules that tie the editor's fields together.
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>

#include "EditorFixture.h"

namespace orvanta::testing {
namespace {

using FieldRules = EditorFixture;

bool looksLikePlaceholder(QLineEdit& box) {
    return box.font().italic() && box.palette().color(QPalette::Text) == QColor(0x80, 0x80, 0x80);
}

TEST_F(FieldRules, PlaceholdersShowGreyItalicUntilFocusedAndComeBackWhenLeftEmpty) {
    auto& support = get<QLineEdit>("Text14");
    EXPECT_EQ(text("Text14"), "Support link");
    EXPECT_TRUE(looksLikePlaceholder(support));

    focus("Text14", true);
    EXPECT_EQ(text("Text14"), "");
    EXPECT_FALSE(looksLikePlaceholder(support));
    EXPECT_TRUE(checked("Check15"));

    focus("Text14", false);
    EXPECT_EQ(text("Text14"), "Support link");
    EXPECT_TRUE(looksLikePlaceholder(support));
    EXPECT_FALSE(checked("Check15"));

    // A link that is kept keeps its look and its companion.
    focus("Text14", true);
    setText("Text14", "https://help.example");
    focus("Text14", false);
    EXPECT_EQ(text("Text14"), "https://help.example");
    EXPECT_FALSE(looksLikePlaceholder(support));
    EXPECT_TRUE(checked("Check15"));

    // Typing the placeholder's own words makes it the placeholder at the next focus.
    setText("Text14", "Support link");
    focus("Text14", true);
    EXPECT_EQ(text("Text14"), "");
}

TEST_F(FieldRules, InstallPathPreviewFollowsRootAndAuthorFolder) {
    setText("Text9", "Acme");
    setText("Combo5", "Themes\\");
    setText("Combo5", "<>");
    const std::string programFiles =
        text("Label26").substr(0, text("Label26").size() - std::string("Demo").size());
    EXPECT_EQ(text("Label26"), programFiles + "Demo");
    EXPECT_EQ(programFiles.back(), '\\');

    check("Check20", true);
    EXPECT_EQ(text("Label26"), programFiles + "Acme\\Demo");
    setText("Combo5", "user mydocuments\\Tools\\");
    EXPECT_EQ(text("Label26"), "user mydocuments\\Tools\\Acme\\Demo");
    setText("Combo5", "Allusers ApplicationData\\");
    EXPECT_EQ(text("Label26"), "Allusers ApplicationData\\Acme\\Demo");

    // Without the author folder the all-users root has no preview of its own.
    check("Check20", false);
    EXPECT_EQ(text("Label26"), "Allusers ApplicationData\\Acme\\Demo");
    setText("Combo5", "Themes\\");
    EXPECT_EQ(text("Label26"), "Themes\\Demo");
    setText("Combo5", "D:\\Apps\\");
    EXPECT_EQ(text("Label26"), "Themes\\Demo");
}

TEST_F(FieldRules, CleanItAllIsRefusedForABareRootAndForUnknownPlaces) {
    struct Case {
        const char* path;
        bool value;
        bool enabled;
    };
    const Case cases[] = {
        {"User MyDocuments\\", false, false}, {"Themes\\", false, false},
        {"Themes\\Demo", false, true},        {"User Local ApplicationData\\Demo\\", false, true},
        {"D:\\Apps", false, false},           {"<>", true, true}};
    for (const Case& c : cases) {
        setText("Combo5", c.path);
        EXPECT_EQ(checked("Check24"), c.value) << c.path;
        EXPECT_EQ(enabled("Check24"), c.enabled) << c.path;
    }
}

TEST_F(FieldRules, UninstallOptionsFollowTheTwoLocationLists) {
    check("Option1", true);
    struct Row {
        bool registry;
        bool appData;
        bool option1;
        bool option2;
    };
    for (const Row row : {Row{true, false, false, true}, Row{true, true, true, true},
                          Row{false, true, true, false}, Row{false, false, false, false}}) {
        get<QListWidget>("List3").clear();
        get<QListWidget>("List4").clear();
        window->re_uninoptions();
        if (row.registry) window->Command2_Click();
        if (row.appData) window->Command18_Click();
        EXPECT_EQ(enabled("Option1"), row.option1);
        EXPECT_EQ(enabled("Option2"), row.option2);
        EXPECT_TRUE(enabled("Option3"));
    }
    // A disabled option keeps its selection.
    EXPECT_TRUE(checked("Option1"));
}

TEST_F(FieldRules, MainExecutableSwitchRulesItsGroup) {
    setText("Text21", "demo.exe");
    check("Check3", true);
    check("Check29", true);
    check("Check33", true);
    focus("Text31", true);
    setText("Text31", "--quiet");

    check("Check23", false);
    EXPECT_EQ(text("Text21"), "");
    for (const char* name : {"Check2", "Check3", "Check9", "Check10", "Check28", "Check29", "Check4",
                             "Check5", "Check30", "Check33"}) {
        EXPECT_FALSE(checked(name)) << name;
        EXPECT_FALSE(enabled(name)) << name;
    }
    for (const char* name : {"Text21", "Command45", "Text31", "Text7", "Text26"})
        EXPECT_FALSE(enabled(name)) << name;
    EXPECT_EQ(text("Text31"), "Shortcuts arguments");
    EXPECT_TRUE(looksLikePlaceholder(get<QLineEdit>("Text31")));

    check("Check23", true);
    for (const char* name : {"Text21", "Command45", "Check2", "Check33", "Text26"})
        EXPECT_TRUE(enabled(name)) << name;
}

// No file keeps them, so they take no typing that a reload would lose.
TEST_F(FieldRules, UninstallerNameAndPublisherFollowTheNameAndAuthor) {
    setText("Text9", "Acme");
    EXPECT_EQ(text("Text13"), "Acme");
    setText("Text1", "Demo Pro");
    EXPECT_EQ(text("Text15"), "Demo Pro");
    EXPECT_TRUE(get<QLineEdit>("Text13").isReadOnly());
    EXPECT_TRUE(get<QLineEdit>("Text15").isReadOnly());
}

// Ticking a "checked" box ticks its option in the day; here, an option's end ends its boxes.
TEST_F(FieldRules, CheckedByDefaultBoxesCannotOutliveTheirOption) {
    check("Check28", true);
    check("Check2", false);
    EXPECT_FALSE(checked("Check28"));
    check("Check10", true);
    EXPECT_TRUE(checked("Check9"));

    check("Check33", true);
    check("Check30", true);
    check("Check4", false);
    for (const char* name : {"Check33", "Check30", "Check5"}) EXPECT_FALSE(checked(name)) << name;
    check("Check33", true);
    EXPECT_TRUE(checked("Check4"));
}

TEST_F(FieldRules, NoUninstallerHidesTheUninstallerFrames) {
    window->show();
    window->showPage(3);
    for (const bool none : {true, false}) {
        check("Check22", none);
        for (const char* frame : {"Frame5", "Frame6", "Frame1", "Frame14"})
            EXPECT_EQ(get<QWidget>(frame).isVisible(), !none) << frame;
    }
}

TEST_F(FieldRules, ResumedLicenceSwitchesItsGroupAndRemovesItsFile) {
    EXPECT_FALSE(enabled("Text19"));
    check("Check1", true);  // the day types into the group
    EXPECT_EQ(text("Text10"), "slicense.txt");

    setText("Text19", "Be nice.");
    sandbox.writeFile(projectRelative("slicense.txt"), "Be nice.\r\n");
    check("Check1", false);
    EXPECT_FALSE(sandbox.exists(projectRelative("slicense.txt")));
    EXPECT_EQ(text("Text10"), "<>");
    EXPECT_FALSE(enabled("Text19"));
    EXPECT_EQ(text("Text19"), "Be nice.");
}

TEST_F(FieldRules, CountersShowCharactersAndTheBoxesKeepTheirLimits) {
    setText("Text12", "Tip one\nTip two");
    EXPECT_EQ(text("Label18"), "Tips during installation 16/420 chars:");
    setText("Text11", std::string(600, 'x'));
    EXPECT_EQ(text("Text11").size(), 500u);
    EXPECT_EQ(text("Label8"), "Start description (2 paragraphs max) 500/500 chars:");
    // A line break counts as the two characters the file holds.
    setText("Text11", std::string(499, 'x') + "\ny");
    EXPECT_EQ(text("Label8"), "Start description (2 paragraphs max) 499/500 chars:");
    EXPECT_EQ(text("Text11"), std::string(499, 'x'));
}

TEST_F(FieldRules, InstantUpdateDisablesIgnoreLicenceAndOpensTheOtherTwo) {
    EXPECT_TRUE(enabled("Check36"));
    EXPECT_FALSE(enabled("Check37"));
    check("Option5", true);
    EXPECT_FALSE(enabled("Check36"));
    EXPECT_TRUE(enabled("Check37"));
    EXPECT_TRUE(enabled("Check38"));
    check("Option4", true);
    EXPECT_TRUE(enabled("Check36"));
    EXPECT_FALSE(enabled("Check38"));
}

}  // namespace
}  // namespace orvanta::testing
