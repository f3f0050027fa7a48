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

constexpr const char* kSettings = "HKCU\\Software\\Orvanta\\Settings";

QCheckBox& Check3(optionsfrm& window) {
    return *window.findChild<QCheckBox*>("Check3");
}

// The one preference of the window is shown, stored at each click and read by the next window;
// without the settings key the box shows the default and nothing can be stored.
TEST(Options, SaveAlwaysIsShownStoredAtOnceAndNeedsItsKey) {
    vars::reset();
    vars::settingsRootKey = "HKCU\\Software\\Orvanta";
    testing::Sandbox box;
    const auto saveAlways = [&box] {
        return RegistryAPI(box.host()).readSettingNumber(kSettings, "saveAlways", -7);
    };

    optionsfrm keyless(box.host());
    EXPECT_FALSE(Check3(keyless).isChecked());
    Check3(keyless).click();
    EXPECT_EQ(saveAlways(), -7);

    RegistryAPI(box.host()).createRegistryKey(kSettings);
    RegistryAPI(box.host()).writeSettingNumber(kSettings, "saveAlways", 1);
    optionsfrm window(box.host());
    EXPECT_EQ(window.windowTitle(), "Options");
    EXPECT_EQ(window.findChild<QGroupBox*>("Frame1")->title(), "General settings");
    EXPECT_TRUE(Check3(window).isChecked());
    Check3(window).click();
    EXPECT_EQ(saveAlways(), 0);
    Check3(window).click();
    EXPECT_EQ(saveAlways(), 1);
    Check3(window).click();
    optionsfrm again(box.host());
    EXPECT_FALSE(Check3(again).isChecked());

    window.show();
    window.findChild<QPushButton*>("Command1")->click();
    EXPECT_FALSE(window.isVisible());
    vars::reset();
}

}  // namespace
}  // namespace orvanta
