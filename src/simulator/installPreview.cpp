#include "simulator/installPreview.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QProgressBar>
#include <QPushButton>
#include <QTimer>

#include "controls/QtText.h"
#include "image/c32bppDIB.h"
#include "image/widget/aicAlphaImage.h"
#include "simulator/WizardPanel.h"
#include "simulator/installPackages.h"
#include "ui_installPreview.h"

namespace orvanta {

namespace {

// "mainzone(0)" is the form's "mainzone_0": arrays keep their index in the object name.
QString objectNameOf(const std::string& name) {
    std::string object = name;
    for (char& c : object)
        if (c == '(') c = '_';
    if (!object.empty() && object.back() == ')') object.pop_back();
    return QString::fromStdString(object);
}

const QPoint kPanelOffset(kPanelOffsetXTwips / 15, kPanelOffsetYTwips / 15);

}  // namespace

installPreview::installPreview(installPreviewContext context, QWidget* parent)
    : QWidget(parent, Qt::Window | Qt::MSWindowsFixedSizeDialogHint),
      context_(std::move(context)),
      ui_(std::make_unique<Ui::installPreview>()),
      wizard_(context_.host, context_.dialogs, *this, context_.project) {
    ui_->setupUi(this);
    setFixedSize(size());
    mainzone = {ui_->mainzone_0, ui_->mainzone_1, ui_->mainzone_2, ui_->mainzone_3};
    // Later steps lie over earlier ones, so the installing panel covers the start panel under it.
    for (WizardPanel* panel : mainzone) panel->raise();
    for (std::size_t index = 0; index < kWizardTimers; ++index) {
        timers_[index] = new QTimer(this);
        connect(timers_[index], &QTimer::timeout, this,
                [this, index] { deliverTick(static_cast<WizardTimer>(index)); });
    }
    ui_->installing->setRotateEnabled(true);
    ui_->isButton1->setStyleSheet(QStringLiteral("background-color: rgb(238, 244, 249);"));
    for (QPushButton* button : {ui_->Command1, ui_->Command2, ui_->isButton2})
        button->setStyleSheet(QStringLiteral("background-color: rgb(235, 235, 235);"));
    mapControls();
    connectEvents();
    loadDeliveredPictures();
}

installPreview::~installPreview() {
    if (chooser_ != nullptr) delete chooser_.data();
}

QWidget* installPreview::control(const std::string& name) const {
    const auto found = widgets_.find(name);
    return found == widgets_.end() ? nullptr : found->second;
}

installPackages* installPreview::packageChooser() const {
    return chooser_;
}

void installPreview::mapControls() {
    for (const auto& [name, state] : wizard_.screen().controls()) {
        if (auto* widget = findChild<QWidget*>(objectNameOf(name))) widgets_.emplace(name, widget);
    }
}

void installPreview::connectEvents() {
    connect(ui_->Command1, &QPushButton::clicked, this, &installPreview::Command1_Click);
    connect(ui_->Command2, &QPushButton::clicked, this, &installPreview::Command2_Click);
    connect(ui_->isButton1, &QPushButton::clicked, this, &installPreview::isButton1_Click);
    connect(ui_->isButton2, &QPushButton::clicked, this, &installPreview::isButton2_Click);
    connect(ui_->Command6, &QPushButton::clicked, this, &installPreview::Command6_Click);
    connect(ui_->Text1, &QLineEdit::textEdited, this, &installPreview::Text1_Change);
    for (aicAlphaImage* row : {ui_->Check1, ui_->Check2, ui_->Check3, ui_->aicAlphaImage2, ui_->okay,
                               ui_->okay2, ui_->okay3, ui_->okay4}) {
        const std::string name = row->objectName().toStdString();
        connect(row, &aicAlphaImage::Click, this,
                [this, name] { handle([this, name] { wizard_.rowClick(name); }); });
    }
    for (QLabel* link : {ui_->Label10, ui_->Label16}) {
        link->installEventFilter(this);
        link->setMouseTracking(true);
    }
}

// An empty box, drawn here; the tick laid over it and the turning image are the program's own
// pictures, beside it in "\i".
void installPreview::loadDeliveredPictures() {
    QImage box(16, 16, QImage::Format_ARGB32_Premultiplied);
    box.fill(Qt::transparent);
    QPainter painter(&box);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QColor(120, 130, 140));
    painter.setBrush(Qt::white);
    painter.drawRoundedRect(QRectF(1.5, 1.5, 13, 13), 3, 3);
    painter.end();
    for (aicAlphaImage* row : {ui_->Check1, ui_->Check2, ui_->Check3, ui_->aicAlphaImage2})
        row->LoadImage_FromHandle(box);
    const std::string pictures = context_.host.applicationFolder() + "\\i\\";
    for (aicAlphaImage* tick : {ui_->okay, ui_->okay2, ui_->okay3, ui_->okay4})
        tick->LoadImage_FromFile(pictures + "ok.png");
    ui_->installing->LoadImage_FromFile(pictures + "default.png");
}

bool installPreview::start() {
    wizard_.Form_Initialize();
    const bool loaded = wizard_.Form_Load();
    if (!loaded) {
        closing_ = true;
        close();
        return false;
    }
    if (!closing_) sync();
    return !closing_;
}

template <typename Event>
void installPreview::handle(Event event) {
    event();
    if (!closing_) sync();
}

void installPreview::sync() {
    const WizardScreen& screen = wizard_.screen();
    setWindowTitle(toQString(screen.title));
    if (screen.busyPointer)
        setCursor(Qt::WaitCursor);
    else
        unsetCursor();
    for (const auto& [name, state] : screen.controls()) syncControl(name, state);
    for (const FadeRequest& fade : wizard_.takeFades()) {
        if (auto* picture = qobject_cast<aicAlphaImage*>(widgets_[fade.control]))
            picture->FadeInOut(fade.finalOpacity, fade.stepPercent, 0);
    }
    for (QLabel* link : {ui_->Label10, ui_->Label16})
        link->setCursor(wizard_.linkCursor(link->objectName().toStdString()) ? Qt::PointingHandCursor
                                                                             : Qt::ArrowCursor);
    if (viewer_) ui_->Command2->setEnabled(false);
    syncBackground();
    syncTimers();
}

void installPreview::syncControl(const std::string& name, const ControlState& state) {
    const auto found = widgets_.find(name);
    if (found == widgets_.end()) return;
    QWidget& widget = *found->second;
    if (auto* panel = qobject_cast<WizardPanel*>(&widget)) {
        panel->setGeometry(kPanelOffset.x() + state.left, kPanelOffset.y(), panel->width(), state.height);
    } else if (auto* label = qobject_cast<QLabel*>(&widget)) {
        label->setText(toDisplayText(state.text));
    } else if (auto* button = qobject_cast<QPushButton*>(&widget)) {
        button->setText(toQString(state.text));
    } else if (auto* box = qobject_cast<QLineEdit*>(&widget)) {
        const QString text = toQString(state.text);
        if (box->text() != text) box->setText(text);  // textEdited is the user's typing only
        box->setReadOnly(state.locked);
    } else if (auto* bar = qobject_cast<QProgressBar*>(&widget)) {
        bar->setValue(state.value);
    } else if (auto* picture = qobject_cast<aicAlphaImage*>(&widget)) {
        syncPicture(*picture, state);
    }
    if (name == "Image1") widget.move(state.left / 15, widget.y());  // moved in twips
    widget.setEnabled(state.enabled);
    widget.setVisible(state.visible);
}

void installPreview::syncPicture(QWidget& widget, const ControlState& state) {
    auto& picture = static_cast<aicAlphaImage&>(widget);
    std::string& loaded = loadedPictures_[&widget];
    if (!state.picture.empty() && state.picture != loaded) {
        loaded = state.picture;
        picture.LoadImage_FromFile(state.picture);
    }
    if (!picture.fadeTimer().isActive()) picture.setOpacity(state.opacity);
    if (state.rotation != 0) picture.setRotation(state.rotation % 360);
}

// The picture is decoded and scaled once for the window; each panel takes its own part of it.
void installPreview::syncBackground() {
    const std::string& wanted = viewerBackground_ ? *viewerBackground_ : wizard_.screen().background;
    if (wanted == shownBackground_) return;
    shownBackground_ = wanted;
    aicAlphaImage& background = *ui_->background;
    background.setScaleMethod(kScaleStretch);
    background.setStretchQuality(true);
    c32bppDIB shown;
    if (wanted.empty() || !background.LoadImage_FromFile(wanted)) {
        background.ClearImage();
    } else if (shown.InitializeDIB(width(), height())) {
        background.renderPicture(shown);
    }
    for (WizardPanel* panel : mainzone) panel->showWindowPicture(shown, kPanelOffset);
}

void installPreview::syncTimers() {
    for (std::size_t index = 0; index < kWizardTimers; ++index) {
        const TimerState& state = wizard_.timer(static_cast<WizardTimer>(index));
        QTimer& timer = *timers_[index];
        if (timer.interval() != state.interval) timer.setInterval(state.interval);
        if (state.enabled && !timer.isActive()) timer.start();
        if (!state.enabled && timer.isActive()) timer.stop();
    }
}

// The timer stands still while its tick runs: the roll lets waiting events through, and a 1 ms
// timer would otherwise tick again inside its own tick.
void installPreview::deliverTick(WizardTimer which) {
    timer(which)->stop();
    handle([this, which] { wizard_.tick(which); });
}

void installPreview::Command1_Click() {
    handle([this] { wizard_.Command1_Click(); });
}

void installPreview::Command2_Click() {
    handle([this] { wizard_.Command2_Click(); });
}

void installPreview::isButton1_Click() {
    handle([this] { wizard_.isButton1_Click(); });
}

void installPreview::isButton2_Click() {
    handle([this] { wizard_.isButton2_Click(); });
}

void installPreview::Command6_Click() {
    handle([this] { wizard_.Command6_Click(); });
}

void installPreview::Text1_Change(const QString& text) {
    handle([this, &text] { wizard_.Text1_Change(fromQString(text)); });
}

bool installPreview::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::MouseButtonRelease) {
        if (watched == ui_->Label10) handle([this] { wizard_.Label10_Click(); });
        if (watched == ui_->Label16) handle([this] { wizard_.Label16_Click(); });
    }
    return QWidget::eventFilter(watched, event);
}

void installPreview::closeEvent(QCloseEvent* event) {
    // From the run on, and as the backgrounds manager's viewer, only the program closes the window.
    if (!closing_ && (!wizard_.screen().closeCommand || viewer_)) {
        event->ignore();
        return;
    }
    for (QTimer* timer : timers_) timer->stop();
    closePackageChooser();
    event->accept();
}

void installPreview::processPendingEvents() {
    QCoreApplication::processEvents();
}

void installPreview::closeWindow() {
    closing_ = true;
    close();
}

void installPreview::endProgram() {
    closing_ = true;
    if (context_.endProgram) context_.endProgram();
    close();
}

bool installPreview::unsavedChanges() {
    return context_.unsavedChanges && context_.unsavedChanges();
}

void installPreview::showPackageChooser() {
    if (chooser_ == nullptr) {
        chooser_ = new installPackages(wizard_, this);
        connect(chooser_, &installPackages::closedByItself, this,
                [this] { handle([this] { wizard_.packageChooserClosed(); }); });
        connect(chooser_, &installPackages::choiceChanged, this,
                [this] { handle([this] { wizard_.packagesRecounted(); }); });
    }
    chooser_->move(geometry().topLeft() + QPoint(6000 / 15, 3150 / 15));
    chooser_->show();
    chooser_->activateWindow();
}

void installPreview::closePackageChooser() {
    if (chooser_ != nullptr) chooser_->close();
}

void installPreview::showBackground(const std::string& picture) {
    viewerBackground_ = picture;
    sync();
}

void installPreview::lockAsViewer() {
    viewer_ = true;
    ui_->Command2->setEnabled(false);
}

}  // namespace orvanta
