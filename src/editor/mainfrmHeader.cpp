// The header band and the labels: a press and drag on the band moves the window as a title bar
// would; a link acts on its click, and a caption hands the focus to its field. No other press
// moves the window, so a quick click on a label is never swallowed by a move.
#include <QApplication>
#include <QLabel>
#include <QMouseEvent>
#include <QWindow>
#include <algorithm>

#include "controls/about.h"
#include "editor/mainfrm.h"
#include "editor/optionsfrm.h"
#include "ui_mainfrm.h"

namespace orvanta {

namespace {

bool isLeftPress(const QEvent* event) {
    return event->type() == QEvent::MouseButtonPress &&
           static_cast<const QMouseEvent*>(event)->button() == Qt::LeftButton;
}

}  // namespace

void mainfrm::connectHeader() {
    for (QLabel* link : links()) {
        link->setCursor(Qt::PointingHandCursor);
        // Underlined only under the pointer, so that the underline of its letter shows.
        link->setStyleSheet(
            QStringLiteral("QLabel { color: #1f5fa8; } QLabel:hover { text-decoration: underline; } "
                           "QLabel:focus { border: 1px dotted #1f5fa8; }"));
        link->installEventFilter(this);
    }
    for (QLabel* label : findChildren<QLabel*>())
        if (label->buddy() != nullptr) label->installEventFilter(this);
    ui_->header->installEventFilter(this);
}

// The header's links first: they take their letters before those of the first page.
std::vector<QLabel*> mainfrm::links() const {
    return {ui_->Label21, ui_->Label24, ui_->Label34, ui_->Label22, ui_->Label23};
}

bool mainfrm::filterMouse(QObject* watched, QEvent* event) {
    auto* label = qobject_cast<QLabel*>(watched);
    const std::vector<QLabel*> all = links();
    if (label != nullptr && std::find(all.begin(), all.end(), label) != all.end()) {
        if (event->type() == QEvent::MouseButtonRelease) activateLink(*label);
        return true;
    }
    if (label != nullptr && label->buddy() != nullptr) {
        if (isLeftPress(event)) label->buddy()->setFocus(Qt::MouseFocusReason);
        return true;
    }
    if (watched == ui_->header) return filterHeaderDrag(event);
    return false;
}

// The move starts once the pointer has been dragged a little, not on the press itself.
bool mainfrm::filterHeaderDrag(QEvent* event) {
    if (isLeftPress(event)) {
        dragFrom_ = static_cast<QMouseEvent*>(event)->globalPosition().toPoint();
    } else if (event->type() == QEvent::MouseButtonRelease) {
        dragFrom_.reset();
    } else if (event->type() == QEvent::MouseMove && dragFrom_) {
        const auto* move = static_cast<QMouseEvent*>(event);
        const QPoint travelled = move->globalPosition().toPoint() - *dragFrom_;
        if ((move->buttons() & Qt::LeftButton) == 0) {
            dragFrom_.reset();
        } else if (travelled.manhattanLength() >= QApplication::startDragDistance()) {
            dragFrom_.reset();
            startDrag();
            return true;
        }
    }
    return false;
}

void mainfrm::startDrag() {
    if (QWindow* handle = window()->windowHandle()) handle->startSystemMove();
    emit moveStarted();
}

void mainfrm::activateLink(QLabel& link) {
    if (&link == ui_->Label21) Label21_Click();
    if (&link == ui_->Label22) Label22_Click();
    if (&link == ui_->Label23) Label23_Click();
    if (&link == ui_->Label24) Label24_Click();
    if (&link == ui_->Label34) {
        auto* window = new about(context_.host, context_.dialogs, this);
        window->setAttribute(Qt::WA_DeleteOnClose);
        window->setWindowModality(Qt::NonModal);
        window->show();
    }
}

void mainfrm::Label24_Click() {
    if (options_ == nullptr) {
        options_ = new optionsfrm(context_.host, this);
        options_->setAttribute(Qt::WA_DeleteOnClose);
        options_->setWindowModality(Qt::NonModal);
    }
    options_->show();
    options_->raise();
    options_->activateWindow();
}

}  // namespace orvanta
