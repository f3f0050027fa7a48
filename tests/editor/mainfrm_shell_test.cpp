// The window's shell: pages, the tip line, saving, and leaving with or without the question.
#include <QAbstractItemView>
#include <QApplication>
#include <QCloseEvent>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTabBar>
#include <QTest>
#include <set>

#include "EditorFixture.h"
#include "editor/optionsfrm.h"
#include "image/widget/aicAlphaImage.h"
#include "project/ProjectTask.h"

namespace orvanta::testing {
namespace {

using Shell = EditorFixture;

void pointerEnters(QWidget& widget) {
    QEvent enter(QEvent::Enter);
    QCoreApplication::sendEvent(&widget, &enter);
}

TEST_F(Shell, TabsAndLinksShowOnePageWithItsHeaderPicture) {
    auto& strip = get<QTabBar>("TabStrip1");
    ASSERT_EQ(strip.count(), 3);
    EXPECT_EQ(window->shownPage(), 1);
    strip.setCurrentIndex(2);
    EXPECT_EQ(window->shownPage(), 3);
    EXPECT_FALSE(window->modeimg[0]->isVisibleTo(window.get()));
    EXPECT_TRUE(window->modeimg[2]->isVisibleTo(window.get()));

    window->Label22_Click();
    EXPECT_EQ(window->shownPage(), 2);
    EXPECT_TRUE(window->modeimg[1]->isVisibleTo(window.get()));
    EXPECT_EQ(strip.currentIndex(), 2);
    // A strip event without a change of tab shows that tab's page again.
    window->TabStrip1_Click();
    EXPECT_EQ(window->shownPage(), 3);
}

TEST_F(Shell, TipLineShowsEachControlsTextUntilAnotherReplacesIt) {
    pointerEnters(get<QWidget>("Check33"));
    EXPECT_EQ(text("tips"),
              "Forces 'run application at startup' to be applied. The user won't be able to change it.");
    pointerEnters(get<QWidget>("Picture2"));  // a plain area without a tip
    EXPECT_EQ(text("tips"),
              "Forces 'run application at startup' to be applied. The user won't be able to change it.");
    pointerEnters(get<QWidget>("Command32"));
    EXPECT_EQ(text("tips"), "Seek for files on the folder and adds them automatically.");
    pointerEnters(get<QWidget>("Command1"));
    EXPECT_NE(text("tips").find("documents\\Orvanta\\backgrounds folder"), std::string::npos);
    pointerEnters(get<QWidget>("tips"));
    EXPECT_EQ(text("tips"), "");
}

TEST_F(Shell, ImageButtonsShowATitleOnlyWhileThePointerIsOver) {
    emit get<aicAlphaImage>("saver").MouseEnter();
    EXPECT_EQ(text("controlTips"), "Save project");
    EXPECT_EQ(text("tips"), "Saves every setting except packages and settings set");
    emit get<aicAlphaImage>("saver").MouseExit();
    EXPECT_EQ(text("controlTips"), "");
    EXPECT_EQ(text("tips"), "Saves every setting except packages and settings set");
    // A disabled image button sends no pointer events of its own, and still shows its title.
    EXPECT_TRUE(enabled("packageit"));
    get<QWidget>("packageit").setEnabled(false);
    pointerEnters(get<QWidget>("packageit"));
    EXPECT_EQ(text("controlTips"), "Package it!");
    EXPECT_EQ(text("tips"), "Creates the final package all-in-one file.");
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(&get<QWidget>("packageit"), &leave);
    EXPECT_EQ(text("controlTips"), "");
}

// A press elsewhere used to start a move, which swallowed the click and the typing after it.
TEST_F(Shell, OnlyADragOnTheHeaderBandMovesTheWindowAndCaptionsFocusTheirFields) {
    window->show();
    QApplication::setActiveWindow(window.get());
    QSignalSpy moves(window.get(), &mainfrm::moveStarted);
    const std::pair<const char*, const char*> captions[] = {
        {"caption2", "Text9"}, {"caption6", "Combo4"}, {"caption9", "List6"}, {"caption13", "Command15"}};
    for (const auto& [caption, field] : captions) {
        QTest::mouseClick(&get<QLabel>(caption), Qt::LeftButton);
        EXPECT_TRUE(get<QWidget>(field).hasFocus()) << caption;
    }
    for (const char* plain : {"Label26", "Frame2", "Picture1", "tips"})
        QTest::mouseClick(&get<QWidget>(plain), Qt::LeftButton);
    QTest::mouseClick(&get<QLabel>("Label23"), Qt::LeftButton);
    EXPECT_EQ(window->shownPage(), 3);
    EXPECT_EQ(moves.count(), 0);

    auto& band = get<QWidget>("controlTips");
    QTest::mousePress(&band, Qt::LeftButton, {}, QPoint(2, 2));
    QTest::mouseMove(&band, QPoint(30, 4));
    QTest::mouseRelease(&band, Qt::LeftButton, {}, QPoint(30, 4));
    EXPECT_EQ(moves.count(), 1);
}

bool takesTheKeyboard(const QWidget& widget) {
    return widget.isVisible() && widget.isEnabled() && (widget.focusPolicy() & Qt::TabFocus) != 0;
}

// Tab from the tab strip round the window; the widget that holds the focus, or the control it
// stands in (an editable combo box's line).
std::set<const QWidget*> reachedWithTab(QWidget& start) {
    std::set<const QWidget*> reached;
    start.setFocus(Qt::TabFocusReason);
    for (int step = 0; step < 200; ++step) {
        QWidget* focus = QApplication::focusWidget();
        if (focus == nullptr) break;
        reached.insert(focus);
        reached.insert(focus->parentWidget());
        QTest::keyClick(focus, Qt::Key_Tab);
    }
    return reached;
}

TEST_F(Shell, EveryControlIsReachedWithTabAndAnswersToALetterAndCtrlSSaves) {
    window->show();
    QApplication::setActiveWindow(window.get());
    auto& strip = get<QTabBar>("TabStrip1");
    for (int tab = 0; tab < strip.count(); ++tab) {
        strip.setCurrentIndex(tab);
        const std::set<const QWidget*> reached = reachedWithTab(strip);
        for (QWidget* control : window->findChildren<QWidget*>()) {
            const bool isControl =
                qobject_cast<QAbstractButton*>(control) || qobject_cast<QLineEdit*>(control) ||
                qobject_cast<QComboBox*>(control) || qobject_cast<QAbstractItemView*>(control) ||
                qobject_cast<QPlainTextEdit*>(control) || control->property("orvantaTitle").isValid() ||
                control->cursor().shape() == Qt::PointingHandCursor;
            // An editable combo box's line is reached with its box.
            if (!isControl || !control->isVisible() || !control->isEnabled() ||
                qobject_cast<QComboBox*>(control->parentWidget()) != nullptr)
                continue;
            // An option of a group is reached with the arrow keys once the group has the focus.
            auto* option = qobject_cast<QRadioButton*>(control);
            if (option != nullptr && !option->isChecked()) continue;
            EXPECT_TRUE(takesTheKeyboard(*control) && reached.count(control) == 1)
                << control->objectName().toStdString() << " on tab " << tab;
            auto* button = qobject_cast<QAbstractButton*>(control);
            const bool hasLetters =
                button != nullptr && button->text().contains(QRegularExpression(QStringLiteral("[A-Za-z]")));
            EXPECT_TRUE(!hasLetters || button->text().contains(QLatin1Char('&')))
                << control->objectName().toStdString();
        }
    }
    QTest::keyClick(window.get(), Qt::Key_I, Qt::AltModifier);
    EXPECT_EQ(window->shownPage(), 2);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(saves, 1);
}

TEST_F(Shell, OptionsLinkOpensOneOptionsWindowWithoutModality) {
    window->show();
    for (int click = 0; click < 2; ++click) QTest::mouseClick(&get<QLabel>("Label24"), Qt::LeftButton);
    const auto windows = window->findChildren<optionsfrm*>();
    ASSERT_EQ(windows.size(), 1);
    EXPECT_TRUE(windows[0]->isVisible());
    EXPECT_EQ(windows[0]->windowModality(), Qt::NonModal);
    EXPECT_FALSE(windows[0]->isModal());
}

TEST_F(Shell, ClosingSavesSilentlyUnlessAskingIsSetAndWaitsForASaveThatRuns) {
    {
        const ProjectTask runningSave;
        window->close();
        EXPECT_EQ(unloads, 0) << "the window stays while a save runs";
        EXPECT_EQ(saves, 0);
    }
    QTRY_COMPARE(unloads, 1);
    EXPECT_EQ(saves, 1);
    EXPECT_TRUE(dialogs.taskDialogs.empty());
    EXPECT_EQ(starts, 0);
}

TEST_F(Shell, StartMenuLinkAsksFirstAndGoesBackToStartWhateverTheAnswer) {
    setSaveAlways(1);
    dialogs.answerNext(DialogAnswer::No);
    window->Label21_Click();
    ASSERT_EQ(dialogs.taskDialogs.size(), 1u);
    EXPECT_EQ(dialogs.taskDialogs[0].instruction, "Save project");
    EXPECT_EQ(dialogs.taskDialogs[0].content, "Do you want to save the current project changes?");
    EXPECT_EQ(dialogs.taskDialogs[0].buttons, MessageButtons::YesNo);
    EXPECT_EQ(saves, 0);
    EXPECT_EQ(starts, 1);
    EXPECT_EQ(unloads, 0);
}

TEST_F(Shell, OlderSystemsAskWithAMessageBoxAndYesSaves) {
    window.reset();
    sandbox.config().versionWords = VersionWords{5, 1};
    cCrossComm::instance().setHost(&sandbox.restartHost());
    setSaveAlways(1);
    window = std::make_unique<mainfrm>(context());
    dialogs.answerNext(DialogAnswer::Yes);
    window->close();
    ASSERT_EQ(dialogs.messageBoxes.size(), 1u);
    EXPECT_EQ(dialogs.messageBoxes[0].text, "Do you want to save the current project changes?");
    EXPECT_EQ(dialogs.messageBoxes[0].icon, MessageIcon::Question);
    EXPECT_EQ(dialogs.messageBoxes[0].title, "Orvanta");
    EXPECT_EQ(saves, 1);
    EXPECT_EQ(unloads, 1);
}

TEST_F(Shell, SimulationNeedsASave) {
    setSaveAlways(1);
    dialogs.answerNext(DialogAnswer::No);
    window->pre_Click();
    EXPECT_EQ(saves, 0);
    EXPECT_EQ(previews, 0);
    ASSERT_EQ(dialogs.taskDialogs.size(), 1u);
    EXPECT_EQ(dialogs.taskDialogs[0].content,
              "Do you want to save the current project changes? Project must be saved before simulation.");
    dialogs.answerNext(DialogAnswer::Yes);
    window->pre_Click();
    EXPECT_EQ(saves, 1);
    EXPECT_EQ(previews, 1);
    setSaveAlways(0);
    window->pre_Click();
    EXPECT_EQ(saves, 2);
    EXPECT_EQ(previews, 2);
    EXPECT_EQ(dialogs.taskDialogs.size(), 2u);
}

}  // namespace
}  // namespace orvanta::testing
