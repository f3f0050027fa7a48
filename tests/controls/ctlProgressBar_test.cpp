#include "controls/ctlProgressBar.h"

#include <gtest/gtest.h>
#include <QProgressBar>

#include "support/ScriptedDialogs.h"

namespace orvanta {
namespace {

class ProgressBar : public ::testing::Test {
protected:
    ProgressBar() { pb.setObjectName("pb"); }

    testing::ScriptedDialogs dialogs;
    ctlProgressBar pb{dialogs};
};

TEST_F(ProgressBar, ValuesAndBoundsOutsideTheRangeRaiseTheErrorAndANarrowerRangeMovesTheValue) {
    ASSERT_TRUE(pb.setValue(40));
    EXPECT_FALSE(pb.setValue(pb.Max() + 1));
    EXPECT_EQ(pb.Value(), 40);
    EXPECT_EQ(pb.hwnd()->value(), 40);
    ASSERT_EQ(dialogs.messageBoxes.size(), 1u);
    EXPECT_EQ(dialogs.messageBoxes[0].title, "pb.ctlProgressBar");
    EXPECT_EQ(dialogs.messageBoxes[0].text, "Run-time error '380':\r\n\r\nInvalid property value");
    EXPECT_FALSE(pb.setValue(-1));
    EXPECT_EQ(dialogs.messageBoxes.size(), 2u);

    pb.setValue(90);
    EXPECT_FALSE(pb.setMin(100));
    EXPECT_FALSE(pb.setMax(-5));
    EXPECT_EQ(pb.Min(), 0);
    EXPECT_EQ(pb.Max(), 100);
    EXPECT_TRUE(pb.setMax(50));
    EXPECT_EQ(pb.Value(), 50);
    EXPECT_EQ(dialogs.messageBoxes.size(), 4u);
}

TEST_F(ProgressBar, ChangingScrollingOrMarqueeKeepsTheValue) {
    pb.setValue(30);
    QProgressBar* before = pb.hwnd();
    pb.setScrolling(kScrollingSmooth);
    ASSERT_NE(pb.hwnd(), nullptr);
    EXPECT_NE(pb.hwnd(), before);
    EXPECT_EQ(pb.hwnd()->value(), 30);
    EXPECT_EQ(pb.findChildren<QProgressBar*>().size(), 1) << "the old window is gone";

    pb.setValue(25);
    pb.setMarquee(true);
    EXPECT_EQ(pb.hwnd()->maximum(), 0);
    pb.setMarquee(false);
    EXPECT_EQ(pb.hwnd()->maximum(), 100);
    EXPECT_EQ(pb.hwnd()->value(), 25);
}

TEST_F(ProgressBar, PersistsItsKeysInOrderAndReadsThemBack) {
    pb.setMax(200);
    pb.setMin(50);
    pb.setValue(120);
    pb.setMarquee(true);
    pb.setScrolling(kScrollingSmooth);
    PropertyBag bag;
    pb.WriteProperties(bag);
    std::vector<std::string> keys;
    for (const auto& entry : bag.written()) keys.push_back(entry.first);
    const std::vector<std::string> order{"Scrolling", "Appearance", "BorderStyle", "Marquee",
                                         "Max",       "Min",        "Value"};
    EXPECT_EQ(keys, order);

    ctlProgressBar copy(dialogs);
    copy.ReadProperties(bag);
    EXPECT_EQ(bag.readOrder(), order);
    EXPECT_EQ(copy.Min(), 50);
    EXPECT_EQ(copy.Max(), 200);
    EXPECT_EQ(copy.Value(), 120);
    EXPECT_TRUE(copy.Marquee());
    EXPECT_EQ(copy.Scrolling(), kScrollingSmooth);
    EXPECT_TRUE(dialogs.messageBoxes.empty());
}

}  // namespace
}  // namespace orvanta
