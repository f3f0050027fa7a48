#include "builder/PackageChecks.h"

#include "BuildFixture.h"

namespace orvanta {
namespace {

using namespace ctrl;

class RecordingForm : public CheckedForm {
public:
    void showPage(int page) override { moves.push_back("page " + std::to_string(page)); }
    void focus(ControlName control, Caret caret) override {
        static const char* const kCarets[] = {"end", "start", "first entry"};
        moves.push_back(std::string(control.name) + " " + kCarets[static_cast<int>(caret)]);
    }
    std::vector<std::string> moves;
};

struct CheckCase {
    const char* name;
    std::function<void(MemoryProjectFields&)> arrange;
    int failedCheck;
    const char* instruction;  // of the task dialog; empty: no message
    const char* plainText;    // of the message box on systems without task dialogs
    std::vector<std::string> moves;
};

class PackageChecksTest : public BuildFixture {
protected:
    void SetUp() override {
        BuildFixture::SetUp();
        fields->setValue(Check23, 1);
        fields->setText(mainExecutable, "demo.exe");
        fields->setText(installPath, "Program Files\\Demo");
        box.writeFile(rel("v2.0\\only.exe"), "versioned");
    }
};

TEST_F(PackageChecksTest, StopAtTheFirstFailureWithItsMessageAndMoveToTheField) {
    const std::string files = root + "\\files\\", version = root + "\\v1.0\\";
    const CheckCase cases[] = {
        {"all pass", [](auto&) {}, 0, "", "", {}},
        {"no author hides every later problem",
         [](auto& f) {
             f.setText(appAuthor, "");
             f.setText(appVersion, "");
         },
         1,
         "Missing publisher name",
         "You must name an author/publisher!",
         {"page 1", "appAuthor end"}},
        {"package name of only the extension",
         [](auto& f) { f.setText(finalPackageName, ".EXE"); },
         2,
         "Incorrect final package name",
         "You must (correctly) name the package!",
         {"page 1", "finalPackageName end"}},
        {"package name without .exe",
         [](auto& f) { f.setText(finalPackageName, "setup.msi"); },
         2,
         "Incorrect final package name",
         "You must (correctly) name the package!",
         {"page 1", "finalPackageName end"}},
        {"package name in capitals",
         [](auto& f) { f.setText(finalPackageName, "Setup.EXE"); },
         0,
         "",
         "",
         {}},
        {"main executable still the default",
         [](auto& f) { f.setText(mainExecutable, ".exe"); },
         3,
         "Missing executable name",
         "You must specify the file name of your application executable!",
         {"page 1", "mainExecutable start"}},
        {"main executable missing",
         [](auto& f) { f.setText(mainExecutable, "gone.exe"); },
         3,
         "Main executable not found!",
         "",
         {}},
        {"main executable only in the version folder",
         [](auto& f) {
             f.setText(mainExecutable, "only.exe");
             f.setText(appVersion, "2.0");
         },
         0,
         "",
         "",
         {}},
        {"no version",
         [](auto& f) { f.setText(appVersion, ""); },
         4,
         "Missing version field",
         "The application version is a required field!",
         {"appVersion end"}},
        {"missing any-file is cleared and the checks go on",
         [](auto& f) { f.setText(anyFile, "gone.bat"); },
         0,
         "Uninstaller executable not found!",
         "No uninstall executable was found. The field content was removed.",
         {}},
        {"package named as the main executable",
         [](auto& f) { f.setText(finalPackageName, "demo.exe"); },
         6,
         "Final package name has the same name as the application main executable",
         "Final package can't have the same name as the application main executable.",
         {"page 1", "finalPackageName end"}},
        {"the same name in other capitals passes",
         [](auto& f) { f.setText(finalPackageName, "DEMO.exe"); },
         0,
         "",
         "",
         {}},
        {"no install path",
         [](auto& f) { f.setText(installPath, ""); },
         7,
         "Default install path not defined!",
         "Default install path not defined! You must define a default install path for Demo.",
         {"page 2", "installPath first entry"}},
    };
    for (const bool taskDialogs : {true, false}) {
        box.config().versionWords = taskDialogs ? VersionWords{6, 1} : VersionWords{10, 0};
        box.restartHost();
        for (const CheckCase& c : cases) {
            SCOPED_TRACE(std::string(c.name) + (taskDialogs ? ", task dialog" : ", message box"));
            SetUp();
            c.arrange(*fields);
            RecordingForm form;
            const auto result = runPackageChecks(box.host(), dialogs, *fields, form);
            EXPECT_EQ(result.failedCheck, c.failedCheck);
            EXPECT_EQ(form.moves, c.moves);
            const std::size_t told = std::string(c.instruction).empty() ? 0 : 1;
            if (taskDialogs) {
                ASSERT_EQ(dialogs.taskDialogs.size(), told);
                if (told) {
                    EXPECT_EQ(dialogs.taskDialogs[0].instruction, c.instruction);
                }
            } else {
                ASSERT_EQ(dialogs.messageBoxes.size(), told);
                if (told) {
                    if (*c.plainText) {
                        EXPECT_EQ(dialogs.messageBoxes[0].text, c.plainText);
                    }
                    EXPECT_EQ(dialogs.messageBoxes[0].icon, MessageIcon::Exclamation);
                }
            }
            dialogs.taskDialogs.clear();
            dialogs.messageBoxes.clear();
        }
    }
}

// The two forms of the one message whose texts differ beyond the last sentence.
TEST_F(PackageChecksTest, AMissingMainExecutableNamesBothPlacesOnlyInTheTaskDialog) {
    fields->setText(mainExecutable, "gone.exe");
    RecordingForm form;
    runPackageChecks(box.host(), dialogs, *fields, form);
    ASSERT_EQ(dialogs.taskDialogs.size(), 1u);
    EXPECT_EQ(dialogs.taskDialogs[0].content, "The specified gone.exe was not found on " + root +
                                                  "\\files\\gone.exe or " + root + "\\v1.0\\gone.exe");
    box.config().versionWords = VersionWords{10, 0};
    box.restartHost();
    runPackageChecks(box.host(), dialogs, *fields, form);
    ASSERT_EQ(dialogs.messageBoxes.size(), 1u);
    EXPECT_EQ(dialogs.messageBoxes[0].text,
              "The specified gone.exe was not found on " + root + "\\files\\gone.exe.");
}

// A project without a main executable loses what belongs to one, and the click goes on.
TEST_F(PackageChecksTest, AnEmptyMainExecutableSwitchesItsShortcutsOff) {
    fields->setText(mainExecutable, "");
    for (ControlName check : {desktopShortcut, startMenuShortcut, quickLaunchShortcut, startupOption})
        fields->setValue(check, 1);
    fields->setText(shortcutTooltip, "Run Demo");
    RecordingForm form;
    const auto result = runPackageChecks(box.host(), dialogs, *fields, form);
    EXPECT_TRUE(result.passed());
    EXPECT_EQ(result.repairs.size(), 1u);
    EXPECT_EQ(fields->value(Check23), 0);
    for (ControlName check : {desktopShortcut, startMenuShortcut, quickLaunchShortcut, startupOption})
        EXPECT_EQ(fields->value(check), 0) << check.name;
    EXPECT_EQ(fields->text(shortcutTooltip), "");
    EXPECT_FALSE(fields->enabled(mainExecutable));
}

}  // namespace
}  // namespace orvanta
