#include "controls/ctlListView.h"

#include <QEvent>
#include <QFileIconProvider>
#include <QFileInfo>
#include <QHeaderView>
#include <QStyle>
#include <QVBoxLayout>

#include "controls/ListViewDelegate.h"
#include "controls/QtText.h"
#include "platform/CaseFolding.h"
#include "platform/WindowsPath.h"

namespace orvanta {
namespace {

Qt::Alignment columnAlignment(int alignment) {
    switch (alignment) {
        case LVCFMT_RIGHT:
            return Qt::AlignRight | Qt::AlignVCenter;
        case LVCFMT_CENTER:
            return Qt::AlignHCenter | Qt::AlignVCenter;
        default:
            return Qt::AlignLeft | Qt::AlignVCenter;
    }
}

}  // namespace

ctlListView::ctlListView(Dialogs& dialogs, QWidget* parent)
    : QFrame(parent), subclass_(dialogs, "ctlListView") {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
}

ctlListView::~ctlListView() {
    destroy();
}

bool ctlListView::create() {
    if (view_) return true;
    view_ = new QTreeWidget(this);
    view_->setObjectName(QStringLiteral("SysListView32"));
    view_->setRootIsDecorated(false);
    view_->setUniformRowHeights(true);
    view_->setColumnCount(1);
    view_->headerItem()->setText(0, QString());
    delegate_ = new ListViewDelegate(*this);
    view_->setItemDelegate(delegate_);
    layout()->addWidget(view_);
    connectView();
    applySettings();
    return view_ != nullptr;
}

void ctlListView::connectView() {
    connect(view_, &QTreeWidget::itemChanged, this, &ctlListView::onItemChanged);
    connect(view_, &QTreeWidget::itemClicked, this,
            [this](QTreeWidgetItem* clicked) { emit ItemClick(view_->indexOfTopLevelItem(clicked)); });
    connect(view_->header(), &QHeaderView::sectionClicked, this, &ctlListView::onColumnClick);
    view_->header()->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(view_->header(), &QHeaderView::customContextMenuRequested, this,
            &ctlListView::onHeaderContextMenu);
    connect(view_, &QTreeWidget::itemEntered, this, [this](QTreeWidgetItem* entered) {
        if (style_.HoverSelection()) view_->setCurrentItem(entered);
    });
    // The leave of the mouse comes from the view's own events, after the view has seen it.
    subclass_.sc_Subclass(view_->viewport(), 0,
                          [this](bool before, bool&, bool&, QObject*, QEvent*, qintptr) {
                              if (!before) emit MouseLeave();
                          });
    subclass_.sc_AddMsg(view_->viewport(), QEvent::Leave, MessageWhen::After);
}

void ctlListView::destroy() {
    if (!view_) return;
    subclass_.sc_Terminate();
    delete view_;
    delete delegate_;
    delegate_ = nullptr;
    columns_ = 0;
}

void ctlListView::showEvent(QShowEvent* event) {
    create();
    QFrame::showEvent(event);
}

void ctlListView::resizeEvent(QResizeEvent* event) {
    QFrame::resizeEvent(event);
    if (view_) emit Resize();
}

QTreeWidgetItem* ctlListView::item(int index) const {
    return view_ ? view_->topLevelItem(index) : nullptr;
}

// ---- Items

void ctlListView::ListItemsAdd(int index, const std::string& text, int imageIndex, int stateFlags) {
    if (!view_) return;
    auto* added = new QTreeWidgetItem(QStringList(toQString(text)));
    added->setFlags(added->flags() | Qt::ItemIsEditable | Qt::ItemIsUserCheckable);
    if (imageIndex >= 0 && static_cast<std::size_t>(imageIndex) < smallImages_.size())
        added->setIcon(0, smallImages_[static_cast<std::size_t>(imageIndex)]);
    const bool checked = (stateFlags & LVIS_STATEIMAGEMASK) == kStateImageChecked;
    added->setData(0, kReportedCheckRole, checked);
    if (style_.Checkboxes()) added->setCheckState(0, checked ? Qt::Checked : Qt::Unchecked);
    const int count = view_->topLevelItemCount();
    view_->insertTopLevelItem(index < 0 || index > count ? count : index, added);
    if (stateFlags & LVIS_SELECTED) added->setSelected(true);
    if (sorted_) sortNow();
}

void ctlListView::ListItemsRemove(int index) {
    delete item(index);
}

void ctlListView::ListItemsClear() {
    if (view_) view_->clear();
}

int ctlListView::ListItemsCount() const {
    return view_ ? view_->topLevelItemCount() : 0;
}

std::string ctlListView::ListItemsText(int index) const {
    return SubItems(index, 0);
}

bool ctlListView::ListItemsSelected(int index) const {
    const QTreeWidgetItem* found = item(index);
    return found != nullptr && found->isSelected();
}

void ctlListView::setListItemsSelected(int index, bool selected) {
    if (QTreeWidgetItem* found = item(index)) found->setSelected(selected);
}

bool ctlListView::ItemChecked(int index) const {
    const QTreeWidgetItem* found = item(index);
    return found != nullptr && found->data(0, kReportedCheckRole).toBool();
}

void ctlListView::setItemChecked(int index, bool checked) {
    QTreeWidgetItem* found = item(index);
    if (found == nullptr || !style_.Checkboxes()) return;
    found->setCheckState(0, checked ? Qt::Checked : Qt::Unchecked);
}

void ctlListView::onItemChanged(QTreeWidgetItem* changed, int column) {
    if (column != 0 || !style_.Checkboxes()) return;
    const bool checked = changed->checkState(0) == Qt::Checked;
    if (changed->data(0, kReportedCheckRole).toBool() == checked) return;
    changed->setData(0, kReportedCheckRole, checked);
    emit ItemCheck(view_->indexOfTopLevelItem(changed), checked);
}

int ctlListView::SelectedItemIndex() const {
    for (int index = 0; index < ListItemsCount(); ++index)
        if (view_->topLevelItem(index)->isSelected()) return index;
    return -1;
}

std::string ctlListView::SelectedItemText() const {
    return ListItemsText(SelectedItemIndex());
}

std::string ctlListView::SubItems(int index, int column) const {
    const QTreeWidgetItem* found = item(index);
    if (found == nullptr || column < 0 || column >= std::max(columns_, 1)) return {};
    return fromQString(found->text(column));
}

void ctlListView::setSubItems(int index, int column, const std::string& text) {
    QTreeWidgetItem* found = item(index);
    if (found != nullptr && column >= 0 && column < std::max(columns_, 1))
        found->setText(column, toQString(text));
}

// ---- Columns

void ctlListView::ColumnHeadersAdd(const std::string& text, int width, int alignment) {
    if (!view_) return;
    const int column = columns_++;
    view_->setColumnCount(std::max(columns_, 1));
    view_->headerItem()->setText(column, toQString(text));
    view_->headerItem()->setTextAlignment(column, columnAlignment(alignment));
    view_->setColumnWidth(column, width);
    applyColumnVisibility();
}

void ctlListView::ColumnHeadersRemove(int index) {
    if (!view_ || index < 0 || index >= columns_) return;
    shiftColumnsLeftFrom(index);
    --columns_;
    view_->setColumnCount(std::max(columns_, 1));
    applyColumnVisibility();
}

// Texts, widths and alignments of the columns after `index` move one place to the left.
void ctlListView::shiftColumnsLeftFrom(int index) {
    QTreeWidgetItem* header = view_->headerItem();
    for (int column = index; column + 1 < columns_; ++column) {
        header->setText(column, header->text(column + 1));
        header->setTextAlignment(
            column, Qt::Alignment::fromInt(static_cast<unsigned>(header->textAlignment(column + 1))));
        view_->setColumnWidth(column, view_->columnWidth(column + 1));
        for (int row = 0; row < view_->topLevelItemCount(); ++row) {
            QTreeWidgetItem* line = view_->topLevelItem(row);
            line->setText(column, line->text(column + 1));
        }
    }
    if (columns_ == 1) header->setText(0, QString());
}

void ctlListView::ColumnHeadersClear() {
    while (ColumnHeadersCount() > 0) ColumnHeadersRemove(ColumnHeadersCount() - 1);
}

void ctlListView::AutoSizeLvw(int column) {
    if (view_ && column >= 0 && column < columns_) view_->resizeColumnToContents(column);
}

// Items of this view are always in rows; there are no icons to arrange.
void ctlListView::Arrange(int) {}

void ctlListView::Refresh() {
    if (view_) view_->viewport()->update();
}

void ctlListView::onColumnClick(int column) {
    if (column == SortKey) {
        SortOrder = SortOrder == 0 ? 1 : 0;
    } else {
        SortKey = column;
        SortOrder = 0;
    }
    emit ColumnClick(column);
    if (sorted_) sortNow();
}

void ctlListView::onHeaderContextMenu(const QPoint& position) {
    emit ColumnRightClick(view_->header()->logicalIndexAt(position));
}

void ctlListView::sortNow() {
    if (view_) view_->sortItems(SortKey, SortOrder == 0 ? Qt::AscendingOrder : Qt::DescendingOrder);
}

// ---- Small image list

void ctlListView::InitializeImageListSmall(int width, int height) {
    smallImageSize_ = QSize(width, height);
    smallImages_.clear();
    fileTypeImages_.clear();
    if (view_) view_->setIconSize(smallImageSize_);
}

int ctlListView::ImageListSmallAdd(const QIcon& icon) {
    smallImages_.push_back(icon);
    return static_cast<int>(smallImages_.size()) - 1;
}

int ctlListView::SystemImageIndex(const std::string& fileName) {
    const std::string name = lastComponent(withBackslashes(fileName));
    const std::size_t dot = name.rfind('.');
    const QString type =
        toQString(dot == std::string::npos ? std::string() : toLowerCase(name.substr(dot + 1)));
    for (const auto& [known, index] : fileTypeImages_)
        if (known == type) return index;
    QIcon icon = QFileIconProvider().icon(QFileInfo(QStringLiteral("file.") + type));
    // Without an icon theme the provider knows no types; every file then gets the plain file icon.
    if (icon.isNull()) icon = style()->standardIcon(QStyle::SP_FileIcon);
    const int index = ImageListSmallAdd(icon);
    fileTypeImages_.emplace_back(type, index);
    return index;
}

}  // namespace orvanta
