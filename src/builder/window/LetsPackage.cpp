#include "builder/window/LetsPackage.h"

#include <QSignalBlocker>

#include "builder/window/packaging.h"
#include "ui_LetsPackage.h"

namespace orvanta {

LetsPackage::LetsPackage(LetsPackageContext context, QWidget* editor)
    : QDialog(editor),
      context_(std::move(context)),
      ui_(std::make_unique<Ui::LetsPackage>()),
      model_(context_.host, context_.dialogs) {
    ui_->setupUi(this);
    setAttribute(Qt::WA_DeleteOnClose);
    // The one tab has its page shown for good.
    ui_->TabStrip1->addTab(QStringLiteral("Package"));
    for (const char* level : kCompressionLevels) ui_->Combo1->addItem(QString::fromLatin1(level));
    connect(ui_->Option1, &QRadioButton::clicked, this, &LetsPackage::Option1_Click);
    connect(ui_->Option2, &QRadioButton::clicked, this, &LetsPackage::Option2_Click);
    connect(ui_->Combo1, &QComboBox::currentIndexChanged, this, &LetsPackage::Combo1_Click);
    connect(ui_->Check2, &QCheckBox::clicked, this, &LetsPackage::Check2_Click);
    connect(ui_->Command1, &QPushButton::clicked, this, &LetsPackage::Command1_Click);
    connect(ui_->Command2, &QPushButton::clicked, this, &LetsPackage::Command2_Click);
    model_.Form_Load();
    showState();
}

LetsPackage::~LetsPackage() = default;

void LetsPackage::showState() {
    const PackageDialogState& state = model_.state();
    const QSignalBlocker blockCombo(ui_->Combo1);
    ui_->Option1->setEnabled(state.option1Enabled);
    ui_->Option2->setEnabled(state.option2Enabled);
    // Two exclusive buttons cannot both be cleared one by one.
    ui_->Option1->setAutoExclusive(false);
    ui_->Option2->setAutoExclusive(false);
    ui_->Option1->setChecked(state.option1Value);
    ui_->Option2->setChecked(state.option2Value);
    ui_->Option1->setAutoExclusive(true);
    ui_->Option2->setAutoExclusive(true);
    ui_->Combo1->setEnabled(state.combo1Enabled);
    ui_->Combo1->setCurrentIndex(state.combo1Index);
    ui_->Check2->setChecked(state.check2Value == 1);
    ui_->Command1->setEnabled(state.command1Enabled);
}

void LetsPackage::Option1_Click() {
    model_.Option1_Click();
    showState();
}

void LetsPackage::Option2_Click() {
    model_.Option2_Click();
    showState();
}

void LetsPackage::Combo1_Click(int index) {
    model_.Combo1_Click(index);
}

void LetsPackage::Check2_Click(bool checked) {
    model_.Check2_Click(checked ? 1 : 0);
}

// The build runs inside this click; the dialog goes when it returns, built or not.
void LetsPackage::Command1_Click() {
    BuildSetup setup = currentBuildSetup(context_.host);
    setup.packagerItemIndex = context_.packagerItemIndex;
    {
        packaging progress(context_.host, context_.dialogs, parentWidget(), this);
        if (context_.packageexe) context_.packageexe(setup, progress);
    }
    close();
}

void LetsPackage::Command2_Click() {
    close();
}

}  // namespace orvanta
