// The packages manager: its making, the load step, and the events of the list and the fields.
#include "editor/packages.h"

#include <QEvent>
#include <QLayout>

#include "controls/ControlError.h"
#include "controls/QtText.h"
#include "controls/ctlListView.h"
#include "core/RuntimeError.h"
#include "core/commonFunctions.h"
#include "editor/Mnemonics.h"
#include "editor/rules/PackageLocation.h"
#include "ui_packages.h"

namespace orvanta {

namespace {

const QColor kFrameLineColour(130, 135, 144);

}  // namespace

packages::packages(Host& host, Dialogs& dialogs, PackagesContext context, PackageTables& tables,
                   QWidget* parent)
    : QDialog(parent),
      host_(host),
      dialogs_(dialogs),
      context_(std::move(context)),
      tables_(tables),
      ui_(std::make_unique<Ui::packages>()) {
    ui_->setupUi(this);
    // The layout holds a stand-in where the list goes, as the list control needs the dialogs
    // service to be made.
    List1_ = new ctlListView(dialogs_, this);
    List1_->setMinimumSize(ui_->List1->minimumSize());
    delete ui_->layoutList->replaceWidget(ui_->List1, List1_);
    delete ui_->List1;
    ui_->List1 = nullptr;
    List1_->setObjectName(QStringLiteral("List1"));

    connect(List1_, &ctlListView::ItemClick, this, &packages::List1_ItemClick);
    connect(List1_, &ctlListView::ItemCheck, this, &packages::List1_ItemCheck);
    connect(ui_->Check1, &QCheckBox::clicked, this, &packages::Check1_Click);
    connect(ui_->Check2, &QCheckBox::clicked, this, &packages::Check2_Click);
    connect(ui_->Check3, &QCheckBox::clicked, this, &packages::Check3_Click);
    connect(ui_->Combo5, &QComboBox::editTextChanged, this, &packages::Combo5_Change);
    for (QLineEdit* field : {ui_->Text1, ui_->Text2, ui_->Text3})
        connect(field, &QLineEdit::textChanged, this, &packages::Field_Change);
    connect(ui_->Command1, &QPushButton::clicked, this, &packages::Command1_Click);
    connect(ui_->Command2, &QPushButton::clicked, this, &packages::Command2_Click);
    connect(ui_->Command3, &QPushButton::clicked, this, &packages::Command3_Click);
    connect(ui_->Command4, &QPushButton::clicked, this, &packages::Command4_Click);
    connect(ui_->Command5, &QPushButton::clicked, this, &packages::Command5_Click);
    ui_->Text3->installEventFilter(this);
    ui_->Combo5->installEventFilter(this);
    // "+" and "-" have no letter; the captions they change into are set in their place.
    MnemonicLetters letters;
    giveMnemonics(*this, letters);
    Form_Load();
}

packages::~packages() = default;

void packages::Form_Load() {
    List1_->create();
    List1_->setCheckboxes(true);
    List1_->setView(LVS_REPORT);
    List1_->setFullRowSelect(true);
    List1_->setHideColumnHeaders(true);
    List1_->ColumnHeadersAdd("tester", 200);
    List1_->setStyleSheet(QStringLiteral("#List1 { border: 1px solid %1; }").arg(kFrameLineColour.name()));
    // Filling the list of a combo box leaves its text as it was.
    {
        const QSignalBlocker quiet(ui_->Combo5);
        ui_->Combo5->clear();
        for (std::string_view token : kLocationTokens) ui_->Combo5->addItem(toQString(std::string(token)));
        ui_->Combo5->setCurrentIndex(-1);
    }
    trapped([this] { readPackages(); });
}

void packages::done(int result) {
    Form_Unload();
    QDialog::done(result);
}

void packages::Form_Unload() {
    if (context_.setManagerCaption)
        context_.setManagerCaption("Manage packages \r\n" + std::to_string(packageCount_) + " package(s)");
}

bool packages::eventFilter(QObject* watched, QEvent* event) {
    if (watched == ui_->Text3 && event->type() == QEvent::FocusIn) Text3_GotFocus();
    if (watched == ui_->Combo5 && (event->type() == QEvent::Enter || event->type() == QEvent::MouseMove))
        Combo5_MouseMove();
    return QDialog::eventFilter(watched, event);
}

// ---- Reading the list

void packages::readPackages() {
    const std::string path = packagesFile();
    if (fileExists(host_, path) == kFalse) return;
    const auto count = tables_.read(host_, path);
    if (!count) return;
    packageCount_ = static_cast<std::int16_t>(*count);
    for (int index = 0; index < packageCount_; ++index) {
        const Package& package = tables_.slot(index);
        List1_->ListItemsAdd(
            index, package.name, -1,
            packageFlagSet(package.installByDefault) ? kStateImageChecked : kStateImageUnchecked);
    }
}

void packages::readBack() {
    List1_->ListItemsClear();
    readPackages();
}

// ---- The list

void packages::List1_ItemClick(int index) {
    trapped([this, index] {
        ui_->Command5->setEnabled(true);
        // Enabled before the fill, so that the location's rule has the last word on Check3.
        enableEditControls(true);
        fillFields(index, true);
        ui_->Command4->setEnabled(false);
        if (List1_->SelectedItemIndex() != -1) ui_->Command3->setEnabled(true);
    });
}

void packages::List1_ItemCheck(int index, bool checked) {
    trapped([this, index, checked] {
        // A click on a box acts on its row: the row becomes the selected one, so that the mark,
        // the fields and a later save all concern the same package.
        if (const int selected = List1_->SelectedItemIndex(); selected != index) {
            List1_->setListItemsSelected(selected, false);
            List1_->setListItemsSelected(index, true);
            List1_ItemClick(index);
        }
        ui_->Command4->setEnabled(true);
        // The list's own truth words, not "1"/"0": the next save of the row's fields puts the
        // flag back in its usual form.
        tables_.slot(index).installByDefault = checked ? "True" : "False";
        fillFields(index, !checkFromForm_);
        checkFromForm_ = false;
    });
}

void packages::fillFields(int index, bool withCheck1) {
    const Package& package = tables_.slot(index);
    ui_->Text1->setText(toQString(package.name));
    ui_->Combo5->setEditText(toQString(package.installLocation));
    ui_->Text2->setText(toQString(package.description));
    if (withCheck1) ui_->Check1->setChecked(packageFlagSet(package.installByDefault));
    ui_->Check2->setChecked(packageFlagSet(package.required));
    ui_->Text3->setText(toQString(package.occupiedSpace));
    ui_->Check3->setChecked(packageFlagSet(package.removeByDefault));
}

// ---- The fields

void packages::Check1_Click() {
    checkFromForm_ = true;
    const int selected = List1_->SelectedItemIndex();
    const bool ticked = ui_->Check1->isChecked();
    if (selected != -1) tables_.slot(selected).installByDefault = ticked ? "1" : "0";
    if (!ticked) ui_->Check2->setChecked(false);
    Field_Change();
}

void packages::Check2_Click() {
    // A required package is always installed by default.
    if (ui_->Check2->isChecked() && !ui_->Check1->isChecked()) {
        ui_->Check1->setChecked(true);
        Check1_Click();
    }
    Field_Change();
}

void packages::Check3_Click() {
    Field_Change();
}

void packages::Combo5_Change() {
    const RemoveByDefaultBox box = removeByDefaultFor(fromQString(ui_->Combo5->currentText()));
    ui_->Check3->setChecked(box.ticked);
    ui_->Check3->setEnabled(box.enabled);
    Field_Change();
}

void packages::Field_Change() {
    if (!inAddMode()) ui_->Command4->setEnabled(true);
}

void packages::Text3_GotFocus() {
    ui_->Text3->setText(toQString(packageFolderSize()));
}

void packages::Combo5_MouseMove() {
    if (context_.showTip) context_.showTip(kPackagesTipCombo5);
}

void packages::enableEditControls(bool enabled) {
    for (QWidget* control : std::initializer_list<QWidget*>{ui_->Text1, ui_->Combo5, ui_->Text2, ui_->Text3,
                                                            ui_->Check3, ui_->Check2, ui_->Check1})
        control->setEnabled(enabled);
}

// ---- Helpers

bool packages::inAddMode() const {
    return ui_->Command2->text() == QLatin1String("OK");
}

void packages::message(std::string_view text) {
    dialogs_.messageBox({std::string(text), MessageButtons::Ok, MessageIcon::Exclamation, "Orvanta"});
}

void packages::trapped(const std::function<void()>& code) {
    try {
        code();
    } catch (const RuntimeError& error) {
        reportRuntimeError(dialogs_, "Orvanta", error.number(), error.description());
    }
}

}  // namespace orvanta
