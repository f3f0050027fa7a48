#include "controls/ListViewDelegate.h"

#include <QLineEdit>
#include <QPainter>

#include "controls/QtText.h"
#include "controls/ctlListView.h"

namespace orvanta {

ListViewDelegate::ListViewDelegate(ctlListView& owner) : QStyledItemDelegate(&owner), owner_(owner) {}

void ListViewDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                             const QModelIndex& index) const {
    QStyleOptionViewItem cell(option);
    // Cells take the alignment of their column's header.
    if (const QTreeWidget* view = owner_.hwnd())
        if (const int alignment = view->headerItem()->textAlignment(index.column()); alignment != 0)
            cell.displayAlignment = Qt::Alignment::fromInt(static_cast<unsigned>(alignment));
    QColor fore = cell.palette.color(QPalette::Text);
    QColor back;
    emit owner_.OnSubItemPrePaint(index.row(), index.column(), fore, back);
    if (back.isValid()) painter->fillRect(cell.rect, back);
    cell.palette.setColor(QPalette::Text, fore);
    QStyledItemDelegate::paint(painter, cell, index);
    if (owner_.listStyle().GridLines()) {
        painter->save();
        painter->setPen(option.palette.color(QPalette::Mid));
        painter->drawLine(cell.rect.bottomLeft(), cell.rect.bottomRight());
        painter->drawLine(cell.rect.topRight(), cell.rect.bottomRight());
        painter->restore();
    }
}

// Only the item's own label can be edited, and the owner may refuse before the editor opens.
QWidget* ListViewDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                                        const QModelIndex& index) const {
    if (index.column() != 0) return nullptr;
    bool cancel = false;
    emit owner_.BeforeLabelEdit(index.row(), cancel);
    if (cancel) return nullptr;
    return QStyledItemDelegate::createEditor(parent, option, index);
}

void ListViewDelegate::setModelData(QWidget* editor, QAbstractItemModel* model,
                                    const QModelIndex& index) const {
    auto* line = qobject_cast<QLineEdit*>(editor);
    if (line == nullptr) return;
    bool cancel = false;
    emit owner_.AfterLabelEdit(index.row(), fromQString(line->text()), cancel);
    if (!cancel) QStyledItemDelegate::setModelData(editor, model, index);
}

}  // namespace orvanta
