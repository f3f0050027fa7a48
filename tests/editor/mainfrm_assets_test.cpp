// The buttons that put single files into the working set, and the settings sets window.
#include <QImage>
#include <QLineEdit>
#include <QPushButton>

#include "EditorFixture.h"
#include "editor/mainfrmFields.h"
#include "image/widget/aicAlphaImage.h"

namespace orvanta::testing {
namespace {

using Assets = EditorFixture;

std::string writePicture(Sandbox& sandbox, const std::string& name, Qt::GlobalColor colour) {
    sandbox.makeFolder("pictures");
    QImage picture(8, 8, QImage::Format_ARGB32);
    picture.fill(colour);
    picture.save(QString::fromStdString((sandbox.hostRoot() / "pictures" / name).string()));
    return sandbox.windowsPath("pictures\\" + name);
}

TEST_F(Assets, LogoIsAddedReplacedAndRemoved) {
    EXPECT_TRUE(window->noway[1]->isVisibleTo(window.get()));
    dialogs.answerNextOpenFile(writePicture(sandbox, "red.png", Qt::red));
    window->Command15_Click();
    ASSERT_EQ(dialogs.openFiles.size(), 1u);
    EXPECT_EQ(dialogs.openFiles[0].title, "Select a logo image");
    EXPECT_EQ(dialogs.openFiles[0].filter, "PNG Image|*.png");
    EXPECT_EQ(text("Command15"), "Replace logo");
    EXPECT_TRUE(enabled("Command40"));
    EXPECT_FALSE(window->noway[1]->isVisibleTo(window.get()));
    EXPECT_FALSE(get<aicAlphaImage>("logo2").image().Width() == 0);
    const std::string first = sandbox.readFile(projectRelative("logo.png"));

    dialogs.answerNextOpenFile(writePicture(sandbox, "blue.png", Qt::blue));
    window->Command15_Click();
    EXPECT_EQ(text("Command15"), "Replace logo");
    EXPECT_NE(sandbox.readFile(projectRelative("logo.png")), first);

    window->Command40_Click();
    EXPECT_FALSE(sandbox.exists(projectRelative("logo.png")));
    EXPECT_EQ(text("Command15"), "Add logo");
    EXPECT_FALSE(enabled("Command40"));
    EXPECT_TRUE(window->noway[1]->isVisibleTo(window.get()));
    EXPECT_TRUE(get<aicAlphaImage>("logo2").image().Width() == 0);
}

// Only a damaged PNG is reported, in its reader's words; any other failure ends the action silently.
TEST_F(Assets, UnreadableLogoEndsTheActionBeforeAnyCopyAndADamagedPngSaysWhy) {
    sandbox.writeFile("pictures\\bad.png", std::string(100, 'x'));
    dialogs.answerNextOpenFile(sandbox.windowsPath("pictures\\bad.png"));
    window->Command15_Click();
    EXPECT_TRUE(dialogs.messageBoxes.empty());
    EXPECT_FALSE(sandbox.exists(projectRelative("logo.png")));
    EXPECT_EQ(text("Command15"), "Add logo");
    EXPECT_FALSE(enabled("Command40"));

    // A damaged PNG picked over a logo leaves the logo of the working set on show.
    dialogs.answerNextOpenFile(writePicture(sandbox, "blue.png", Qt::blue));
    window->Command15_Click();
    const std::string logo = sandbox.readFile(projectRelative("logo.png"));
    const std::string cut = writePicture(sandbox, "cut.png", Qt::red);
    const std::string bytes = sandbox.readFile("pictures\\cut.png");
    sandbox.writeFile("pictures\\cut.png", bytes.substr(0, bytes.size() - 20));
    dialogs.answerNextOpenFile(cut);
    window->Command15_Click();
    EXPECT_EQ(sandbox.readFile(projectRelative("logo.png")), logo);
    EXPECT_NE(get<aicAlphaImage>("logo").image().Width(), 0);
    ASSERT_EQ(dialogs.messageBoxes.size(), 1u);
    EXPECT_EQ(dialogs.messageBoxes[0].text,
              "The picture " + cut + " could not be shown.\r\nThe file ends inside a chunk.");
    EXPECT_EQ(dialogs.messageBoxes[0].icon, MessageIcon::Exclamation);

    // The background that a project brings is reported the same way.
    sandbox.writeFile(projectRelative("1.jpg"), bytes.substr(0, bytes.size() - 20));
    mainfrmFields fields(*window);
    EXPECT_FALSE(fields.loadPicture({"aicAlphaImage3"}, projectRoot() + "\\1.jpg"));
    ASSERT_EQ(dialogs.messageBoxes.size(), 2u);
    EXPECT_NE(dialogs.messageBoxes[1].text.find("1.jpg could not be shown"), std::string::npos);
}

TEST_F(Assets, AnyFileIsCopiedByItsNameAndRemovedUnlessItIsThereAlready) {
    sandbox.writeFile("elsewhere\\cleanup.bat", "@echo off\r\n");
    dialogs.answerNextOpenFile(sandbox.windowsPath("elsewhere\\cleanup.bat"));
    window->Command14_Click();
    EXPECT_EQ(text("Text27"), "cleanup.bat");
    EXPECT_EQ(sandbox.readFile(projectRelative("cleanup.bat")), "@echo off\r\n");
    EXPECT_TRUE(enabled("Command38"));
    window->Command38_Click();
    EXPECT_FALSE(sandbox.exists(projectRelative("cleanup.bat")));
    EXPECT_EQ(text("Text27"), "");
    EXPECT_FALSE(enabled("Command38"));

    // One picked from the working set itself fills the field only.
    sandbox.writeFile(projectRelative("tool.exe"), "x");
    dialogs.answerNextOpenFile(projectRoot() + "\\tool.exe");
    window->Command14_Click();
    EXPECT_EQ(text("Text27"), "tool.exe");
    EXPECT_TRUE(sandbox.exists(projectRelative("tool.exe")));
    EXPECT_FALSE(enabled("Command38"));
}

// The day picks the file; here, its removal and a web address.
TEST_F(Assets, FullLicenceFileFollowsItsField) {
    check("Check1", true);
    EXPECT_FALSE(enabled("Command41"));
    sandbox.writeFile("elsewhere\\EULA.rtf", "terms");
    dialogs.answerNextOpenFile(sandbox.windowsPath("elsewhere\\EULA.rtf"));
    window->Command16_Click();
    window->Command41_Click();
    EXPECT_FALSE(sandbox.exists(projectRelative("EULA.rtf")));
    EXPECT_EQ(text("Text5"), "");
    EXPECT_FALSE(enabled("Command41"));
    setText("Text5", "https://example.com/eula");
    EXPECT_TRUE(enabled("Command41"));
    setText("Text5", "");
    EXPECT_FALSE(enabled("Command41"));
}

TEST_F(Assets, PreviewIsCopiedShownAndShownAgainWhenTheProjectOpens) {
    dialogs.answerNextOpenFile(writePicture(sandbox, "green.png", Qt::green));
    window->Command26_Click();
    EXPECT_TRUE(sandbox.exists(projectRelative("preview.png")));
    EXPECT_TRUE(enabled("Command39"));
    EXPECT_FALSE(window->noway[0]->isVisibleTo(window.get()));

    auto other = std::make_unique<mainfrm>(context());
    other->findChild<QLineEdit*>(QStringLiteral("Text2"))->setText(QString::fromStdString(projectRoot()));
    EXPECT_FALSE(other->noway[0]->isVisibleTo(other.get()));
    EXPECT_TRUE(other->findChild<QPushButton*>(QStringLiteral("Command39"))->isEnabled());
    EXPECT_FALSE(other->findChild<aicAlphaImage*>(QStringLiteral("aicAlphaImage1"))->image().Width() == 0);

    window->Command39_Click();
    EXPECT_FALSE(sandbox.exists(projectRelative("preview.png")));
    EXPECT_TRUE(window->noway[0]->isVisibleTo(window.get()));
    EXPECT_FALSE(enabled("Command39"));
}

TEST_F(Assets, SettingsSetsAreKeptInTheTablesAndTheirFiles) {
    sandbox.writeFile("elsewhere\\assoc.reg", "REGEDIT4\r\n");
    window->Command44_Click();
    auto* sets = window->findChild<settingsSetsfrm*>(QStringLiteral("settingsSetsfrm"));
    ASSERT_NE(sets, nullptr);
    sets->findChild<QLineEdit*>(QStringLiteral("name0"))->setText(QStringLiteral("File types"));
    dialogs.answerNextOpenFile(sandbox.windowsPath("elsewhere\\assoc.reg"));
    sets->choose(0);
    sets->findChild<QLineEdit*>(QStringLiteral("name2"))->setText(QStringLiteral("No file yet"));
    sets->Command1_Click();
    EXPECT_EQ(sandbox.readFile(projectRelative("settingsset\\assoc.reg")), "REGEDIT4\r\n");
    EXPECT_EQ(sandbox.readFile(projectRelative("settingsset\\0.cfg")), "assoc.reg\r\nFile types\r\nREG\r\n");
    EXPECT_FALSE(sandbox.exists(projectRelative("settingsset\\2.cfg")));

    // A window opened later finds the set again, from the tables or from its file.
    window->Command44_Click();
    auto reopened = window->findChildren<settingsSetsfrm*>(QStringLiteral("settingsSetsfrm")).last();
    EXPECT_EQ(reopened->findChild<QLineEdit*>(QStringLiteral("name0"))->text(), QStringLiteral("File types"));
    EXPECT_EQ(reopened->findChild<QLineEdit*>(QStringLiteral("member0"))->text(),
              QStringLiteral("assoc.reg"));
    EXPECT_TRUE(reopened->findChild<QLineEdit*>(QStringLiteral("name2"))->text().isEmpty());
}

}  // namespace
}  // namespace orvanta::testing
