#include <gtest/gtest.h>

#include <set>

#include "project/ProjectPaths.h"
#include "project/WorkingSetChoice.h"
#include "project/WorkingSetFiles.h"
#include "project/WorkingSetIndex.h"
#include "support/Sandbox.h"

namespace orvanta {
namespace {

TEST(WorkingSetChoice, FollowsTheEditionAndVersionWords) {
    const std::string root = "C:\\W\\myinstallers\\Demo";
    std::set<std::string> folders;
    const auto exists = [&folders](const std::string& path) { return folders.count(path) > 0; };

    auto choice = chooseWorkingSet(root, "No editions", "1.0", exists);
    EXPECT_EQ(choice.folder, root) << "without an edition the version is ignored";
    EXPECT_EQ(choice.editionName, "No editions");

    choice = chooseWorkingSet(root, "Pro", "1.0", exists);
    EXPECT_EQ(choice.folder, root + "\\versions\\1.0\\Pro") << "not tested for existence";

    choice = chooseWorkingSet(root, "Pro", "No versions", exists);
    EXPECT_FALSE(choice.folder) << "the window stays";
    EXPECT_EQ(choice.editionName, "Pro");

    folders.insert(root + "\\versions\\No versions\\Pro");
    EXPECT_EQ(chooseWorkingSet(root, "Pro", "No versions", exists).folder,
              root + "\\versions\\No versions\\Pro");
    folders.insert(root + "\\editions\\Pro");
    choice = chooseWorkingSet(root, "Pro", "No versions", exists);
    EXPECT_EQ(choice.folder, root + "\\editions\\Pro");
    EXPECT_EQ(choice.version, "No versions");

    EXPECT_FALSE(chooseWorkingSet(root, "No Editions", "No versions", exists).folder)
        << "the marker's spelling is an edition name to the editor";
}

class WorkingSetFilesTest : public ::testing::Test {
protected:
    void SetUp() override {
        for (const char* name :
             {"mainsettings.cfg", "appdatalocations.cfg", "dependencies.cfg", "Demo.ovproj", "files.cfg",
              "folders.cfg", "fonts.cfg", "intro.cfg", "packages.cfg", "registrylocations.cfg", "tips.cfg",
              "uninstallEnd.cfg", "uninstallIntro.cfg", "1.jpg", "slicense.txt", "logo.png", "license.rtf",
              "readme.txt"})
            box.writeFile("Demo\\" + std::string(name), std::string("root ") + name);
        box.writeFile("Demo\\files\\demo.exe", "MZ");
        box.writeFile("Demo\\fonts\\a.ttf", "font");
        box.makeFolder("Demo\\editions\\Pro");
        source.projectRoot = box.windowsPath("Demo");
        source.appName = "Demo";
        source.fullLicenseFile = "license.rtf";
        source.resumedLicenseText = "short licence";
        source.anyFile = "readme.txt";
    }

    testing::Sandbox box;
    WorkingSetSource source;
};

TEST_F(WorkingSetFilesTest, CopierCopiesSettingsFilesAndMakesEmptyContentFolders) {
    const auto report = edver_file_copier(box.host(), "\\editions\\Pro", source);
    EXPECT_TRUE(report.complete()) << "the root has no executables.cfg, and the copy does not miss it";
    for (const char* name : {"mainsettings.cfg", "Demo.ovproj", "license.rtf", "slicense.txt", "readme.txt",
                             "logo.png", "uninstallIntro.cfg"})
        EXPECT_EQ(box.readFile("Demo\\editions\\Pro\\" + std::string(name)), std::string("root ") + name);
    EXPECT_FALSE(box.exists("Demo\\editions\\Pro\\preview.png"));
    for (const char* folder : {"settingsset", "packages", "msi", "fonts", "executables"})
        EXPECT_TRUE(box.exists("Demo\\editions\\Pro\\" + std::string(folder))) << folder;
    EXPECT_FALSE(box.exists("Demo\\editions\\Pro\\fonts\\a.ttf")) << "contents are not shared";
    EXPECT_FALSE(box.exists("Demo\\editions\\Pro\\files"));
}

TEST_F(WorkingSetFilesTest, AWebLicenceAndAnEmptyTextCopyNothingForThem) {
    source.fullLicenseFile = "http://demo.example/license";
    source.resumedLicenseText.clear();
    box.writeFile("Demo\\executables.cfg", "");
    const auto report = edver_file_copier(box.host(), "\\editions\\Pro", source);
    EXPECT_TRUE(report.complete());
    EXPECT_FALSE(box.exists("Demo\\editions\\Pro\\license.rtf"));
    EXPECT_FALSE(box.exists("Demo\\editions\\Pro\\slicense.txt"));
}

TEST_F(WorkingSetFilesTest, DeleterEmptiesWhatTheCopierMadeAndKeepsFoldersWithContent) {
    box.makeFolder("Demo\\versions\\2.0\\Pro");
    edver_file_copier(box.host(), "\\versions\\2.0\\Pro", source);
    box.writeFile("Demo\\versions\\2.0\\Pro\\fonts\\b.ttf", "font");
    box.writeFile("Demo\\versions\\2.0\\Pro\\files\\demo.exe", "MZ");
    box.makeFolder("Demo\\versions\\2.0\\v2.0");
    box.writeFile("Demo\\versions\\2.0\\vfull\\x.exe", "MZ");

    edver_file_deleter(box.host(), source.projectRoot, "\\versions\\2.0\\Pro", "2.0");

    for (const char* gone : {"mainsettings.cfg", "Demo.ovproj", "fonts", "settingsset", "executables"})
        EXPECT_FALSE(box.exists("Demo\\versions\\2.0\\Pro\\" + std::string(gone))) << gone;
    EXPECT_TRUE(box.exists("Demo\\versions\\2.0\\Pro\\files\\demo.exe")) << "\\files is never emptied";
    EXPECT_FALSE(box.exists("Demo\\versions\\2.0\\v2.0"));
    EXPECT_TRUE(box.exists("Demo\\versions\\2.0\\vfull\\x.exe"));
    EXPECT_EQ(box.readFile("Demo\\mainsettings.cfg"), "root mainsettings.cfg") << "the root is untouched";
    EXPECT_TRUE(box.exists("Demo\\fonts\\a.ttf"));
}

TEST_F(WorkingSetFilesTest, DeleterOfAMissingWorkingSetDoesNothing) {
    edver_file_deleter(box.host(), source.projectRoot, "\\editions\\Nothing", "No versions");
    EXPECT_TRUE(box.exists("Demo\\mainsettings.cfg"));
}

TEST_F(WorkingSetFilesTest, CreationRefusesNamesNoFolderMayHoldTheNoWordsAndTakenNames) {
    const auto refusal = [this](const std::string& edition, const std::string& version) {
        return createWorkingSet(box.host(), source, edition, version).refusal;
    };
    EXPECT_EQ(refusal("", ""), "Type the name of the edition.");
    EXPECT_EQ(refusal("No editions", ""), "\"No editions\" stands for no edition; choose another name.");
    EXPECT_EQ(refusal("Pro", "No Versions"), "\"No Versions\" stands for no version; choose another name.");
    EXPECT_NE(refusal("Pro:2", "").find("can't be the name of an edition"), std::string::npos);
    EXPECT_NE(refusal("Pro", "2.0/beta").find("can't be the name of a version"), std::string::npos);
    EXPECT_EQ(refusal("Pro", ""), "\"" + source.projectRoot + "\\editions\\Pro\" already exists.");
    EXPECT_FALSE(box.exists("Demo\\versions"));
    EXPECT_FALSE(box.exists("Demo\\editions\\Pro\\mainsettings.cfg")) << "the taken folder is left alone";
}

}  // namespace
}  // namespace orvanta
