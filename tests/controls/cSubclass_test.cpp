#include "controls/cSubclass.h"

#include <gtest/gtest.h>
#include <QCoreApplication>
#include <QEvent>

#include "support/ScriptedDialogs.h"

namespace orvanta {
namespace {

constexpr int kLeave = QEvent::Leave;
constexpr int kEnter = QEvent::Enter;

class Subclassing : public ::testing::Test {
protected:
    struct Call {
        bool before;
        int message;
    };
    SubclassCallback recorder(bool consume = false) {
        return [this, consume](bool before, bool& handled, bool&, QObject*, QEvent* event, qintptr user) {
            calls.push_back({before, static_cast<int>(event->type())});
            lastUser = user;
            if (before && consume) handled = true;
        };
    }
    void send(int type) {
        QEvent event(static_cast<QEvent::Type>(type));
        QCoreApplication::sendEvent(&window, &event);
    }

    testing::ScriptedDialogs dialogs;
    cSubclass subclass{dialogs, "ctlListView"};
    QObject window;
    std::vector<Call> calls;
    qintptr lastUser = 0;
};

TEST_F(Subclassing, CallsBeforeAndAfterForTheirTablesOnly) {
    ASSERT_TRUE(subclass.sc_Subclass(&window, 42, recorder()));
    subclass.sc_AddMsg(&window, kLeave, MessageWhen::BeforeAndAfter);
    subclass.sc_AddMsg(&window, kEnter, MessageWhen::After);
    send(kLeave);
    send(kEnter);
    send(QEvent::User);
    ASSERT_EQ(calls.size(), 3u);
    EXPECT_TRUE(calls[0].before);
    EXPECT_FALSE(calls[1].before);
    EXPECT_EQ(calls[2].message, kEnter);
    EXPECT_FALSE(calls[2].before);
    EXPECT_EQ(lastUser, 42);
}

// An object that counts what reaches its own handling.
class CountingObject : public QObject {
public:
    bool event(QEvent* event) override {
        ++originalCalls;
        return QObject::event(event);
    }
    int originalCalls = 0;
};

TEST_F(Subclassing, AHandledEventNeverReachesTheOriginalNorTheAfterCall) {
    CountingObject counted;
    ASSERT_TRUE(subclass.sc_Subclass(&counted, 0, recorder(true)));
    subclass.sc_AddMsg(&counted, kLeave, MessageWhen::BeforeAndAfter);
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(&counted, &leave);
    EXPECT_EQ(calls.size(), 1u);
    EXPECT_EQ(counted.originalCalls, 0);
    subclass.sc_DelMsg(&counted, kLeave, MessageWhen::Before);
    QCoreApplication::sendEvent(&counted, &leave);
    EXPECT_EQ(counted.originalCalls, 1) << "the original runs once, ahead of the after call";
    ASSERT_EQ(calls.size(), 2u);
    EXPECT_FALSE(calls[1].before);
}

TEST_F(Subclassing, The33rdMessageOfATableGivesTheOverflowText) {
    subclass.sc_Subclass(&window, 0, recorder());
    for (int message = 1; message <= MSG_ENTRIES; ++message) subclass.sc_AddMsg(&window, 1000 + message);
    EXPECT_TRUE(dialogs.messageBoxes.empty());
    subclass.sc_AddMsg(&window, 2000);
    EXPECT_EQ(dialogs.messageTexts(),
              std::vector<std::string>{
                  "Error in ctlListView.zAddMsg: Message table overflow. Either increase the value of Const "
                  "MSG_ENTRIES or "
                  "use ALL_MESSAGES instead of specific message values"});

    // A deleted slot is reused, so the table takes one again after a removal.
    subclass.sc_DelMsg(&window, 1010);
    subclass.sc_AddMsg(&window, 2000);
    EXPECT_EQ(dialogs.messageBoxes.size(), 1u);
}

TEST_F(Subclassing, EveryRefusalShowsItsText) {
    subclass.sc_UnSubclass(&window);
    subclass.sc_Subclass(nullptr, 0, recorder());
    subclass.sc_Subclass(&window, 0, nullptr);
    subclass.sc_Subclass(&window, 0, recorder());
    subclass.sc_Subclass(&window, 0, recorder());
    QObject stranger;
    subclass.sc_UnSubclass(&stranger);
    subclass.sc_DelMsg(&window, 0x1F);
    const std::vector<std::string> expected{
        "Error in ctlListView.sc_UnSubclass: Subclassing hasn't been started",
        "Error in ctlListView.sc_Subclass: Invalid window handle",
        "Error in ctlListView.sc_Subclass: Callback method not found",
        "Error in ctlListView.sc_Subclass: Window handle is already subclassed",
        "Error in ctlListView.zMap_hWnd: Window handle isn't subclassed",
        "Error in ctlListView.zDelMsg: Message &H1F not found in table",
    };
    EXPECT_EQ(dialogs.messageTexts(), expected);
}

TEST_F(Subclassing, ACallbackMayEndItsOwnSubclassingAndADestroyedWindowLeavesNothingBehind) {
    subclass.sc_Subclass(&window, 0, [&](bool, bool&, bool&, QObject* hWnd, QEvent*, qintptr) {
        calls.push_back({true, 0});
        subclass.sc_UnSubclass(hWnd);
    });
    subclass.sc_AddMsg(&window, kLeave, MessageWhen::BeforeAndAfter);
    send(kLeave);
    send(kLeave);
    EXPECT_EQ(calls.size(), 1u) << "neither the after call of the same event nor later events come";
    EXPECT_FALSE(subclass.isSubclassed(&window));
    EXPECT_TRUE(dialogs.messageBoxes.empty());

    auto* doomed = new QObject;
    subclass.sc_Subclass(doomed, 0, recorder());
    delete doomed;
    EXPECT_FALSE(subclass.isSubclassed(doomed));
    subclass.sc_Terminate();
    EXPECT_TRUE(dialogs.messageBoxes.empty());
}

}  // namespace
}  // namespace orvanta
