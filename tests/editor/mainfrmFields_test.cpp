// The loader and the saver reach the window's controls by name through mainfrmFields.
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>

#include "EditorFixture.h"
#include "editor/mainfrmFields.h"
#include "image/widget/aicAlphaImage.h"
#include "project/EditorControls.h"

namespace orvanta::testing {
namespace {

class Fields : public EditorFixture {
protected:
    void SetUp() override {
        EditorFixture::SetUp();
        fields =
            std::make_unique<mainfrmFields>(*window, [this](const std::string& text) { loading = text; });
    }
    std::unique_ptr<mainfrmFields> fields;
    std::string loading;
};

TEST_F(Fields, EveryNameTheLoaderAndSaverUseHasAControl) {
    const ControlName names[] = {ctrl::mainfrm,
                                 ctrl::appName,
                                 ctrl::appAuthor,
                                 ctrl::startMenuShortcut,
                                 ctrl::desktopShortcut,
                                 ctrl::shortcutTooltip,
                                 ctrl::startupOption,
                                 ctrl::startupChecked,
                                 ctrl::website,
                                 ctrl::appSize,
                                 ctrl::quickLaunchShortcut,
                                 ctrl::quickLaunchChecked,
                                 ctrl::mainExecutable,
                                 ctrl::noRepair,
                                 ctrl::noModify,
                                 ctrl::appVersion,
                                 ctrl::rollEffect,
                                 ctrl::installPath,
                                 ctrl::minWindowsVersion,
                                 ctrl::authorFolder,
                                 ctrl::instantInstall,
                                 ctrl::licenseTitle,
                                 ctrl::licenseButtonCaption,
                                 ctrl::Option1,
                                 ctrl::Option2,
                                 ctrl::Option3,
                                 ctrl::cleanAll,
                                 ctrl::anyFile,
                                 ctrl::lockInstallPath,
                                 ctrl::desktopChecked,
                                 ctrl::startMenuChecked,
                                 ctrl::startupArguments,
                                 ctrl::startupAllUsers,
                                 ctrl::supportLink,
                                 ctrl::helpLink,
                                 ctrl::updateInfoLink,
                                 ctrl::finalPackageName,
                                 ctrl::shortcutArguments,
                                 ctrl::startupRequired,
                                 ctrl::appIconOnRootFolder,
                                 ctrl::noUninstaller,
                                 ctrl::editionName,
                                 ctrl::showEditionName,
                                 ctrl::justRunMode,
                                 ctrl::Option4,
                                 ctrl::Option5,
                                 ctrl::updateIgnoreLicense,
                                 ctrl::updateRunApp,
                                 ctrl::updateSilent,
                                 ctrl::createRestorePoint,
                                 ctrl::introText,
                                 ctrl::tipsText,
                                 ctrl::uninstallIntroText,
                                 ctrl::uninstallEndText,
                                 ctrl::resumedLicenseEnabled,
                                 ctrl::resumedLicenseText,
                                 ctrl::fullLicenseFile,
                                 ctrl::registryLocations,
                                 ctrl::appDataLocations,
                                 ctrl::dependencies,
                                 ctrl::fonts,
                                 ctrl::files,
                                 ctrl::folders,
                                 ctrl::workingFolder,
                                 ctrl::Check23,
                                 ctrl::Check15,
                                 ctrl::Check31,
                                 ctrl::Check32,
                                 ctrl::Text10,
                                 ctrl::Command3,
                                 ctrl::Command4,
                                 ctrl::Command8,
                                 ctrl::Command41,
                                 ctrl::Command12,
                                 ctrl::Command15,
                                 ctrl::Command19,
                                 ctrl::Command35,
                                 ctrl::Command38,
                                 ctrl::Command40,
                                 ctrl::Command42,
                                 ctrl::Command43,
                                 ctrl::Command47,
                                 ctrl::Command48,
                                 ctrl::aicAlphaImage3,
                                 ctrl::logo,
                                 ctrl::logo2};
    for (const ControlName name : names) EXPECT_NE(fields->find(name), nullptr) << name.name;
    EXPECT_NE(fields->find(ctrl::noway(0)), nullptr);
    EXPECT_NE(fields->find(ctrl::noway(1)), nullptr);
    EXPECT_EQ(fields->find(ctrl::noway(2)), nullptr);
    EXPECT_EQ(fields->find({"Text999"}), nullptr);
    EXPECT_THROW(fields->text({"Text999"}), std::out_of_range);
}

TEST_F(Fields, FieldsReadAndWriteTheirControls) {
    fields->setText(ctrl::appAuthor, "Acme");
    EXPECT_EQ(text("Text9"), "Acme");
    fields->setText(ctrl::introText, "Line one\r\nLine two");
    EXPECT_EQ(fields->text(ctrl::introText), "Line one\r\nLine two");
    fields->setText(ctrl::minWindowsVersion, "Windows 7");
    EXPECT_EQ(fields->text(ctrl::minWindowsVersion), "Windows 7");
    // The install path box runs its rules when the loader fills it.
    fields->setText(ctrl::installPath, "Themes\\");
    EXPECT_EQ(fields->value(ctrl::cleanAll), 0);
    EXPECT_FALSE(fields->enabled(ctrl::cleanAll));

    fields->setValue(ctrl::Option2, 1);
    EXPECT_EQ(fields->value(ctrl::Option2), 1);
    EXPECT_EQ(fields->value(ctrl::Option3), 0);
    fields->setValue(ctrl::Option5, 1);
    EXPECT_EQ(fields->value(ctrl::Option4), 0);
    EXPECT_FALSE(fields->enabled(ctrl::updateIgnoreLicense));
}

TEST_F(Fields, ListsKeepDependencyMarksAndLoseTheirSelection) {
    fields->addListItem(ctrl::dependencies, "grid.ocx", true);
    fields->addListItem(ctrl::dependencies, "core.dll", false);
    EXPECT_EQ(fields->listItems(ctrl::dependencies),
              (std::vector<ListItem>{{"grid.ocx", true}, {"core.dll", false}}));
    fields->addListItems(ctrl::registryLocations, {"HKCU\\Software\\A", "HKCU\\Software\\B"});
    EXPECT_EQ(fields->listCount(ctrl::registryLocations), 2u);
    fields->setListIndex(ctrl::registryLocations, 1);
    EXPECT_TRUE(fields->enabled(ctrl::Command3));
    EXPECT_TRUE(fields->enabled(ctrl::Command43));
    fields->setListIndex(ctrl::registryLocations, -1);
    EXPECT_FALSE(fields->enabled(ctrl::Command3));
    EXPECT_FALSE(fields->enabled(ctrl::Command43));
    fields->clearList(ctrl::registryLocations);
    EXPECT_EQ(fields->listCount(ctrl::registryLocations), 0u);
}

TEST_F(Fields, CaptionsPlaceholdersPicturesAndStatus) {
    fields->setCaption(ctrl::Command35, "Manage packages \r\n3 package(s)");
    EXPECT_EQ(text("Command35"), "Manage packages \n3 package(s)");
    fields->setCaption(ctrl::mainfrm, "Orvanta ~ X");
    EXPECT_EQ(window->windowTitle(), QStringLiteral("Orvanta ~ X"));

    fields->setText(ctrl::supportLink, "https://help.example");
    fields->setPlaceholderLook(ctrl::supportLink, false);
    EXPECT_FALSE(get<QLineEdit>("Text14").font().italic());

    fields->setVisible(ctrl::noway(1), false);
    EXPECT_FALSE(fields->visible(ctrl::noway(1)));
    EXPECT_FALSE(fields->loadPicture(ctrl::logo, projectRoot() + "\\logo.png"));

    fields->showStatus(StatusLabel::ControlTips, "Saving project...");
    EXPECT_EQ(text("controlTips"), "Saving project...");
    fields->showStatus(StatusLabel::StartLoading, "...reading tips file");
    EXPECT_EQ(loading, "...reading tips file");
}

}  // namespace
}  // namespace orvanta::testing
