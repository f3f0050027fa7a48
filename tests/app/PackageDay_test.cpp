// "Package it!" in the editor: the checks move the user to the field in question, the package
// dialog opens once they pass, and a build that fails leaves the editor usable and the project saved.
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QTimer>
#include <algorithm>
#include <filesystem>

#include "UserDay.h"
#include "builder/window/LetsPackage.h"
#include "builder/window/packaging.h"
#include "core/RegistryAPI.h"
#include "core/commonFunctions.h"
#include "editor/mainfrm.h"
#include "image/widget/aicAlphaImage.h"
#include "ui_packaging.h"

namespace orvanta::testing {
namespace {

class PackageDay : public UserDay {
protected:
    void SetUp() override {
        UserDay::SetUp();
        box.writeFile("app\\i\\check.png", "check");
        box.writeFile("app\\i\\ok.png", "ok");
        // The private 7-Zip is the tests' recording archiver.
        std::string archiver = box.programFolder() + "\\fakearchiver";
        if (fileExists(box.host(), archiver) == kFalse) archiver += ".exe";
        ASSERT_TRUE(box.host().copyFile(archiver, box.applicationFolder() + "\\7z\\7z.exe"));
        startProgram();
        createProject();
        fillEditor();
        saveWithTheButton();
    }
    void clickPackageIt() {
        auto& image = in<aicAlphaImage>(editor(), "packageit");
        QTest::mouseClick(&image, Qt::LeftButton, {}, image.rect().center());
    }
};

TEST_F(PackageDay, TheChecksLeadToTheDialogAndAFailedBuildLeavesTheEditorUsableWithTheProjectSaved) {
    // A failing check shows its page and puts the caret at the end of the field; no dialog opens.
    editor().showPage(3);
    typeInEditor("Text8", "myapp");
    clickPackageIt();
    ASSERT_EQ(dialogs.taskDialogs.size(), 1u);
    EXPECT_EQ(dialogs.taskDialogs[0].instruction, "Incorrect final package name");
    EXPECT_EQ(editor().shownPage(), 1);
    auto& packageName = in<QLineEdit>(editor(), "Text8");
    EXPECT_EQ(editor().focusWidget(), &packageName);
    EXPECT_EQ(packageName.cursorPosition(), 5);
    EXPECT_EQ(windows->packageDialog(), nullptr);

    // The main executable's field stands on the installer page, which shows to let the user mend it.
    typeInEditor("Text8", "myapp-%version.exe");
    auto& mainExecutable = in<QLineEdit>(editor(), "Text21");
    const QString chosen = mainExecutable.text();
    editor().showPage(1);
    mainExecutable.setText(".exe");
    clickPackageIt();
    ASSERT_EQ(dialogs.taskDialogs.size(), 2u);
    EXPECT_EQ(dialogs.taskDialogs[1].instruction, "Missing executable name");
    EXPECT_EQ(editor().shownPage(), 2);
    EXPECT_EQ(editor().focusWidget(), &mainExecutable);
    EXPECT_EQ(mainExecutable.cursorPosition(), 0);
    mainExecutable.setText(chosen);
    dialogs.taskDialogs.pop_back();

    // Without an install path the installer page shows, with the list's first entry chosen.
    auto& installPath = in<QComboBox>(editor(), "Combo5");
    installPath.setEditText("");
    clickPackageIt();
    ASSERT_EQ(dialogs.taskDialogs.size(), 2u);
    EXPECT_EQ(dialogs.taskDialogs[1].instruction, "Default install path not defined!");
    EXPECT_EQ(editor().shownPage(), 2);
    EXPECT_EQ(installPath.currentText().toStdString(), "<>");
    EXPECT_TRUE(editor().focusWidget() == &installPath || editor().focusWidget() == installPath.lineEdit());

    // Mended, the click opens the dialog over the editor; the private 7-Zip is the only choice.
    clickPackageIt();
    EXPECT_EQ(dialogs.taskDialogs.size(), 2u);
    LetsPackage* dialog = windows->packageDialog();
    ASSERT_NE(dialog, nullptr);
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_EQ(dialog->parentWidget(), &editor());
    EXPECT_FALSE(dialog->isModal());
    EXPECT_FALSE(in<QRadioButton>(*dialog, "Option1").isEnabled());
    EXPECT_TRUE(in<QRadioButton>(*dialog, "Option2").isChecked());
    EXPECT_FALSE(in<QComboBox>(*dialog, "Combo1").isEnabled());
    EXPECT_EQ(in<QComboBox>(*dialog, "Combo1").currentText().toStdString(), "Maximum");
    EXPECT_TRUE(in<QCheckBox>(*dialog, "Check2").isChecked());

    // The build saves first, and then misses the 7-Zip stub.
    std::filesystem::remove(box.hostRoot() / "app" / "data" / "package2");
    typeInEditor("Text6", "http://changed.example");
    bool editorDisabled = false;
    bool closeRefused = false;
    QTimer watcher;
    QObject::connect(&watcher, &QTimer::timeout, [&] {
        auto* progress = editor().findChild<QWidget*>(QStringLiteral("packaging"));
        if (progress == nullptr || !progress->isVisible()) return;
        // The dialog's button cannot start a second build inside this one.
        editorDisabled = !editor().isEnabled() && !dialog->isEnabled() && progress->isEnabled();
        closeRefused = !progress->close() && progress->isVisible();
    });
    watcher.start(0);
    in<QPushButton>(*dialog, "Command1").click();
    watcher.stop();
    letEventsRun();

    EXPECT_TRUE(editorDisabled) << "the progress window is the only one usable while the build runs";
    EXPECT_TRUE(closeRefused);
    ASSERT_EQ(dialogs.messageBoxes.size(), 1u);
    const std::string told = dialogs.messageBoxes[0].text;
    EXPECT_NE(told.find("Copying root files..."), std::string::npos) << told;
    EXPECT_NE(told.find("package2"), std::string::npos) << told;
    EXPECT_EQ(editor().findChild<QWidget*>(QStringLiteral("packaging")), nullptr);
    EXPECT_EQ(windows->packageDialog(), nullptr) << "the dialog goes when the build returns";
    EXPECT_TRUE(editor().isVisible());
    EXPECT_TRUE(editor().isEnabled());
    const auto settings = lines("mainsettings.cfg");
    EXPECT_NE(std::find(settings.begin(), settings.end(), "http://changed.example"), settings.end())
        << "the build's save stays";

    // The program goes on. With the stub back the next build makes the package; the user unticks
    // the opening of the folder while it runs, and the build reads the box at its end.
    box.writeFile("app\\data\\package2", "stub");
    clickPackageIt();
    dialog = windows->packageDialog();
    ASSERT_NE(dialog, nullptr);
    bool dialogHidden = false;
    QObject::connect(&watcher, &QTimer::timeout, [&] {
        auto* progress = editor().findChild<packaging*>(QStringLiteral("packaging"));
        if (progress == nullptr || !progress->isVisible()) return;
        dialogHidden = dialogHidden || !dialog->isVisible();
        if (progress->openFolderWhenDone()) progress->controls().Check1->click();
    });
    watcher.start(0);
    in<QPushButton>(*dialog, "Command1").click();
    watcher.stop();
    letEventsRun();
    EXPECT_EQ(dialogs.messageBoxes.size(), 1u) << "a build that succeeds says nothing";
    EXPECT_TRUE(dialogHidden);
    EXPECT_TRUE(box.exists(rel("compiled\\myapp-2.5.exe")));
    EXPECT_TRUE(editor().isEnabled());
    EXPECT_EQ(windows->packageDialog(), nullptr);
    RegistryAPI registry(box.host());
    EXPECT_EQ(registry.readSettingNumber("HKCU\\Software\\Orvanta\\Settings", "OpenCompiled", 1), 0);
}

}  // namespace
}  // namespace orvanta::testing
