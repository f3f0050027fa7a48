#include "controls/about.h"

#include <gtest/gtest.h>
#include <QLabel>
#include <QPushButton>

#include "support/FailingHost.h"
#include "support/Sandbox.h"
#include "support/ScriptedDialogs.h"

namespace orvanta {
namespace {

// Keeps what the shell was asked to open instead of opening it.
class ShellRecordingHost : public testing::FailingHost {
public:
    using FailingHost::FailingHost;
    int shellExecute(const std::string& file, const std::string&, int) override {
        opened.push_back(file);
        return 42;
    }
    std::vector<std::string> opened;
};

TEST(about, ShowsTheVersionAndOpensTheShippedFiles) {
    testing::Sandbox box;
    ShellRecordingHost host(box.host());
    testing::ScriptedDialogs dialogs;
    about window(host, dialogs);
    EXPECT_EQ(window.findChild<QLabel*>("lblName")->text(), "Orvanta");
    EXPECT_EQ(window.findChild<QLabel*>("lblVersion")->text(), "Version 1.0.2");
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
