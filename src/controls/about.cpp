#include "controls/about.h"

#include "core/commonFunctions.h"
#include "ui_about.h"

namespace orvanta {

about::about(Host& host, Dialogs& dialogs, QWidget* parent)
    : QDialog(parent), host_(host), dialogs_(dialogs), ui_(std::make_unique<Ui::about>()) {
    ui_->setupUi(this);
    ui_->lblVersion->setText(QStringLiteral("Version ") + QLatin1String(kOrvantaVersion));
    connect(ui_->cmdChangelog, &QPushButton::clicked, this, [this] { openShipped(kChangelogFile); });
    connect(ui_->cmdLicence, &QPushButton::clicked, this, [this] { openShipped(kLicenceFile); });
    connect(ui_->cmdDocumentation, &QPushButton::clicked, this, [this] { openShipped(kDocumentationPage); });
    connect(ui_->cmdOK, &QPushButton::clicked, this, &QDialog::accept);
}

about::~about() = default;

void about::openShipped(const char* file) {
    shellOpen(host_, dialogs_, host_.applicationFolder() + file, "");
}

}  // namespace orvanta
