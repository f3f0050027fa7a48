#include <gtest/gtest.h>

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <chrono>
#include <thread>

#include "core/RegistryAPI.h"
#include "core/vars.h"
#include "project/window/ProjectEditor.h"
#include "project/window/start.h"
#include "support/Sandbox.h"
#include "support/ScriptedDialogs.h"
#include "ui_start.h"

namespace orvanta {
namespace {

// Records what the index asks of the editor.
class RecordingEditor : public ProjectEditor {
public:
    void beginNewProject(const std::string& name, const std::string& author,
                         const std::string& root) override {
        calls.push_back("new " + name + "|" + author + "|" + root);
    }
    void showLogo(const std::string& path) override { calls.push_back("logo " + path); }
    void showBackground(const std::string& path) override { calls.push_back("background " + path); }
    void showAndSave() override { calls.push_back("save"); }
    bool openProject(const std::string& root) override {
        calls.push_back("open " + root);
        return openSucceeds;
    }
    std::vector<std::string> calls;
    bool openSucceeds = true;
};

class StartWindow : public ::testing::Test {
protected:
    StartWindow() {
        vars::reset();
        vars::workspaceFolder = box.windowsPath("Documents\\Orvanta");
        vars::settingsRootKey = "HKCU\\Software\\Orvanta";
        RegistryAPI(box.host()).createRegistryKey(vars::settingsKey());
    }
    ~StartWindow() override { vars::reset(); }
    std::unique_ptr<start> makeWindow() {
        return std::make_unique<start>(box.host(), dialogs, [this]() -> ProjectEditor& { return editor; });
    }
    std::string root(const std::string& name) { return vars::workspaceFolder + "\\myinstallers\\" + name; }
    void saveProject(const std::string& name, const std::string& author) {
        box.writeFile("Documents\\Orvanta\\myinstallers\\" + name + "\\mainsettings.cfg",
                      name + "\r\n" + author + "\r\n");
    }

    testing::Sandbox box;
    testing::ScriptedDialogs dialogs;
    RecordingEditor editor;
};

TEST_F(StartWindow, NameFieldRefusesTakenUnusableAndPlaceholderNames) {
    saveProject("Taken", "A");
    auto window = makeWindow();
    Ui::start& ui = window->ui();
    EXPECT_EQ(ui.Text1->text(), "Application name");
    EXPECT_TRUE(ui.Text1->font().italic());
    EXPECT_FALSE(ui.Command1->isEnabled());
    ui.Text1->setText("Taken");
    EXPECT_EQ(window->loading()->text(), "A project with this name already exists!");
    EXPECT_FALSE(ui.Command1->isEnabled());
    EXPECT_FALSE(ui.Text1->font().italic());
    ui.Text1->setText("Fresh");
    EXPECT_TRUE(ui.Command1->isEnabled());
    EXPECT_TRUE(window->loading()->text().isEmpty());
    ui.Text1->setText("a/b");
    EXPECT_FALSE(ui.Command1->isEnabled());
    EXPECT_TRUE(window->loading()->text().contains("a/b"));
    window->Command1_Click();  // no folder is made for a name no folder may hold
    EXPECT_FALSE(box.exists("Documents\\Orvanta\\myinstallers\\a"));
    EXPECT_TRUE(editor.calls.empty());
}

TEST_F(StartWindow, CreatesTheProjectCopiesTheSourceAndHandsOverToTheEditor) {
    box.writeFile("app\\i\\default.png", "png");
    box.writeFile("Documents\\Orvanta\\backgrounds\\Default.jpg", "jpg");
    box.writeFile("my program\\prog.exe", "MZ");
    box.writeFile("my program\\lib\\x.dll", "dll");
    auto window = makeWindow();
    QSignalSpy unloaded(window.get(), &start::unloaded);
    Ui::start& ui = window->ui();
    EXPECT_EQ(ui.Combo1->count(), 0);  // no projects yet: no "myinstallers" either
    ui.Text1->setText("My App");
    ui.Text3->setText("Ann");
    dialogs.answerNextFolder({box.windowsPath("my program"), false});
    window->Command3_Click();
    ASSERT_EQ(dialogs.folderBrowsers.size(), 1u);
    EXPECT_EQ(dialogs.folderBrowsers[0].title,
              "Select files folder to copy for My App setup project. All the files, directories and sub "
              "directories will be copied.");
    EXPECT_EQ(ui.Text2->text().toStdString(), box.windowsPath("my program"));
    window->Command1_Click();

    const std::string projectRoot = root("My App");
    EXPECT_EQ(editor.calls,
              (std::vector<std::string>{"new My App|Ann|" + projectRoot, "logo " + projectRoot + "\\logo.png",
                                        "background " + projectRoot + "\\1.jpg", "save"}));
    EXPECT_EQ(box.readFile("Documents\\Orvanta\\myinstallers\\My App\\logo.png"), "png");
    EXPECT_EQ(box.readFile("Documents\\Orvanta\\myinstallers\\My App\\1.jpg"), "jpg");
    EXPECT_EQ(unloaded.count(), 1);
    // The copy runs beside the editor; it ends on its own and deletes its batch file.
    const auto copied = [&] {
        return box.exists("Documents\\Orvanta\\myinstallers\\My App\\files\\lib\\x.dll") &&
               !box.exists("Documents\\Orvanta\\copyfiles.bat");
    };
    EXPECT_TRUE(QTest::qWaitFor(copied, 20000));
}

TEST_F(StartWindow, ListsProjectsSelectsTheLastOneAndOpensIt) {
    saveProject("Alpha", "Ann");
    saveProject("Beta", "Bob");
    RegistryAPI registry(box.host());
    registry.writeSettingNumber(vars::settingsKey(), "lastproject", 7);  // stale
    ASSERT_EQ(registry.readSettingNumber(vars::settingsKey(), "lastproject", -1), 7);
    auto window = makeWindow();
    Ui::start& ui = window->ui();
    EXPECT_EQ(ui.Combo1->count(), 2);
    EXPECT_EQ(ui.Combo1->currentIndex(), -1);
    EXPECT_EQ(ui.Label5->text(), "none selected");
    window->Command4_Click();  // nothing selected: nothing happens
    EXPECT_TRUE(editor.calls.empty());

    ui.Combo1->setCurrentIndex(ui.Combo1->findText("Beta"));
    window->Combo1_Click();
    EXPECT_EQ(ui.Label5->text(), "Beta");
    EXPECT_EQ(ui.Label7->text(), "Bob");
    EXPECT_TRUE(ui.Command4->isEnabled());
    auto again = makeWindow();  // the next session selects it again
    EXPECT_EQ(again->ui().Combo1->currentText(), "Beta");

    window->Command4_Click();
    EXPECT_EQ(editor.calls, (std::vector<std::string>{"open " + root("Beta")}));
    EXPECT_TRUE(window->isEnabled());
    editor.openSucceeds = false;  // a failed load leaves the index disabled
    window->Command4_Click();
    EXPECT_FALSE(window->isEnabled());
}

TEST_F(StartWindow, RemovesAProjectAfterTheQuestion) {
    saveProject("Only", "Ann");
    auto window = makeWindow();
    Ui::start& ui = window->ui();
    ui.Combo1->setCurrentIndex(0);
    dialogs.answerNext(DialogAnswer::No);
    window->command5_Click();
    EXPECT_TRUE(box.exists("Documents\\Orvanta\\myinstallers\\Only"));
    ASSERT_EQ(dialogs.messageBoxes.size() + dialogs.taskDialogs.size(), 1u);

    dialogs.answerNext(DialogAnswer::Yes);
    window->command5_Click();
    EXPECT_FALSE(box.exists("Documents\\Orvanta\\myinstallers\\Only"));
    EXPECT_FALSE(box.exists("Documents\\Orvanta\\deleteproject.bat"));
    EXPECT_EQ(ui.Combo1->count(), 0);
    EXPECT_EQ(window->loading()->text(), "Project removel successfuly!");
}

TEST_F(StartWindow, AdvancedFieldsDropTheirPlaceholderWhileTyping) {
    auto window = makeWindow();
    Ui::start& ui = window->ui();
    window->Label3_Click();
    EXPECT_TRUE(ui.Label3->isHidden());
    EXPECT_EQ(ui.Text4->text(), "Edition name");
    ui.Text4->setCursorPosition(12);
    QTest::keyClicks(ui.Text4, "Pro");
    EXPECT_EQ(ui.Text4->text(), "Pro");
    EXPECT_FALSE(ui.Text4->font().italic());
    ui.Check1->setChecked(false);
    window->Check1_Click();
    EXPECT_FALSE(ui.Label3->isHidden());
    EXPECT_EQ(ui.Text4->text(), "Edition name");
}

}  // namespace
}  // namespace orvanta
