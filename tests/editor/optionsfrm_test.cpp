#include "editor/optionsfrm.h"

#include <gtest/gtest.h>
#include <QCheckBox>
#include <QGroupBox>
#include <QPushButton>

#include "core/RegistryAPI.h"
#include "core/vars.h"
#include "support/Sandbox.h"

namespace orvanta {
namespace {

class Options : public ::testing::Test {
protected:
    static constexpr const char* kSettings = "HKCU\\Software\\Orvanta\\Settings";

    void SetUp() override {
        vars::reset();
        vars::settingsRootKey = "HKCU\\Software\\Orvanta";
    }
    void TearDown() override { vars::reset(); }

    std::int32_t saveAlways() {
        return RegistryAPI(box.host()).readSettingNumber(kSettings, "saveAlways", -7);
    }
    QCheckBox& Check3(optionsfrm& window) { return *window.findChild<QCheckBox*>("Check3"); }

    testing::Sandbox box;
};

TEST_F(Options, ShowsSaveAlwaysAndStoresEachClickAtOnce) {
    RegistryAPI(box.host()).createRegistryKey(kSettings);
    RegistryAPI(box.host()).writeSettingNumber(kSettings, "saveAlways", 1);
    optionsfrm window(box.host());
    EXPECT_EQ(window.windowTitle(), "Options");
    EXPECT_EQ(window.findChild<QGroupBox*>("Frame1")->title(), "General settings");
    EXPECT_EQ(Check3(window).text(), "Always ask before saving the project");
    EXPECT_TRUE(Check3(window).isChecked());

    Check3(window).click();
    EXPECT_EQ(saveAlways(), 0);
    Check3(window).click();
    EXPECT_EQ(saveAlways(), 1);

    // Another window reads what the first stored.
    Check3(window).click();
    optionsfrm again(box.host());
    EXPECT_FALSE(Check3(again).isChecked());
}

TEST_F(Options, WithoutTheSettingsKeyTheBoxShowsTheDefaultAndStoresNothing) {
    optionsfrm window(box.host());
    EXPECT_FALSE(Check3(window).isChecked());
    Check3(window).click();
    EXPECT_EQ(saveAlways(), -7);
}

TEST_F(Options, CloseUnloadsTheWindow) {
    optionsfrm window(box.host());
    window.show();
    window.findChild<QPushButton*>("Command1")->click();
    EXPECT_FALSE(window.isVisible());
}

}  // namespace
}  // namespace orvanta
