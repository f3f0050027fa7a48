#include <gtest/gtest.h>

#include "core/NativeTaskDialog.h"

namespace orvanta {
namespace {

// The platform's dialog is only as right as what it is given: texts, buttons, icon and flags.
TEST(NativeTaskDialog, PlansTextsButtonsAndIconsFromTheRequest) {
    TaskDialogExRequest request;
    request.windowTitle = "Orvanta";
    request.mainInstruction = "Caf\xE9 closed";  // an ANSI byte beyond ASCII
    request.content = "Try again later.";
    request.verificationText = "Don't ask again";
    request.verificationChecked = true;
    request.mainIcon = MessageIcon::Exclamation;
    request.commonButtons = MessageButtons::YesNoCancel;
    NativeTaskDialog plan = planNativeTaskDialog(request);
    EXPECT_EQ(plan.windowTitle, "Orvanta");
    EXPECT_EQ(plan.mainInstruction, "Caf\xE9 closed");
    EXPECT_EQ(plan.commonButtons, 2 | 4 | 8);  // yes, no, cancel
    EXPECT_TRUE(plan.buttons.empty());
    EXPECT_EQ(plan.mainIcon, -1);
    EXPECT_NE(plan.flags & 0x0100u, 0u);  // verification checked
    EXPECT_TRUE(plan.expandedInformation.empty());

    // Abort and ignore exist only as buttons of the dialog's own, answering with the box's numbers.
    request.commonButtons = MessageButtons::AbortRetryIgnore;
    request.mainIcon = MessageIcon::Question;
    plan = planNativeTaskDialog(request);
    EXPECT_EQ(plan.commonButtons, 0);
    ASSERT_EQ(plan.buttons.size(), 3u);
    EXPECT_EQ(plan.buttons[0].first, static_cast<int>(DialogAnswer::Abort));
    EXPECT_EQ(plan.buttons[2].first, static_cast<int>(DialogAnswer::Ignore));
    EXPECT_EQ(plan.mainIcon, 32514);
    EXPECT_NE(plan.flags & 0x0002u, 0u);  // the icon is a handle

    // Buttons of the caller's own replace the common ones.
    request.buttons = {{"Open the folder", 100}, {"Close", 101}};
    request.defaultButton = 101;
    plan = planNativeTaskDialog(request);
    ASSERT_EQ(plan.buttons.size(), 2u);
    EXPECT_EQ(plan.buttons[1], (std::pair<int, std::string>{101, "Close"}));
    EXPECT_EQ(plan.defaultButton, 101);
}

}  // namespace
}  // namespace orvanta
