#include <gtest/gtest.h>

#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>

#include "editor/editionsfrm.h"
#include "support/Sandbox.h"
#include "support/ScriptedDialogs.h"

namespace orvanta {
namespace {

class Editions : public ::testing::Test {
protected:
    Editions() {
        for (const char* name : {"mainsettings.cfg", "Demo.ovproj", "files.cfg", "1.jpg"})
            box.writeFile("Demo\\" + std::string(name), std::string("root ") + name);
        root = box.windowsPath("Demo");
        openFolder = root;
    }
    std::unique_ptr<editionsfrm> makeWindow() {
        EditionsContext context{[this] { return root; }, [this] { return openFolder; },
                                [this] {
                                    return WorkingSetSource{root, "Demo", "", "", ""};
                                },
                                [this](std::string edition, std::string version) {
                                    switches.push_back(edition + "|" + version);
                                    openFolder = root + workingSetSubPath(edition, version);
                                }};
        return std::make_unique<editionsfrm>(box.host(), dialogs, std::move(context));
    }
    static std::vector<std::string> rows(const editionsfrm& window) {
        std::vector<std::string> texts;
        for (int row = 0; row < window.List1->count(); ++row)
            texts.push_back(window.List1->item(row)->text().toStdString());
        return texts;
    }
    void create(editionsfrm& window, const char* edition, const char* version) {
        window.Text1->setText(QString::fromLatin1(edition));
        window.Text2->setText(QString::fromLatin1(version));
        window.Command1->click();
    }

    testing::Sandbox box;
    testing::ScriptedDialogs dialogs;
    std::string root;
    std::string openFolder;
    std::vector<std::string> switches;
};

TEST_F(Editions, CreatesWorkingSetsFromTheRootAndRefusesBadNamesWithAMessage) {
    auto window = makeWindow();
    EXPECT_EQ(rows(*window), std::vector<std::string>{"The project itself (no edition)"});
    EXPECT_FALSE(window->Command2->isEnabled()) << "the root cannot be deleted";
    EXPECT_FALSE(window->Command3->isEnabled()) << "the root is open already";

    create(*window, "Pro", "");
    create(*window, "Home", "2.0");
    EXPECT_EQ(rows(*window),
              (std::vector<std::string>{"The project itself (no edition)", "Pro", "Home, version 2.0"}));
    EXPECT_EQ(window->List1->currentRow(), 2) << "the new one is selected";
    EXPECT_EQ(box.readFile("Demo\\versions\\2.0\\Home\\Demo.ovproj"), "root Demo.ovproj");
    EXPECT_TRUE(window->Text1->text().isEmpty());
    EXPECT_TRUE(dialogs.messageBoxes.empty()) << "files the root does not have are not missed";

    create(*window, "Pro|2", "");
    ASSERT_EQ(dialogs.messageBoxes.size(), 1u);
    EXPECT_EQ(dialogs.messageBoxes[0].icon, MessageIcon::Exclamation);
    EXPECT_NE(dialogs.messageBoxes[0].text.find("can't be the name of an edition"), std::string::npos);
    EXPECT_EQ(window->Text1->text(), QStringLiteral("Pro|2")) << "the refused name stays to be corrected";
    EXPECT_EQ(window->List1->count(), 3);
}

TEST_F(Editions, OpensTheChosenOneAndKeepsItAfterNo) {
    auto window = makeWindow();
    create(*window, "Pro", "");
    window->List1->setCurrentRow(1);
    window->Command3->click();
    EXPECT_EQ(switches, std::vector<std::string>{"Pro|No versions"});
    EXPECT_FALSE(window->Command2->isEnabled()) << "the open working set cannot be deleted";

    // Back at the root, a No keeps the edition (the user's day deletes one after a Yes).
    window->List1->setCurrentRow(0);
    window->Command3->click();
    window->List1->setCurrentRow(1);
    ASSERT_TRUE(window->Command2->isEnabled());
    dialogs.answerNext(DialogAnswer::No);
    window->Command2->click();
    EXPECT_EQ(dialogs.messageBoxes.back().buttons, MessageButtons::YesNo);
    EXPECT_TRUE(box.exists("Demo\\editions\\Pro\\mainsettings.cfg"));
    EXPECT_EQ(window->List1->count(), 2);
}

}  // namespace
}  // namespace orvanta
