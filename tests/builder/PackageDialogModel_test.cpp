#include "builder/PackageDialogModel.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "core/RegistryAPI.h"
#include "core/vars.h"
#include "support/FailingHost.h"
#include "support/Sandbox.h"
#include "support/ScriptedDialogs.h"

namespace orvanta {
namespace {

constexpr const char* kAppPaths = "HKLM\\Software\\Microsoft\\Windows\\CurrentVersion\\App Paths\\";

// Writes down what the shell was asked to open instead of opening it.
class ShellRecordingHost : public testing::FailingHost {
public:
    using FailingHost::FailingHost;
    int shellExecute(const std::string& file, const std::string&, int) override {
        opened.push_back(file);
        return 42;
    }
    std::vector<std::string> opened;
};

struct Machine {
    int storedCompressor = -1;  // -1: never stored
    bool privateSevenZip = false;
    bool winRarRegistered = false, winRarProgram = false, sevenZipRegistered = false, sevenZipProgram = false;
};

// One machine in a sandbox with the program's settings key, and the dialog loaded on it.
class DialogBench {
public:
    explicit DialogBench(const Machine& machine, std::optional<VersionWords> version = {})
        : shell(hostOfVersion(box, version)) {
        vars::reset();
        vars::settingsRootKey = "HKCU\\Software\\Orvanta";
        registry().createRegistryKey(vars::settingsRootKey);
        registry().createRegistryKey(vars::settingsKey());
        box.makeFolder("winrar");
        box.makeFolder("sevenzip");
        vars::rarFolder = box.windowsPath("winrar") + "\\";
        vars::sevenZipFolder = box.windowsPath("sevenzip") + "\\";
        if (machine.storedCompressor != -1) store("compressor", machine.storedCompressor);
        if (machine.privateSevenZip) box.writeFile("app\\7z\\7z.exe", "private");
        if (machine.winRarRegistered) registerArchiver("WinRAR.exe", "rar");
        if (machine.winRarProgram) box.writeFile("winrar\\rar.exe", "rar");
        if (machine.sevenZipRegistered) registerArchiver("7zFM.exe", "7z");
        if (machine.sevenZipProgram) box.writeFile("sevenzip\\7z.exe", "7z");
    }

    PackageDialogModel& load() {
        model.Form_Load();
        return model;
    }
    RegistryAPI registry() { return RegistryAPI(box.host()); }
    int stored(const char* name) { return registry().readSettingNumber(vars::settingsKey(), name, -99); }
    void store(const char* name, int value) {
        registry().writeSettingNumber(vars::settingsKey(), name, value);
    }
    std::size_t questions() const { return dialogs.taskDialogs.size() + dialogs.messageBoxes.size(); }

    testing::Sandbox box;
    ShellRecordingHost shell;
    testing::ScriptedDialogs dialogs;
    PackageDialogModel model{shell, dialogs};

private:
    static Host& hostOfVersion(testing::Sandbox& box, std::optional<VersionWords> version) {
        box.config().versionWords = version;
        return box.host();
    }

    // A registration as this host knows one: a program on the search path for the POSIX host,
    // a key of its own in the real registry.
    void registerArchiver(const std::string& keyName, const std::string& program) {
        box.writeFile("bin\\" + program, "#!/bin/sh\n");
        std::filesystem::permissions(box.hostRoot() / "bin" / program, std::filesystem::perms::owner_all);
        RegistryAPI writer(box.host());
        writer.createMissingKeys = true;
        writer.writeRegistryString(kAppPaths + keyName, "Path", "C:\\Tools\\" + program);
    }
};

TEST(PackageDialogModel, OffersWhatTheMachineHasAndStoresTheChoiceItEndsWith) {
    struct Offer {
        bool option1Enabled, option1Value, option2Enabled, option2Value, combo1Enabled, command1Enabled;
        const char* compressorChoice;
        int storedCompressor;
    };
    struct Case {
        const char* name;
        Machine machine;
        Offer offer;
    };
    const Case cases[] = {
        {"first run, 7-Zip installed",
         {-1, false, false, false, true, true},
         {false, false, true, true, false, true, "7zip", 2}},
        {"the private copy hides WinRAR",
         {2, true, true, true, false, false},
         {false, false, true, true, false, true, "7zip", 2}},
        {"the private copy leaves a stored WinRAR chosen but not choosable",
         {1, true, true, true, true, true},
         {false, true, true, false, true, true, "winrar", 1}},
        {"WinRAR alone overrides a stored 7-Zip",
         {2, false, true, true, false, false},
         {true, true, false, false, true, true, "winrar", 1}},
        {"both found: a stored WinRAR stands",
         {1, false, true, true, true, true},
         {true, true, true, false, true, true, "winrar", 1}},
        {"both found: a stored 7-Zip stands",
         {2, false, true, true, true, true},
         {true, false, true, true, false, true, "7zip", 2}},
        {"a registration without its program does not count",
         {1, false, true, false, true, true},
         {false, false, true, true, false, true, "7zip", 2}},
        {"programs without registrations do not count",
         {-1, false, false, true, false, true},
         {false, false, false, true, false, false, "7zip", 2}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        DialogBench bench(c.machine);
        const PackageDialogState& shown = bench.load().state();
        EXPECT_EQ(shown.option1Enabled, c.offer.option1Enabled);
        EXPECT_EQ(shown.option1Value, c.offer.option1Value);
        EXPECT_EQ(shown.option2Enabled, c.offer.option2Enabled);
        EXPECT_EQ(shown.option2Value, c.offer.option2Value);
        EXPECT_EQ(shown.combo1Enabled, c.offer.combo1Enabled);
        EXPECT_EQ(shown.command1Enabled, c.offer.command1Enabled);
        EXPECT_EQ(vars::compressorChoice, c.offer.compressorChoice);
        EXPECT_EQ(bench.stored("compressor"), c.offer.storedCompressor);
        EXPECT_EQ(bench.questions(), c.offer.command1Enabled ? 0u : 1u)
            << "only a machine without archivers asks";
    }
}

TEST(PackageDialogModel, LevelAndVerboseComeFromTheSettingsAndEachChangeIsStoredAtOnce) {
    struct Case {
        const char* name;
        int storedLevel, storedVerbose;  // -1: never stored
        int shownLevel, shownVerbose;
    };
    const Case cases[] = {
        {"fresh installation: Maximum, verbose ticked", -1, -1, 5, 1},
        {"stored choices", 2, 0, 2, 0},
        {"values the controls cannot show", 9, 2, 5, 0},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        DialogBench bench({.sevenZipRegistered = true, .sevenZipProgram = true});
        if (c.storedLevel != -1) bench.store("Compression level", c.storedLevel);
        if (c.storedVerbose != -1) bench.store("verbose", c.storedVerbose);
        PackageDialogModel& model = bench.load();
        EXPECT_EQ(model.state().combo1Index, c.shownLevel);
        EXPECT_EQ(vars::compressionLevel, c.shownLevel);
        EXPECT_EQ(model.state().check2Value, c.shownVerbose);
        // The load stores what it shows, so the build's own default of 0 for "verbose" never applies.
        EXPECT_EQ(bench.stored("Compression level"), c.shownLevel);
        EXPECT_EQ(bench.stored("verbose"), c.shownVerbose);
    }

    DialogBench bench({.winRarRegistered = true,
                       .winRarProgram = true,
                       .sevenZipRegistered = true,
                       .sevenZipProgram = true});
    PackageDialogModel& model = bench.load();
    model.Option1_Click();
    model.Combo1_Click(0);
    model.Check2_Click(0);
    EXPECT_EQ(vars::compressionLevel, 0);
    EXPECT_EQ(bench.stored("Compression level"), 0);
    EXPECT_EQ(bench.stored("verbose"), 0);
    EXPECT_TRUE(model.state().combo1Enabled);
    model.Option2_Click();
    EXPECT_FALSE(model.state().combo1Enabled);
    EXPECT_EQ(model.state().combo1Index, 0) << "7-Zip disables the level but keeps it";
    EXPECT_EQ(vars::compressionLevel, 0);
    EXPECT_EQ(vars::compressorChoice, "7zip");
    EXPECT_EQ(bench.stored("compressor"), 2);

    // The build takes the session's choices.
    const BuildSetup setup = currentBuildSetup(bench.box.host());
    EXPECT_EQ(setup.compressorChoice, "7zip");
    EXPECT_EQ(setup.compressionLevel, 0);
}

TEST(PackageDialogModel, WithoutArchiversTheQuestionTakesTheSystemsFormAndYesOpensBothPagesWinRarFirst) {
    struct Case {
        const char* name;
        VersionWords version;
        DialogAnswer answer;
        bool taskDialog;
    };
    const Case cases[] = {
        {"Windows 7, Yes", {6, 1}, DialogAnswer::Yes, true},
        {"Windows XP, No", {5, 1}, DialogAnswer::No, false},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        DialogBench bench({}, c.version);
        bench.dialogs.answerNext(c.answer);
        EXPECT_FALSE(bench.load().state().command1Enabled);
        if (c.taskDialog) {
            ASSERT_EQ(bench.dialogs.taskDialogs.size(), 1u);
            const TaskDialogRequest& asked = bench.dialogs.taskDialogs[0];
            EXPECT_EQ(asked.instruction, "7-zip or WinRAR are not installed on the system");
            EXPECT_TRUE(asked.content.ends_with("Open both webpages now?")) << asked.content;
            EXPECT_EQ(asked.title, "Orvanta");
            EXPECT_EQ(asked.buttons, MessageButtons::YesNo);
        } else {
            ASSERT_EQ(bench.dialogs.messageBoxes.size(), 1u);
            const MessageBoxRequest& asked = bench.dialogs.messageBoxes[0];
            EXPECT_TRUE(asked.text.starts_with("7-zip or WinRAR are not installed on the system!"))
                << asked.text;
            EXPECT_NE(asked.text.find(kWinRarDownloadPage), std::string::npos);
            EXPECT_NE(asked.text.find(kSevenZipDownloadPage), std::string::npos);
            EXPECT_EQ(asked.icon, MessageIcon::Exclamation);
            EXPECT_EQ(asked.buttons, MessageButtons::YesNo);
        }
        const std::vector<std::string> pages =
            c.answer == DialogAnswer::Yes
                ? std::vector<std::string>{kWinRarDownloadPage, kSevenZipDownloadPage}
                : std::vector<std::string>{};
        EXPECT_EQ(bench.shell.opened, pages);
    }
}

}  // namespace
}  // namespace orvanta
