#pragma once
// The list control of the editor and the managers: items with check boxes, sub-items in columns
// and small icons, over a Qt tree widget made when the control is first shown. Settings made
// before that are kept and given to the view when it is made; an operation on items or columns
// before it, or with an index out of range, does nothing and a read gives an empty answer.

#include <QFrame>
#include <QIcon>
#include <QPointer>
#include <QTreeWidget>
#include <memory>
#include <string>
#include <vector>

#include "controls/ListViewStyle.h"
#include "controls/cSubclass.h"

namespace orvanta {

inline constexpr int LVIS_SELECTED = 0x2;
inline constexpr int LVIS_STATEIMAGEMASK = 0xF000;
// The state image of an item: 1 unchecked, 2 checked.
inline constexpr int kStateImageUnchecked = 0x1000;
inline constexpr int kStateImageChecked = 0x2000;

inline constexpr int LVCFMT_LEFT = 0;
inline constexpr int LVCFMT_RIGHT = 1;
inline constexpr int LVCFMT_CENTER = 2;

class ListViewDelegate;

class ctlListView : public QFrame {
    Q_OBJECT
public:
    explicit ctlListView(Dialogs& dialogs, QWidget* parent = nullptr);
    ~ctlListView() override;

    // Makes the view; showing the control does it too. False if there is none afterwards.
    bool create();
    void destroy();
    QTreeWidget* hwnd() const { return view_; }

    // ---- Items, by 0-based index
    void ListItemsAdd(int index, const std::string& text, int imageIndex = -1, int stateFlags = 0);
    void ListItemsRemove(int index);
    void ListItemsClear();
    int ListItemsCount() const;
    std::string ListItemsText(int index) const;
    bool ListItemsSelected(int index) const;
    void setListItemsSelected(int index, bool selected);
    bool ItemChecked(int index) const;
    void setItemChecked(int index, bool checked);
    int SelectedItemIndex() const;
    std::string SelectedItemText() const;
    std::string SubItems(int index, int column) const;
    void setSubItems(int index, int column, const std::string& text);

    // ---- Columns; widths in pixels
    void ColumnHeadersAdd(const std::string& text, int width, int alignment = LVCFMT_LEFT);
    void ColumnHeadersRemove(int index);
    void ColumnHeadersClear();
    int ColumnHeadersCount() const { return view_ ? columns_ : 0; }
    void AutoSizeLvw(int column);
    void Arrange(int code);
    void Refresh();

    // ---- Small image list
    void InitializeImageListSmall(int width, int height);
    int ImageListSmallAdd(const QIcon& icon);  // the new image's index
    // The index of the system's icon for the type of a file (".mp3", "setup.exe"), added to the
    // small image list the first time a type is asked for.
    int SystemImageIndex(const std::string& fileName);

    // ---- Settings
    ListViewStyle& listStyle() { return style_; }
    const ListViewStyle& listStyle() const { return style_; }
    // Gives the view the stored settings; every setter below calls it.
    void applySettings();
    void setView(int view);
    void setCheckboxes(bool on);
    void setMultiSelect(bool on);
    void setLabelEdit(bool on);
    void setGridLines(bool on);
    void setFullRowSelect(bool on);
    void setHideColumnHeaders(bool on);

    int SortKey = 0;
    int SortOrder = 0;  // 0 ascending, 1 descending
    int SortType = 0;
    bool Sorted() const { return sorted_; }
    void setSorted(bool on);

    // The control's own font (QWidget::setFont) reaches the view, made before or after it.
    QFont Font() const { return font(); }
    QColor BackColor() const { return backColor_; }
    void setBackColor(const QColor& colour);
    QColor ForeColor() const { return foreColor_; }
    void setForeColor(const QColor& colour);
    QColor TextBackground() const { return textBackground_; }
    void setTextBackground(const QColor& colour);
    int BorderStyle() const { return borderStyle_; }
    void setBorderStyle(int borderStyle);

signals:
    void ItemClick(int index);
    void ItemCheck(int index, bool checked);
    void ColumnClick(int column);
    void ColumnRightClick(int column);
    void MouseLeave();
    void BeforeLabelEdit(int index, bool& cancel);
    void AfterLabelEdit(int index, const std::string& newText, bool& cancel);
    void Resize();
    // The owner may change the colours of one cell before it is painted.
    void OnSubItemPrePaint(int index, int subItem, QColor& foreColor, QColor& backColor);

protected:
    void showEvent(QShowEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    friend class ListViewDelegate;
    // The check state the control last reported for an item, so that ItemCheck comes once for
    // each change of the box, whether by a click or by code, and not for a change of text.
    static constexpr int kReportedCheckRole = Qt::UserRole + 1;

    QTreeWidgetItem* item(int index) const;
    void connectView();
    void onItemChanged(QTreeWidgetItem* changed, int column);
    void onColumnClick(int column);
    void onHeaderContextMenu(const QPoint& position);
    void sortNow();
    void applyColumnVisibility();
    void applyColours();
    void shiftColumnsLeftFrom(int index);

    cSubclass subclass_;
    QPointer<QTreeWidget> view_;
    ListViewDelegate* delegate_ = nullptr;
    ListViewStyle style_;
    int columns_ = 0;
    bool sorted_ = false;
    QSize smallImageSize_;
    std::vector<QIcon> smallImages_;
    std::vector<std::pair<QString, int>> fileTypeImages_;
    QColor backColor_;
    QColor foreColor_;
    QColor textBackground_;
    int borderStyle_ = 1;
};

}  // namespace orvanta
