// The backgrounds manager over a sandboxed workspace, with a viewer that records what it is asked.
#include "editor/themesmanager.h"

#include <gtest/gtest.h>
#include <QApplication>
#include <QCheckBox>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>
#include <filesystem>

#include "core/RegistryAPI.h"
#include "core/vars.h"
#include "editor/BackgroundPreview.h"
#include "image/widget/aicAlphaImage.h"
#include "image/widget/cCrossComm.h"
#include "support/Sandbox.h"
#include "support/ScriptedDialogs.h"

namespace orvanta::testing {
namespace {

class RecordingViewer : public BackgroundPreview {
public:
    bool open(const std::string& picture) override {
        calls.push_back("open " + picture);
        open_ = true;
        return true;
    }
    void showPicture(const std::string& picture) override { calls.push_back("show " + picture); }
    void close() override {
        if (open_) calls.push_back("close");
        open_ = false;
    }
    bool isOpen() const override { return open_; }
    QWidget* window() override { return open_ ? &frame : nullptr; }

    std::vector<std::string> calls;
    QWidget frame;

private:
    bool open_ = false;
};

// The manager's controls, by their names.
struct Controls {
    explicit Controls(themesmanager& window)
        : List1(find<QListWidget>(window, "List1")),
          Label2(find<QLabel>(window, "Label2")),
          HScroll1(find<QScrollBar>(window, "HScroll1")),
          label1(find<QLineEdit>(window, "label1")),
          Check1(find<QCheckBox>(window, "Check1")),
          Command1(find<QPushButton>(window, "Command1")),
          Command2(find<QPushButton>(window, "Command2")),
          Command3(find<QPushButton>(window, "Command3")),
          Command4(find<QPushButton>(window, "Command4")),
          aicAlphaImage2(find<aicAlphaImage>(window, "aicAlphaImage2")),
          aicAlphaImage3(find<aicAlphaImage>(window, "aicAlphaImage3")) {}
    template <typename Control>
    static Control* find(themesmanager& window, const char* name) {
        return window.findChild<Control*>(QString::fromLatin1(name));
    }

    QListWidget* List1;
    QLabel* Label2;
    QScrollBar* HScroll1;
    QLineEdit* label1;
    QCheckBox* Check1;
    QPushButton *Command1, *Command2, *Command3, *Command4;
    aicAlphaImage *aicAlphaImage2, *aicAlphaImage3;
};

class Backgrounds : public ::testing::Test {
protected:
    Backgrounds() {
        vars::reset();
        vars::workspaceFolder = sandbox.windowsPath("workspace");
        vars::settingsRootKey = "HKCU\\Software\\Orvanta";
        RegistryAPI(sandbox.host()).createRegistryKey(vars::settingsKey());
        sandbox.makeFolder("workspace\\backgrounds");
        sandbox.makeFolder("project");
        cCrossComm::instance().setHost(&sandbox.host());
    }
    ~Backgrounds() override {
        cCrossComm::instance().setHost(nullptr);
        vars::reset();
    }

    // Each picture of its own colour, so that their bytes differ.
    void addPictures(std::initializer_list<const char*> names) {
        int hue = 0;
        for (const char* name : names) {
            QImage picture(16, 9, QImage::Format_ARGB32);
            picture.fill(QColor::fromHsv(hue, 200, 200));
            hue += 40;
            const auto path = sandbox.hostRoot() / "workspace" / "backgrounds" / name;
            picture.save(QString::fromStdString(path.string()), "PNG");
        }
    }
    void previewSetting(std::int32_t value) {
        RegistryAPI(sandbox.host()).writeSettingNumber(vars::settingsKey(), "backPreview", value);
    }
    std::unique_ptr<themesmanager> open(const std::string& workingFolder = "project") {
        themesmanagerContext context(sandbox.host(), dialogs);
        context.workingFolder = sandbox.windowsPath(workingFolder);
        context.editorBackground = &editorBackground;
        context.preview = &viewer;
        return std::make_unique<themesmanager>(std::move(context));
    }
    std::string file(themesmanager& window, int row) {
        return sandbox.windowsPath("workspace\\backgrounds\\") +
               Controls(window).List1->item(row)->text().toStdString();
    }
    std::string bytes(themesmanager& window, int row) {
        return sandbox.readFile("workspace\\backgrounds\\" +
                                Controls(window).List1->item(row)->text().toStdString());
    }
    static bool clear(const aicAlphaImage* image) { return image->image().Width() == 0; }

    Sandbox sandbox;
    ScriptedDialogs dialogs;
    RecordingViewer viewer;
    aicAlphaImage editorBackground;
};

// Only the last three letters count, with case; folders count too; the rows keep the system's order.
TEST_F(Backgrounds, WalkingWithThePreviewOnMakesEachPictureTheBackgroundAndDoNotApplyKeepsTheLast) {
    addPictures({"sky.png", "fieldjpg", "dusk.jpg", "loud.JPG", "notes.txt"});
    previewSetting(1);
    auto window = open();
    Controls ui(*window);
    ASSERT_EQ(ui.List1->count(), 3);
    for (const char* name : {"sky.png", "fieldjpg", "dusk.jpg"})
        EXPECT_EQ(ui.List1->findItems(name, Qt::MatchExactly).size(), 1) << name;
    EXPECT_TRUE(ui.Check1->isChecked());
    EXPECT_EQ(viewer.calls, std::vector<std::string>{"open " + file(*window, 0)});
    EXPECT_FALSE(sandbox.exists("project\\1.jpg"));
    EXPECT_EQ(ui.Label2->text(), "1/3");
    EXPECT_EQ(ui.HScroll1->maximum(), 2);
    EXPECT_EQ(ui.label1->text(), ui.List1->item(0)->text());
    EXPECT_TRUE(clear(ui.aicAlphaImage2));

    for (int row = 1; row < 3; ++row) {
        viewer.calls.clear();
        ui.Command1->click();
        EXPECT_EQ(window->currentRow(), row);
        EXPECT_EQ(ui.Label2->text().toStdString(), std::to_string(row + 1) + "/3");
        EXPECT_EQ(ui.HScroll1->value(), row);
        EXPECT_EQ(sandbox.readFile("project\\1.jpg"), bytes(*window, row));
        EXPECT_EQ(viewer.calls, (std::vector<std::string>{"close", "open " + file(*window, row)}));
        EXPECT_FALSE(clear(ui.aicAlphaImage2));
    }
    EXPECT_TRUE(clear(ui.aicAlphaImage3));
    viewer.calls.clear();
    ui.Command1->click();
    EXPECT_EQ(window->currentRow(), 2);
    EXPECT_TRUE(viewer.calls.empty());

    // The scroll bar shows the picture in the viewer without making it the background.
    ui.HScroll1->setValue(0);
    EXPECT_EQ(viewer.calls, std::vector<std::string>{"show " + file(*window, 0)});
    EXPECT_EQ(ui.Label2->text(), "1/3");
    EXPECT_TRUE(clear(ui.aicAlphaImage2));
    EXPECT_FALSE(clear(ui.aicAlphaImage3));

    ui.Command2->click();
    EXPECT_EQ(window->currentRow(), 0);
    window->show();
    ui.Command4->click();
    EXPECT_FALSE(window->isVisible());
    EXPECT_FALSE(viewer.isOpen());
    EXPECT_EQ(sandbox.readFile("project\\1.jpg"), bytes(*window, 2));
    EXPECT_FALSE(clear(&editorBackground));  // the editor shows the background the walk left
}

TEST_F(Backgrounds, SearchFindsTheFirstNameHoldingTheTextAndApplyMakesItTheBackground) {
    addPictures({"ba.png", "a.png", "Harbour.jpg"});
    previewSetting(0);
    auto window = open();
    Controls ui(*window);
    EXPECT_FALSE(ui.Check1->isChecked());
    EXPECT_TRUE(viewer.calls.empty());
    const int harbour = ui.List1->row(ui.List1->findItems("Harbour.jpg", Qt::MatchExactly)[0]);

    ui.label1->clear();
    QTest::keyClicks(ui.label1, "HARB");
    EXPECT_EQ(window->currentRow(), harbour);
    EXPECT_EQ(ui.HScroll1->value(), harbour);
    QTest::keyClicks(ui.label1, "zzz");
    EXPECT_EQ(window->currentRow(), harbour);

    // Walking onto "a.png" stays there, though "ba.png" holds its name.
    const int plain = ui.List1->row(ui.List1->findItems("a.png", Qt::MatchExactly)[0]);
    ui.HScroll1->setValue(plain);
    EXPECT_EQ(window->currentRow(), plain);
    EXPECT_EQ(ui.label1->text(), "a.png");

    ui.Check1->click();
    EXPECT_EQ(RegistryAPI(sandbox.host()).readSettingNumber(vars::settingsKey(), "backPreview", -1), 1);
    EXPECT_EQ(viewer.calls, std::vector<std::string>{"open " + file(*window, plain)});
    EXPECT_FALSE(sandbox.exists("project\\1.jpg"));
    ui.Check1->click();
    EXPECT_FALSE(viewer.isOpen());
    EXPECT_EQ(RegistryAPI(sandbox.host()).readSettingNumber(vars::settingsKey(), "backPreview", -1), 0);

    window->show();
    ui.Command3->click();
    EXPECT_EQ(sandbox.readFile("project\\1.jpg"), bytes(*window, plain));
    EXPECT_FALSE(clear(&editorBackground));
    EXPECT_FALSE(window->isVisible());
    EXPECT_TRUE(dialogs.messageBoxes.empty());
}

TEST_F(Backgrounds, AnEmptyFolderSaysSoAndClosesAndAFailedCopyLeavesTheWindowOpen) {
    sandbox.makeFolder("workspace\\backgrounds\\plain");
    previewSetting(1);
    auto empty = open();
    ASSERT_EQ(dialogs.messageBoxes.size(), 1u);
    EXPECT_EQ(dialogs.messageBoxes[0].text, "Backgrounds folder is empty.");
    EXPECT_EQ(dialogs.messageBoxes[0].icon, MessageIcon::Exclamation);
    EXPECT_TRUE(empty->emptyFolder());
    EXPECT_EQ(Controls(*empty).Label2->text(), "0/0");
    EXPECT_TRUE(viewer.calls.empty());
    empty->show();
    QApplication::processEvents();
    EXPECT_FALSE(empty->isVisible());

    addPictures({"sky.png"});
    sandbox.makeFolder("workspace\\backgrounds\\old.png");
    auto window = open("missing");
    EXPECT_EQ(Controls(*window).List1->count(), 2);
    window->show();
    Controls(*window).Command3->click();
    ASSERT_EQ(dialogs.messageBoxes.size(), 2u);
    EXPECT_EQ(dialogs.messageBoxes[1].text, "The background " + file(*window, 0) +
                                                " could not be copied to " + sandbox.windowsPath("missing") +
                                                "\\1.jpg.");
    EXPECT_TRUE(window->isVisible());
    EXPECT_TRUE(clear(&editorBackground));
}

}  // namespace
}  // namespace orvanta::testing
