#include "project/window/CopyProgress.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "controls/ctlProgressBar.h"

namespace orvanta {

namespace {

// The bar counts in thousandths, so that any number of files fits its range.
constexpr int kBarSteps = 1000;

}  // namespace

CopyProgress::CopyProgress(Dialogs& dialogs, QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("CopyProgress"));
    setWindowTitle(QStringLiteral("Copying the application files"));
    setWindowModality(Qt::WindowModal);
    Label1 = new QLabel(QStringLiteral("Looking for the files to copy..."));
    Label1->setObjectName(QStringLiteral("Label1"));
    ProgressBar1 = new ctlProgressBar(dialogs);
    ProgressBar1->setObjectName(QStringLiteral("ProgressBar1"));
    ProgressBar1->setMax(kBarSteps);
    ProgressBar1->setMinimumWidth(360);
    ProgressBar1->setMinimumHeight(20);
    Command1 = new QPushButton(QStringLiteral("Cancel"));
    Command1->setObjectName(QStringLiteral("Command1"));
    connect(Command1, &QPushButton::clicked, this, &CopyProgress::reject);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(Label1);
    layout->addWidget(ProgressBar1);
    layout->addWidget(Command1, 0, Qt::AlignRight);
}

void CopyProgress::showProgress(std::size_t done, std::size_t total) {
    Label1->setText(QStringLiteral("%1 of %2 files copied").arg(done).arg(total));
    const double part = total == 0 ? 1.0 : static_cast<double>(done) / static_cast<double>(total);
    ProgressBar1->setValue(static_cast<int>(part * kBarSteps));
}

void CopyProgress::reject() {
    cancelled_ = true;
    Command1->setEnabled(false);
    Label1->setText(Label1->text() + QStringLiteral(" - stopping..."));
}

}  // namespace orvanta
