#include "builder/PackageExe.h"

#include <map>

#include "BuildFixture.h"

namespace orvanta {
namespace {

using namespace ctrl;

// The setup files of each route, in the order of their batch file; "" where a route has no line.
enum class When { Always, Updater, AnyFile, License };
struct SetupRow {
    const char* winRar;
    const char* sevenZip;
    When when;
};
constexpr SetupRow kSetupRows[] = {
    {"\\{H}", "\\{H}", When::Always},
    {"\\files.cfg", "\\files.cfg", When::Always},
    {"\\folders.cfg", "\\folders.cfg", When::Always},
    {"\\mainsettings.cfg", "\\mainsettings.cfg", When::Always},
    {"\\dependencies.cfg", "\\dependencies.cfg", When::Always},
    {"\\appdatalocations.cfg", "\\appdatalocations.cfg", When::Always},
    {"\\registrylocations.cfg", "\\registrylocations.cfg", When::Always},
    {"\\intro.cfg", "\\intro.cfg", When::Always},
    {"\\tips.cfg", "\\tips.cfg", When::Always},
    {"\\uninstallIntro.cfg", "\\uninstallIntro.cfg", When::Always},
    {"\\packages.cfg", "\\packages.cfg", When::Always},
    {"\\uninstallEnd.cfg", "\\uninstallEnd.cfg", When::Always},
    {"\\check.png", "\\ok.png", When::Always},
    {"\\ok.png", "\\check.png", When::Always},
    {"\\msinet.ocx", "", When::Updater},
    {"\\ovgu.exe", "", When::Updater},
    {"\\ovgu.cfg", "", When::Updater},
    {"\\install.exe", "\\install.exe", When::Always},
    {"\\install.exe.manifest", "\\install.exe.manifest", When::Always},
    {"\\uninstall.exe", "\\uninstall.exe", When::Always},
    {"\\cleanup.bat", "\\cleanup.bat", When::AnyFile},
    {"\\logo.png", "\\logo.png", When::Always},
    {"\\1.jpg", "\\1.jpg", When::Always},
    {"\\preview.png", "\\preview.png", When::Always},
    {"\\slicense.txt", "\\slicense.txt", When::Always},
    {"\\prgbar.ocx", "\\prgbar.ocx", When::Always},
    {"\\executables.cfg", "", When::Always},
    {"\\fonts.cfg", "\\fonts.cfg", When::Always},
    {"\\docs\\licence.rtf", "\\docs\\licence.rtf", When::License},
};

struct Case {
    const char* name;
    const char* compressor;
    bool fonts, anyFile, license, updater, blankInWorkspace, hshFolder;
};

std::string replaced(std::string text, const std::map<std::string, std::string>& values) {
    for (const auto& [key, value] : values)
        for (std::size_t at; (at = text.find(key)) != std::string::npos;) text.replace(at, key.size(), value);
    return text;
}

class PackageExeTest : public BuildFixture {
protected:
    void prepare(const Case& c) {
        if (c.blankInWorkspace) {
            vars::workspaceFolder = box.windowsPath("My Documents\\Orvanta");
            root = vars::workspaceFolder + "\\myinstallers\\Demo";
            box.makeFolder("My Documents\\Orvanta\\myinstallers\\Demo\\files");
            box.writeFile("My Documents\\Orvanta\\myinstallers\\Demo\\files\\demo.exe", "the application");
            fields->setText(workingFolder, root);
        }
        if (c.fonts) {
            box.host().createFolder(root + "\\fonts");
            box.host().writeFileAtomic(root + "\\fonts\\a.ttf", "font");
            fields->addListItem(fonts, "a.ttf", false);
        }
        if (c.anyFile) {
            box.host().writeFileAtomic(root + "\\cleanup.bat", "@echo off");
            fields->setText(anyFile, "cleanup.bat");
        }
        if (c.license) fields->setText(fullLicenseFile, "docs\\licence.rtf");
        fields->setValue(updateSilent, c.updater ? 1 : 0);
        if (c.hshFolder) box.host().createFolder(root + "\\zzzz-old.hsh");
    }

    std::string expectedSetupBatch(const Case& c, const std::string& record) {
        const bool winRar = std::string(c.compressor) == "winrar";
        std::string text;
        for (const SetupRow& row : kSetupRows) {
            const std::string entry = winRar ? row.winRar : row.sevenZip;
            const bool wanted = row.when == When::Always || (row.when == When::Updater && c.updater) ||
                                (row.when == When::AnyFile && c.anyFile) ||
                                (row.when == When::License && c.license);
            if (entry.empty() || !wanted) continue;
            text += winRar ? "\"{R}rar.exe\" a -ep1 -md4096 -m5 \"{W}\\compiled\\package.exe\" \"{W}" +
                                 entry + "\"\r\n"
                           : "\"{Z}7z.exe\" a -t7z \"{W}\\compiled\\package.7z\" \"{W}" + entry + "\"\r\n";
        }
        text += "del \"{S}\\packager2.bat\"\r\n";
        return replaced(text, values(record));
    }

    std::string expectedApplicationBatch(const Case& c) {
        std::string text;
        if (std::string(c.compressor) == "winrar") {
            const std::string add = "\"{R}rar.exe\" a -ep1 -md4096 -m3 \"{W}\\compiled\\package.rar\" \"{W}";
            text = add + "\\files\r\n" + add + "\\packages\r\n" + add + "\\settingsset\r\n";
            if (c.fonts) text += add + "\\fonts\"\r\n";
            text += "\"{R}rar.exe\" k \"{W}\\compiled\\package.rar\"\r\n";
        } else {
            const std::string add = "\"{Z}7z.exe\" a -t7z \"{W}\\compiled\\package.7z\" \"{W}";
            text = add + "\\files\r\n" + add + "\\packages\r\n" + add + "\\settingsset\r\n";
            if (c.fonts) text += add + "\\fonts\"\r\n";
            text +=
                "copy /b \"{W}\\compiled\\package2.exe\" + \"{W}\\compiled\\package.7z\" "
                "\"{W}\\compiled\\package.exe\"\r\n";
        }
        return replaced(text + "del \"{S}\\packager.bat\"\r\n", values(""));
    }

    std::map<std::string, std::string> values(const std::string& record) {
        return {
            {"{W}", root}, {"{S}", vars::workspaceFolder}, {"{R}", tools}, {"{Z}", tools}, {"{H}", record}};
    }

    std::string recordName() {
        for (const auto& entry : box.host().listDirectory(root + "\\*.hsh", false)) return entry.name;
        return {};
    }
};

// Each case runs a whole build through the command processor and the recording archiver.
class PackageExeRoutes : public PackageExeTest, public ::testing::WithParamInterface<Case> {};

std::vector<std::string> textLines(const std::string& text) {
    std::vector<std::string> lines;
    for (std::size_t at = 0, end; (end = text.find('\n', at)) != std::string::npos; at = end + 1)
        lines.push_back(text.substr(at, end - at));
    return lines;
}

TEST_P(PackageExeRoutes, WriteRunAndNameThePackage) {
    const Case& c = GetParam();
    const bool winRar = std::string(c.compressor) == "winrar";
    prepare(c);
    RecordingProgress progress;
    std::string setupBatch, applicationBatch, record;
    progress.onPause = [&] {
        record = recordName();
        setupBatch = contents(vars::workspaceFolder + "\\packager2.bat");
        applicationBatch = contents(vars::workspaceFolder + "\\packager.bat");
    };
    auto building = context();
    const BuildResult result = packageexe(building, setupFor(c.compressor), progress, "\\files");

    ASSERT_TRUE(result.built) << result.failedStep << ": " << result.reason;
    ASSERT_FALSE(record.empty());
    // The search takes the last name ending in "hsh" in the folder's order, a folder's too.
    EXPECT_EQ(setupBatch, expectedSetupBatch(c, c.hshFolder ? "zzzz-old.hsh" : record));
    EXPECT_EQ(applicationBatch, expectedApplicationBatch(c));
    EXPECT_EQ(progress.journal, (std::vector<std::string>{"show", "hide dialog", "pause 1500", "close"}));
    const std::vector<std::pair<std::string, int>> scale = {
        {"Saving project...", 20},
        {"Copying root files...", 25},
        {"Creating application files package runtime...", 30},
        {"Creating setup package runtime...", 35},
        {"Packaging setup files...", 35},
        {"Packaging application files, fonts and executables...", winRar ? 60 : 35},
        {"Renaming the package to the one selected...", winRar ? 95 : 70},
        {"Cleaning temporary files...", winRar ? 100 : 75},
    };
    EXPECT_EQ(progress.captions, scale);

    // Setup files first, then the application's folders; the stub leads the package.
    EXPECT_EQ(result.package, root + "\\compiled\\Demo Setup 1.0.exe");
    const auto package = textLines(contents(result.package));
    ASSERT_GE(package.size(), 3u);
    const std::string first =
        c.hshFolder ? "zzzz-old.hsh/" : record + " " + std::to_string(contents(root + "\\" + record).size());
    EXPECT_EQ(package[0], (winRar ? "data\\package+" : "data\\package2+") + first);
    EXPECT_EQ(package.back(), winRar ? "locked" : (c.fonts ? "+fonts/" : "+settingsset/"));
    const std::size_t calls =
        textLines(setupBatch).size() + textLines(applicationBatch).size() - 2 - (winRar ? 0 : 1);
    EXPECT_EQ(archiverCalls().size(), calls);
    // What the build stages and what it cleans away.
    EXPECT_TRUE(box.host().fileLength(root + "\\start.exe.manifest"));
    for (const char* gone : {"\\install.exe", "\\uninstall.exe", "\\compiled\\package.7z",
                             "\\compiled\\package2.exe", "\\compiled\\package.rar"})
        EXPECT_FALSE(box.host().fileLength(root + gone)) << gone;
    EXPECT_FALSE(box.host().fileLength(vars::workspaceFolder + "\\packager.bat"));
    EXPECT_FALSE(box.host().fileLength(vars::workspaceFolder + "\\packager2.bat"));
}

INSTANTIATE_TEST_SUITE_P(
    Conditions, PackageExeRoutes,
    ::testing::Values(Case{"SevenZipPlain", "7zip", false, false, false, false, false, false},
                      Case{"SevenZipEverything", "7zip", true, true, true, true, true, true},
                      Case{"WinRarPlain", "winrar", false, false, false, false, false, false},
                      Case{"WinRarEverything", "winrar", true, true, true, true, false, true},
                      Case{"WinRarBlankWorkspace", "winrar", false, true, false, false, true, false}),
    [](const ::testing::TestParamInfo<Case>& param) { return std::string(param.param.name); });

// Where a build cannot go on it stops at that step, says so with the file concerned, closes its
// window and leaves the project as the save wrote it, with nothing under the package's name.
TEST_F(PackageExeTest, AFailedStepStopsTheBuildCleanly) {
    struct Stop {
        const char* name;
        const char* compressor;
        std::function<void()> arrange;
        const char* step;
        const char* file;  // named in the reason
    };
    const Stop stops[] = {
        {"missing stub", "7zip",
         [this] { box.host().deleteFile(box.applicationFolder() + "\\data\\package2"); },
         "Copying root files...", "data\\package2"},
        {"archiver gone", "7zip", [this] { box.host().deleteFile(tools + "7z.exe"); },
         "Packaging setup files...", "7z.exe"},
        {"archiver fails", "7zip", [this] { box.writeFile("tools\\7z.exe", "not a program"); },
         "Packaging setup files...", "package.7z"},
        {"WinRAR archiver fails", "winrar", [this] { box.writeFile("tools\\rar.exe", "not a program"); },
         "Packaging setup files...", "package.exe"},
        {"leftover archive", "winrar",
         [this] {
             box.host().createFolder(root + "\\compiled");
             box.host().writeFileAtomic(root + "\\compiled\\package.rar", "old");
         },
         "Packaging setup files...", "package.rar"},
        {"the build's own name", "7zip", [this] { fields->setText(finalPackageName, "Package.exe"); },
         "Renaming the package to the one selected...", "package.exe"},
        {"package still running", "7zip",
         [this] {
             box.host().createFolder(root + "\\compiled");
             box.host().writeFileAtomic(root + "\\compiled\\Demo Setup 1.0.exe", "running");
             box.host().setFileAttributes(root + "\\compiled\\Demo Setup 1.0.exe", kAttributeReadOnly);
         },
         "Renaming the package to the one selected...", "Demo Setup 1.0.exe"},
    };  // in this order: each case finds what the ones before it left
    for (const Stop& stop : stops) {
        SCOPED_TRACE(stop.name);
        SetUp();
        stop.arrange();
        RecordingProgress progress;
        auto building = context();
        const BuildResult result = packageexe(building, setupFor(stop.compressor), progress, "\\files");

        EXPECT_FALSE(result.built);
        EXPECT_EQ(result.failedStep, stop.step);
        EXPECT_NE(result.reason.find(stop.file), std::string::npos) << result.reason;
        EXPECT_EQ(progress.journal.back(), "close");
        ASSERT_FALSE(dialogs.messageBoxes.empty());
        EXPECT_NE(dialogs.messageBoxes.back().text.find(stop.step), std::string::npos);
        const auto left = contents(root + "\\compiled\\" + vars::finalPackageFile);
        if (vars::finalPackageFile != "Package.exe") {
            EXPECT_TRUE(left.empty() || left == "running") << left;
        }
        // The saved project loads again as it was.
        auto reopened = freshEditor();
        EXPECT_EQ(load(*reopened), LoadOutcome::Loaded);
        EXPECT_EQ(reopened->text(appAuthor), "Ann");
        dialogs.messageBoxes.clear();
    }
}

}  // namespace
}  // namespace orvanta
