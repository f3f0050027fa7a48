#include "builder/window/packaging.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <chrono>
#include <thread>

#include "controls/QtText.h"
#include "controls/ctlProgressBar.h"
#include "core/RegistryAPI.h"
#include "core/vars.h"
#include "ui_packaging.h"

namespace orvanta {

packaging::packaging(Host& host, Dialogs& dialogs, QWidget* editor, QWidget* packageDialog)
    : QWidget(editor, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint),
      host_(host),
      ui_(std::make_unique<Ui::packaging>()),
      editor_(editor),
      packageDialog_(packageDialog) {
    ui_->setupUi(this);
    ProgressBar1 = new ctlProgressBar(dialogs, this);
    ProgressBar1->setObjectName(QStringLiteral("ProgressBar1"));
    ui_->layoutBar->addWidget(ProgressBar1);
    RegistryAPI registry(host_);
    ui_->Check1->setChecked(registry.readSettingNumber(vars::settingsKey(), "OpenCompiled", 1) == 1);
    ui_->Check2->setChecked(registry.readSettingNumber(vars::settingsKey(), "OpenCompiled2", 0) == 1);
    connect(ui_->Check1, &QCheckBox::clicked, this, &packaging::Check1_Click);
    connect(ui_->Check2, &QCheckBox::clicked, this, &packaging::Check2_Click);
}

packaging::~packaging() = default;

void packaging::show() {
    up_ = true;
    QWidget::show();
    if (editor_ != nullptr) editor_->setEnabled(false);
    // A window of its own stays usable while its owner is disabled, as an owned window does.
    setEnabled(true);
}

int packaging::value() const {
    return ProgressBar1->Value();
}

void packaging::setValue(int value) {
    ProgressBar1->setValue(value);
}

void packaging::setCaption(const std::string& caption) {
    ui_->Label1->setText(toQString(caption));
}

void packaging::processPendingEvents() {
    QCoreApplication::processEvents();
}

void packaging::pause(int milliseconds) {
    std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
}

void packaging::hidePackageDialog() {
    if (packageDialog_ != nullptr) packageDialog_->hide();
}

bool packaging::openFolderWhenDone() const {
    return ui_->Check1->isChecked();
}

bool packaging::openPackageWhenDone() const {
    return ui_->Check2->isChecked();
}

void packaging::close() {
    up_ = false;
    if (editor_ != nullptr) editor_->setEnabled(true);
    QWidget::close();
    if (editor_ != nullptr) {
        editor_->raise();
        editor_->activateWindow();
    }
}

void packaging::Check1_Click(bool checked) {
    RegistryAPI(host_).writeSettingNumber(vars::settingsKey(), "OpenCompiled", checked ? 1 : 0);
}

void packaging::Check2_Click(bool checked) {
    RegistryAPI(host_).writeSettingNumber(vars::settingsKey(), "OpenCompiled2", checked ? 1 : 0);
}

// The build has no stop test: the window stays until the build closes it.
void packaging::closeEvent(QCloseEvent* event) {
    if (up_)
        event->ignore();
    else
        QWidget::closeEvent(event);
}

}  // namespace orvanta
