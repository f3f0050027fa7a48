#include "controls/ctlListView.h"

#include <gtest/gtest.h>
#include <QHeaderView>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>
#include <set>

#include "support/ScriptedDialogs.h"

namespace orvanta {
namespace {

class ListView : public ::testing::Test {
protected:
    void SetUp() override {
        list.resize(300, 200);
        ASSERT_TRUE(list.create());
        list.setView(LVS_REPORT);
        list.ColumnHeadersAdd("Name", 120);
        list.ColumnHeadersAdd("Size", 60, LVCFMT_RIGHT);
    }
    void addItems(std::initializer_list<const char*> texts) {
        for (const char* text : texts) list.ListItemsAdd(list.ListItemsCount(), text);
    }

    testing::ScriptedDialogs dialogs;
    ctlListView list{dialogs};
};

TEST_F(ListView, NoSelectionIsMinusOneAndOutOfRangeIndexesAreIgnoredAndReadEmpty) {
    EXPECT_EQ(list.SelectedItemIndex(), -1);
    addItems({"a", "b", "c"});
    EXPECT_EQ(list.SelectedItemIndex(), -1);
    EXPECT_EQ(list.SelectedItemText(), "");
    list.setListItemsSelected(1, true);
    EXPECT_EQ(list.SelectedItemIndex(), 1);
    EXPECT_EQ(list.SelectedItemText(), "b");
    EXPECT_TRUE(list.ListItemsSelected(1));
    list.setListItemsSelected(1, false);
    EXPECT_EQ(list.SelectedItemIndex(), -1);

    list.ListItemsRemove(5);
    list.setSubItems(0, 7, "x");
    list.setItemChecked(3, true);
    EXPECT_EQ(list.ListItemsCount(), 3);
    EXPECT_EQ(list.ListItemsText(-1), "");
    EXPECT_EQ(list.SubItems(0, 7), "");
    EXPECT_FALSE(list.ListItemsSelected(9));
    list.ListItemsClear();
    list.ListItemsClear();
    EXPECT_EQ(list.ListItemsCount(), 0);
    EXPECT_EQ(list.hwnd()->headerItem()->text(0), "Name") << "the columns stay";
}

TEST_F(ListView, ItemCheckComesForAChangeByCodeOnceOrAClickOnTheBoxAndNotForText) {
    list.setCheckboxes(true);
    addItems({"a", "b"});
    QSignalSpy checks(&list, &ctlListView::ItemCheck);
    EXPECT_FALSE(list.ItemChecked(1));
    list.setItemChecked(1, true);
    list.setItemChecked(1, true);
    list.setSubItems(1, 0, "renamed");
    ASSERT_EQ(checks.size(), 1);
    EXPECT_EQ(checks[0][0].toInt(), 1);
    EXPECT_TRUE(checks[0][1].toBool());
    EXPECT_TRUE(list.ItemChecked(1));
    list.setItemChecked(1, false);
    EXPECT_EQ(checks.size(), 2);
    EXPECT_FALSE(list.ItemChecked(1));

    list.show();
    QSignalSpy clicks(&list, &ctlListView::ItemClick);
    QTreeWidget* view = list.hwnd();
    const QRect row = view->visualItemRect(view->topLevelItem(0));
    QStyleOptionButton box;
    const int boxWidth = view->style()->pixelMetric(QStyle::PM_IndicatorWidth, &box);
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {},
                      QPoint(row.left() + boxWidth / 2 + 3, row.center().y()));
    EXPECT_EQ(checks.size(), 3);
    EXPECT_EQ(clicks.size(), 1);
    EXPECT_TRUE(list.ItemChecked(0));
}

TEST_F(ListView, SubItemsFollowTheirColumnsWhenOneIsRemoved) {
    list.ColumnHeadersAdd("Date", 80);
    addItems({"a"});
    list.setSubItems(0, 1, "10 KB");
    list.setSubItems(0, 2, "today");
    list.ColumnHeadersRemove(1);
    EXPECT_EQ(list.ColumnHeadersCount(), 2);
    EXPECT_EQ(list.SubItems(0, 1), "today");
    EXPECT_EQ(list.hwnd()->headerItem()->text(1), "Date");
    EXPECT_EQ(list.hwnd()->columnWidth(1), 80);
    list.ColumnHeadersClear();
    EXPECT_EQ(list.ColumnHeadersCount(), 0);
    EXPECT_TRUE(list.hwnd()->isColumnHidden(0)) << "no column: the items show no text";
    EXPECT_EQ(list.ListItemsText(0), "a");
}

TEST_F(ListView, ColumnClickTogglesTheOrderAndSortsWhenSorted) {
    addItems({"b", "c", "a"});
    QSignalSpy clicks(&list, &ctlListView::ColumnClick);
    list.hwnd()->header()->sectionClicked(0);
    EXPECT_EQ(list.ListItemsText(0), "b") << "not sorted";
    EXPECT_EQ(list.SortOrder, 1);
    list.setSorted(true);
    EXPECT_EQ(list.ListItemsText(0), "c");
    list.hwnd()->header()->sectionClicked(0);
    EXPECT_EQ(list.ListItemsText(0), "a");
    list.hwnd()->header()->sectionClicked(1);
    EXPECT_EQ(list.SortKey, 1);
    EXPECT_EQ(list.SortOrder, 0);
    EXPECT_EQ(clicks.size(), 3);
}

TEST_F(ListView, LabelEditsCanBeRefusedBeforeAndAfter) {
    addItems({"old"});
    list.setLabelEdit(true);
    list.show();
    bool refuseAfter = true;
    QObject::connect(&list, &ctlListView::AfterLabelEdit, [&](int, const std::string& text, bool& cancel) {
        EXPECT_EQ(text, "new");
        cancel = refuseAfter;
    });
    QTreeWidget* view = list.hwnd();
    for (int attempt = 0; attempt < 2; ++attempt) {
        view->editItem(view->topLevelItem(0), 0);
        auto* editor = view->viewport()->findChild<QLineEdit*>();
        ASSERT_NE(editor, nullptr);
        editor->setText("new");
        QTest::keyClick(editor, Qt::Key_Return);
        QCoreApplication::processEvents();  // the delegate closes its editor by a queued call
        EXPECT_EQ(list.ListItemsText(0), attempt == 0 ? "old" : "new");
        refuseAfter = false;
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);  // the closed editor
    }
    bool asked = false;
    QObject::connect(&list, &ctlListView::BeforeLabelEdit, [&](int, bool& cancel) {
        asked = true;
        cancel = true;
    });
    view->editItem(view->topLevelItem(0), 0);
    EXPECT_TRUE(asked);
    EXPECT_EQ(view->viewport()->findChild<QLineEdit*>(), nullptr);
}

TEST_F(ListView, OwnerColoursAreAskedForEachCellAndMouseLeaveComesOncePerLeave) {
    addItems({"a"});
    list.setSubItems(0, 1, "1");
    std::set<std::pair<int, int>> cells;
    QObject::connect(&list, &ctlListView::OnSubItemPrePaint,
                     [&](int item, int subItem, QColor&, QColor& back) {
                         cells.insert({item, subItem});
                         back = Qt::yellow;
                     });
    const QImage picture = list.grab().toImage();
    EXPECT_TRUE(cells.count({0, 0}) && cells.count({0, 1}));
    const QRect cell = list.hwnd()->visualItemRect(list.hwnd()->topLevelItem(0));
    const QPoint inside = list.hwnd()->viewport()->mapTo(&list, cell.topLeft() + QPoint(cell.width() - 4, 2));
    EXPECT_EQ(picture.pixelColor(inside), QColor(Qt::yellow));

    QSignalSpy leaves(&list, &ctlListView::MouseLeave);
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(list.hwnd()->viewport(), &leave);
    EXPECT_EQ(leaves.size(), 1);
    list.destroy();
    EXPECT_EQ(list.hwnd(), nullptr);
    EXPECT_EQ(list.ListItemsCount(), 0);
    EXPECT_TRUE(dialogs.messageBoxes.empty());
}

TEST(ListViewBeforeCreation, KeepsSettingsForTheViewAndIgnoresItems) {
    testing::ScriptedDialogs dialogs;
    ctlListView list(dialogs);
    list.setCheckboxes(true);
    list.setMultiSelect(true);
    list.setView(LVS_REPORT);
    list.ListItemsAdd(0, "lost");
    list.ColumnHeadersAdd("lost", 50);
    EXPECT_EQ(list.hwnd(), nullptr);
    EXPECT_EQ(list.ListItemsCount(), 0);
    EXPECT_EQ(list.SelectedItemIndex(), -1);
    list.show();
    ASSERT_NE(list.hwnd(), nullptr);
    EXPECT_EQ(list.hwnd()->selectionMode(), QAbstractItemView::ExtendedSelection);
    EXPECT_EQ(list.ColumnHeadersCount(), 0);
    list.ListItemsAdd(0, "kept");
    EXPECT_EQ(list.hwnd()->topLevelItem(0)->checkState(0), Qt::Unchecked);
    QFont bold = list.font();
    bold.setBold(true);
    list.setFont(bold);
    EXPECT_TRUE(list.hwnd()->font().bold());
}

}  // namespace
}  // namespace orvanta
