#include "controls/about.h"

#include <gtest/gtest.h>
#include <QLabel>
#include <QPushButton>

#include "support/FailingHost.h"
#include "support/Sandbox.h"
#include "support/ScriptedDialogs.h"

namespace orvanta {
namespace {

TEST(about, ShowsTheVersionAndOpensTheShippedFiles) {
    testing::Sandbox box;
    testing::FailingHost host(box.host());
    host.answerShell(42);
    testing::ScriptedDialogs dialogs;
    about window(host, dialogs);
    EXPECT_EQ(window.findChild<QLabel*>("lblName")->text(), "Orvanta");
    EXPECT_EQ(window.findChild<QLabel*>("lblVersion")->text().toStdString(),
              std::string("Version ") + kOrvantaVersion);
    for (const char* button : {"cmdChangelog", "cmdLicence", "cmdDocumentation"})
        window.findChild<QPushButton*>(button)->click();
    const std::string folder = host.applicationFolder();
    const std::vector<std::string> expected{folder + "\\changelog.txt", folder + "\\licence.txt",
                                            folder + "\\docs\\index.html"};
    EXPECT_EQ(host.opened, expected);
    EXPECT_TRUE(dialogs.messageBoxes.empty());
}

}  // namespace
}  // namespace orvanta
