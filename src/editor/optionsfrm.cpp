#include "editor/optionsfrm.h"

#include "core/RegistryAPI.h"
#include "core/vars.h"
#include "ui_optionsfrm.h"

namespace orvanta {

namespace {

constexpr const char* kSaveAlways = "saveAlways";

}  // namespace

optionsfrm::optionsfrm(Host& host, QWidget* parent)
    : QDialog(parent), host_(host), ui_(std::make_unique<Ui::optionsfrm>()) {
    ui_->setupUi(this);
    connect(ui_->Check3, &QCheckBox::clicked, this, &optionsfrm::Check3_Click);
    connect(ui_->Command1, &QPushButton::clicked, this, &optionsfrm::Command1_Click);
    Form_Load();
}

optionsfrm::~optionsfrm() = default;

void optionsfrm::Form_Load() {
    ui_->Check3->setChecked(RegistryAPI(host_).readSettingNumber(vars::settingsKey(), kSaveAlways, 0) == 1);
}

// Stored at once: the editor reads the value when it closes and before each simulation.
void optionsfrm::Check3_Click() {
    RegistryAPI(host_).writeSettingNumber(vars::settingsKey(), kSaveAlways, ui_->Check3->isChecked() ? 1 : 0);
}

void optionsfrm::Command1_Click() {
    close();
}

}  // namespace orvanta
