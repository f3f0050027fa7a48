// The "Package it!" image: the checks of the form, then the package dialog; and the timers of
// the per-entry packing loop, which nothing in the editor starts.
#include <QComboBox>
#include <QLineEdit>
#include <QTimer>

#include "builder/PackageChecks.h"
#include "builder/PackageDialogModel.h"
#include "editor/mainfrm.h"
#include "editor/mainfrmFields.h"
#include "ui_mainfrm.h"

namespace orvanta {

namespace {

// Where a failed check takes the user: a page shown without touching the tab strip, and the
// field in question with its caret placed.
class EditorCheckedForm : public CheckedForm {
public:
    EditorCheckedForm(mainfrm& window, mainfrmFields& fields) : window_(window), fields_(fields) {}

    void showPage(int page) override { window_.showPage(page); }

    void focus(ControlName control, Caret caret) override {
        QWidget* field = fields_.find(control);
        if (field == nullptr) return;
        showPageHolding(*field);
        if (auto* list = qobject_cast<QComboBox*>(field); list != nullptr && caret == Caret::FirstListEntry)
            list->setCurrentIndex(0);
        if (auto* box = qobject_cast<QLineEdit*>(field); box != nullptr)
            box->setCursorPosition(caret == Caret::Start ? 0 : static_cast<int>(box->text().size()));
        field->setFocus(Qt::OtherFocusReason);
    }

private:
    // A field is only reached on its own page: "Main executable name:" is on the installer's page,
    // where the check's page would leave it out of sight.
    void showPageHolding(const QWidget& field) {
        Ui::mainfrm& ui = window_.controls();
        const QWidget* pages[] = {ui.Picture1, ui.Picture2, ui.Picture3};
        for (int page = 1; page <= 3; ++page)
            if (pages[page - 1]->isAncestorOf(&field) && !pages[page - 1]->isVisible())
                window_.showPage(page);
    }

    mainfrm& window_;
    mainfrmFields& fields_;
};

}  // namespace

void mainfrm::packageit_Click() {
    mainfrmFields fields(*this);
    EditorCheckedForm form(*this, fields);
    if (!runPackageChecks(context_.host, context_.dialogs, fields, form).passed()) return;
    if (context_.showLetsPackage) context_.showLetsPackage();
}

void mainfrm::setTimer3Enabled(bool enabled) {
    if (enabled)
        Timer3->start();
    else
        Timer3->stop();
}

void mainfrm::setTimer2Enabled(bool enabled) {
    if (enabled)
        Timer2->start();
    else
        Timer2->stop();
}

// No progress window stands beside the loop, so each entry it packs goes to the title line.
void mainfrm::Timer3_Timer() {
    mainfrmFields fields(*this);
    PerEntryPacker packer(context_.host, fields, *this, packagerItemIndex);
    packer.Timer3_Timer(currentBuildSetup(context_.host),
                        [this](const std::string& entry) { showTitle(entry); });
}

}  // namespace orvanta
