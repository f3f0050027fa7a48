#include "editor/themesmanager.h"

#include <QGuiApplication>
#include <QScreen>
#include <QTimer>

#include "core/RegistryAPI.h"
#include "core/commonFunctions.h"
#include "core/vars.h"
#include "editor/BackgroundPreview.h"
#include "editor/rules/BackgroundList.h"
#include "image/widget/aicAlphaImage.h"
#include "project/ProjectPaths.h"
#include "ui_themesmanager.h"

namespace orvanta {

namespace {

constexpr const char* kBackPreview = "backPreview";
constexpr int kTwipsPerPixel = 15;
constexpr int kDistanceFromLowerEdge = 2500 / kTwipsPerPixel;
constexpr int kPreviewGap = 800 / kTwipsPerPixel;
constexpr int kLeftShift = 100 / kTwipsPerPixel;

QRect screenArea(const QWidget& window) {
    const QScreen* screen = window.screen() != nullptr ? window.screen() : QGuiApplication::primaryScreen();
    return screen != nullptr ? screen->availableGeometry() : QRect(0, 0, 1024, 768);
}

}  // namespace

themesmanager::themesmanager(themesmanagerContext context, QWidget* parent)
    : QWidget(parent, Qt::Window), context_(std::move(context)), ui_(std::make_unique<Ui::themesmanager>()) {
    ui_->setupUi(this);
    Timer1 = new QTimer(this);
    Timer1->setInterval(100);
    connect(Timer1, &QTimer::timeout, this, &themesmanager::Timer1_Timer);
    connect(ui_->Command1, &QPushButton::clicked, this, &themesmanager::Command1_Click);
    connect(ui_->Command2, &QPushButton::clicked, this, &themesmanager::Command2_Click);
    connect(ui_->HScroll1, &QScrollBar::valueChanged, this, &themesmanager::HScroll1_Change);
    connect(ui_->Check1, &QCheckBox::clicked, this, &themesmanager::Check1_Click);
    // Only the user's typing searches: the name the window writes there itself would jump to an
    // earlier picture whose name holds it.
    connect(ui_->label1, &QLineEdit::textEdited, this, &themesmanager::label1_Change);
    connect(ui_->Command3, &QPushButton::clicked, this, &themesmanager::Command3_Click);
    connect(ui_->Command4, &QPushButton::clicked, this, &themesmanager::Command4_Click);
    connect(ui_->Command5, &QPushButton::clicked, this, &themesmanager::Command5_Click);
    Form_Load();
}

themesmanager::~themesmanager() = default;

void themesmanager::Form_Load() {
    const long preview = RegistryAPI(context_.host).readSettingNumber(vars::settingsKey(), kBackPreview, 0);
    ui_->Check1->setChecked(preview == 1);
    names_ = listBackgrounds(context_.host, backgroundsFolder(vars::workspaceFolder));
    for (const std::string& name : names_) ui_->List1->addItem(QString::fromLatin1(name));
    ui_->HScroll1->setMaximum(std::max<int>(0, static_cast<int>(names_.size()) - 1));
    ui_->HScroll1->setEnabled(names_.size() > 1);
    if (!names_.empty()) selectRow(0);
    showPosition();
    if (ui_->Check1->isChecked() && !names_.empty())
        openPreview();
    else
        placeAlone();
    if (names_.empty()) {
        context_.dialogs.messageBox(
            {"Backgrounds folder is empty.", MessageButtons::Ok, MessageIcon::Exclamation, ""});
        emptyFolder_ = true;
    }
}

int themesmanager::currentRow() const {
    return ui_->List1->currentRow();
}

std::string themesmanager::fileAt(int row) const {
    if (row < 0 || row >= static_cast<int>(names_.size())) return {};
    return backgroundsFolder(vars::workspaceFolder) + "\\" + names_[static_cast<std::size_t>(row)];
}

std::string themesmanager::currentFile() const {
    return fileAt(currentRow());
}

// The row, its neighbours either side (none beyond the ends), its name and the bar follow `row`.
void themesmanager::selectRow(int row) {
    ui_->List1->setCurrentRow(row);
    ui_->aicAlphaImage2->ClearImage();
    ui_->aicAlphaImage3->ClearImage();
    ui_->aicAlphaImage1->LoadImage_FromFile(fileAt(row));
    if (row > 0) ui_->aicAlphaImage2->LoadImage_FromFile(fileAt(row - 1));
    if (row + 1 < static_cast<int>(names_.size())) ui_->aicAlphaImage3->LoadImage_FromFile(fileAt(row + 1));
    ui_->label1->setText(ui_->List1->item(row)->text());
    const QSignalBlocker quiet(ui_->HScroll1);
    ui_->HScroll1->setValue(row);
}

void themesmanager::showPosition() {
    ui_->Label2->setText(QString::fromLatin1(backgroundPosition(currentRow(), names_.size())));
}

void themesmanager::Command1_Click() {
    walk(1);
}

void themesmanager::Command2_Click() {
    walk(-1);
}

// With the preview on, each step becomes the project's background and the simulator is opened
// anew over it.
void themesmanager::walk(int step) {
    const int row = currentRow() + step;
    if (row >= 0 && row < static_cast<int>(names_.size())) {
        selectRow(row);
        if (ui_->Check1->isChecked() && context_.preview != nullptr && copyOverBackground()) {
            context_.preview->close();
            openPreview();
        }
    }
    showPosition();
}

void themesmanager::HScroll1_Change(int value) {
    if (value < 0 || value >= static_cast<int>(names_.size())) return;
    selectRow(value);
    showPosition();
    if (ui_->Check1->isChecked() && context_.preview != nullptr && context_.preview->isOpen())
        context_.preview->showPicture(currentFile());
}

void themesmanager::Check1_Click() {
    const bool on = ui_->Check1->isChecked();
    if (on && !names_.empty()) {
        openPreview();
    } else if (!on) {
        if (context_.preview != nullptr) context_.preview->close();
        placeAlone();
    }
    RegistryAPI(context_.host).writeSettingNumber(vars::settingsKey(), kBackPreview, on ? 1 : 0);
}

void themesmanager::label1_Change(const QString& text) {
    const auto found = findBackground(names_, text.toLatin1().toStdString());
    if (found) ui_->HScroll1->setValue(static_cast<int>(*found));
}

// Of the current picture, which exists. A copy that fails (the file in use, the disk full) is said, and the
// window stays as it was.
bool themesmanager::copyOverBackground() {
    const std::string source = currentFile();
    const std::string target = context_.workingFolder + "\\1.jpg";
    if (context_.host.copyFile(source, target)) {
        copiedOverBackground_ = true;
        return true;
    }
    context_.dialogs.messageBox({"The background " + source + " could not be copied to " + target + ".",
                                 MessageButtons::Ok, MessageIcon::Exclamation, ""});
    return false;
}

void themesmanager::Command3_Click() {
    if (currentFile().empty() || !copyOverBackground()) return;
    close();
}

void themesmanager::Command4_Click() {
    close();
}

void themesmanager::Command5_Click() {
    shellOpen(context_.host, context_.dialogs, backgroundsFolder(vars::workspaceFolder), "");
}

// Without a viewer the window stands alone; the box still keeps the user's choice.
void themesmanager::openPreview() {
    if (context_.preview == nullptr || !context_.preview->open(currentFile())) {
        placeAlone();
        return;
    }
    placeBesidePreview();
}

// The viewer at the middle of the screen's height, this window beside it near the lower edge.
void themesmanager::placeBesidePreview() {
    QWidget* viewer = context_.preview->window();
    if (viewer == nullptr) return;
    const QRect area = screenArea(*this);
    const int left = area.left() + std::max(0, (area.width() - viewer->width() - kPreviewGap - width()) / 2);
    viewer->move(left, area.top() + (area.height() - viewer->height()) / 2);
    const int top = std::max(area.top(), area.bottom() - kDistanceFromLowerEdge - height());
    placedAt_ = QPoint(left + viewer->width() + kPreviewGap, top);
    move(placedAt_);
    Timer1->start();
}

void themesmanager::placeAlone() {
    const QRect area = screenArea(*this);
    placedAt_ = QPoint(area.left() + (area.width() - width()) / 2 + kLeftShift,
                       area.top() + (area.height() - height()) / 2);
    move(placedAt_);
    Timer1->start();
}

// A window manager may move a window it shows for the first time; the tick puts it back.
void themesmanager::Timer1_Timer() {
    Timer1->stop();
    move(placedAt_);
}

void themesmanager::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    if (emptyFolder_) {
        QTimer::singleShot(0, this, &QWidget::close);
        return;
    }
    ui_->label1->setFocus();
    ui_->label1->selectAll();
}

void themesmanager::closeEvent(QCloseEvent* event) {
    Timer1->stop();
    if (ui_->Check1->isChecked() && context_.preview != nullptr) context_.preview->close();
    // Walking with the preview on changed the background too: the editor shows what the project has.
    if (copiedOverBackground_ && context_.editorBackground != nullptr)
        context_.editorBackground->LoadImage_FromFile(context_.workingFolder + "\\1.jpg");
    if (QWidget* editor = parentWidget()) {
        editor->raise();
        editor->activateWindow();
    }
    QWidget::closeEvent(event);
}

}  // namespace orvanta
