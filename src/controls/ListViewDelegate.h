#pragma once
// Paints and edits the cells of the list control: the owner's colours before each cell is
// painted, grid lines, and the label edit events around the editor.

#include <QStyledItemDelegate>

namespace orvanta {

class ctlListView;

class ListViewDelegate : public QStyledItemDelegate {
public:
    explicit ListViewDelegate(ctlListView& owner);

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;

private:
    ctlListView& owner_;
};

}  // namespace orvanta
