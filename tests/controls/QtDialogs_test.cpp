#include "controls/QtDialogs.h"

#include <gtest/gtest.h>
#include <QApplication>
#include <QCheckBox>
#include <QFileDialog>
#include <QInputDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <functional>

#include "controls/frmButton.h"
#include "support/Sandbox.h"

namespace orvanta {
namespace {

// Acts on the modal dialog as soon as it is open, as a user would.
template <typename Dialog>
void whenOpen(std::function<void(Dialog*)> act) {
    QTimer::singleShot(0, [act] {
        auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        act(dialog);
    });
}

class QtDialogsTest : public ::testing::Test {
protected:
    testing::Sandbox box;
    QtDialogs dialogs{box.host()};
};

TEST_F(QtDialogsTest, BoxesGiveTheCodeOfTheButtonPressedAndATaskDialogWithoutTitleTakesTheProgramsName) {
    QString title;
    whenOpen<QMessageBox>([&](QMessageBox* shown) {
        title = shown->windowTitle();
        shown->button(QMessageBox::No)->click();
    });
    EXPECT_EQ(dialogs.messageBox({"Save?", MessageButtons::YesNoCancel, MessageIcon::Question, "Orvanta"}),
              DialogAnswer::No);
    EXPECT_EQ(title, "Orvanta");

    title.clear();
    QString informative;
    whenOpen<QMessageBox>([&](QMessageBox* shown) {
        title = shown->windowTitle();
        informative = shown->informativeText();
        shown->button(QMessageBox::Ok)->click();
    });
    EXPECT_EQ(
        dialogs.taskDialog({"Instruction", "Content\r\nline two", "", MessageButtons::Ok, MessageIcon::None}),
        DialogAnswer::Ok);
    EXPECT_FALSE(title.isEmpty());
    EXPECT_EQ(informative, "Content\nline two");
}

TEST_F(QtDialogsTest, TaskDialogExAndInputBoxGiveWhatTheUserChose) {
    whenOpen<QMessageBox>([](QMessageBox* shown) {
        shown->checkBox()->setChecked(true);
        for (QAbstractButton* button : shown->buttons())
            if (button->text() == "Discard") button->click();
    });
    TaskDialogExRequest request;
    request.mainInstruction = "Unsaved changes";
    request.verificationText = "Do not ask again";
    request.buttons = {{"Save", 100}, {"Discard", 101}};
    const TaskDialogExAnswer answer = dialogs.taskDialogEx(request);
    EXPECT_EQ(answer.button, 101);
    EXPECT_TRUE(answer.verificationChecked);

    whenOpen<QInputDialog>([](QInputDialog* shown) {
        shown->setTextValue("Caf\u00e9");
        shown->accept();
    });
    EXPECT_EQ(dialogs.inputBox({"Name", "Create Folder", ""}), "Caf\xE9") << "ANSI inside the system";
    whenOpen<QInputDialog>([](QInputDialog* shown) {
        shown->setTextValue("ignored");
        shown->reject();
    });
    EXPECT_EQ(dialogs.inputBox({"Name", "Create Folder", ""}), "");
}

TEST_F(QtDialogsTest, OpenFileAndTheFolderBrowserSpeakWindowsPaths) {
    box.writeFile("files\\setup.exe", "MZ");
    QStringList filters;
    whenOpen<QFileDialog>([&](QFileDialog* shown) {
        filters = shown->nameFilters();
        shown->selectFile(QString::fromStdString(box.hostRoot().string() + "/files/setup.exe"));
        QMetaObject::invokeMethod(shown, "accept");
    });
    const std::string chosen = dialogs.openFile(
        {"Executable files|*.exe;*.bat|All files|*.*", "*.exe,*.bat", box.windowsPath("files"), "Pick"});
    EXPECT_EQ(chosen, box.windowsPath("files\\setup.exe"));
    EXPECT_EQ(filters, QStringList({"Executable files (*.exe *.bat)", "All files (*.*)"}));

    box.makeFolder("start");
    whenOpen<frmButton>([](frmButton* shown) { shown->accept(); });
    const FolderBrowserAnswer answer =
        dialogs.browseForFolder({"Pick", box.windowsPath("start"), true, false});
    EXPECT_EQ(answer.folder, box.windowsPath("start"));
    EXPECT_FALSE(answer.recurse);
    whenOpen<frmButton>([](frmButton* shown) { shown->reject(); });
    EXPECT_EQ(dialogs.browseForFolder({"Pick", box.windowsPath("start"), true, false}).folder, "");
}

}  // namespace
}  // namespace orvanta
