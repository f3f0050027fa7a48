// The list control's settings given to its view.
#include <QHeaderView>

#include "controls/ctlListView.h"

namespace orvanta {

void ctlListView::applySettings() {
    setFrameShape(borderStyle_ != 0 ? QFrame::StyledPanel : QFrame::NoFrame);
    if (!view_) return;
    view_->setSelectionMode(style_.MultiSelect() ? QAbstractItemView::ExtendedSelection
                                                 : QAbstractItemView::SingleSelection);
    view_->setSelectionBehavior(style_.FullRowSelect() ? QAbstractItemView::SelectRows
                                                       : QAbstractItemView::SelectItems);
    view_->setEditTriggers(style_.LabelEdit()
                               ? QAbstractItemView::EditKeyPressed | QAbstractItemView::SelectedClicked
                               : QAbstractItemView::NoEditTriggers);
    view_->setWordWrap(style_.LabelWrap());
    view_->header()->setSectionsMovable(style_.AllowColumnReorder());
    view_->setMouseTracking(style_.HotTracking() || style_.HoverSelection());
    view_->setAttribute(Qt::WA_Hover, style_.HotTracking());
    if (smallImageSize_.isValid()) view_->setIconSize(smallImageSize_);
    for (int row = 0; row < view_->topLevelItemCount(); ++row) {
        QTreeWidgetItem* line = view_->topLevelItem(row);
        const bool checked = line->data(0, kReportedCheckRole).toBool();
        if (style_.Checkboxes())
            line->setCheckState(0, checked ? Qt::Checked : Qt::Unchecked);
        else
            line->setData(0, Qt::CheckStateRole, QVariant());
    }
    applyColumnVisibility();
    applyColours();
}

// Only the report view shows columns; the others show each item's label alone.
void ctlListView::applyColumnVisibility() {
    const bool report = style_.View() == LVS_REPORT;
    view_->setHeaderHidden(!report || style_.HideColumnHeaders());
    view_->setColumnHidden(0, report && columns_ == 0);
    for (int column = 1; column < columns_; ++column) view_->setColumnHidden(column, !report);
}

void ctlListView::applyColours() {
    QPalette palette = view_->palette();
    if (backColor_.isValid()) palette.setColor(QPalette::Base, backColor_);
    if (foreColor_.isValid()) palette.setColor(QPalette::Text, foreColor_);
    if (textBackground_.isValid()) palette.setColor(QPalette::AlternateBase, textBackground_);
    // With the selection hidden, an inactive view paints its selected items as any other.
    if (style_.HideSelection()) {
        palette.setColor(QPalette::Inactive, QPalette::Highlight, palette.color(QPalette::Base));
        palette.setColor(QPalette::Inactive, QPalette::HighlightedText, palette.color(QPalette::Text));
    }
    view_->setPalette(palette);
}

void ctlListView::setView(int view) {
    style_.setView(view);
    applySettings();
}

void ctlListView::setCheckboxes(bool on) {
    style_.setCheckboxes(on);
    applySettings();
}

void ctlListView::setMultiSelect(bool on) {
    style_.setMultiSelect(on);
    applySettings();
}

void ctlListView::setLabelEdit(bool on) {
    style_.setLabelEdit(on);
    applySettings();
}

void ctlListView::setGridLines(bool on) {
    style_.setGridLines(on);
    applySettings();
}

void ctlListView::setFullRowSelect(bool on) {
    style_.setFullRowSelect(on);
    applySettings();
}

void ctlListView::setHideColumnHeaders(bool on) {
    style_.setHideColumnHeaders(on);
    applySettings();
}

void ctlListView::setSorted(bool on) {
    sorted_ = on;
    if (on) sortNow();
}

// The back colour is the text background as well, as the list view paints it.
void ctlListView::setBackColor(const QColor& colour) {
    backColor_ = colour;
    textBackground_ = colour;
    applySettings();
}

void ctlListView::setForeColor(const QColor& colour) {
    foreColor_ = colour;
    applySettings();
}

void ctlListView::setTextBackground(const QColor& colour) {
    textBackground_ = colour;
    applySettings();
}

void ctlListView::setBorderStyle(int borderStyle) {
    borderStyle_ = borderStyle;
    applySettings();
}

}  // namespace orvanta
