// Saving, the simulator's question and leaving the window: with the setting "saveAlways" at 1
// the user is asked first, otherwise the project is saved without a word.
#include <QCloseEvent>
#include <QTimer>

#include "core/RegistryAPI.h"
#include "core/commonFunctions.h"
#include "core/vars.h"
#include "editor/FormText.h"
#include "editor/mainfrm.h"
#include "project/ProjectTask.h"
#include "ui_mainfrm.h"

namespace orvanta {

namespace {

constexpr const char* kStartMenu = "Start menu";
constexpr int kCloseRetryMilliseconds = 100;

bool asksBeforeSaving(Host& host) {
    return RegistryAPI(host).readSettingNumber(vars::settingsKey(), "saveAlways", 0) == 1;
}

}  // namespace

bool mainfrm::askToSave(const std::string& question) {
    TaskDialogRequest task;
    task.instruction = "Save project";
    task.content = question;
    task.title = "Orvanta";
    task.buttons = MessageButtons::YesNo;
    task.icon = MessageIcon::Question;
    return notifyUser(context_.host, context_.dialogs, task, question) == DialogAnswer::Yes;
}

void mainfrm::saveProject() {
    if (context_.project_saver) context_.project_saver();
}

void mainfrm::pre_Click() {
    if (!context_.showInstallPreview) return;
    if (asksBeforeSaving(context_.host) &&
        !askToSave(
            "Do you want to save the current project changes? Project must be saved before simulation."))
        return;  // no simulation of an unsaved project
    saveProject();
    context_.showInstallPreview();
}

// There is no Cancel: the window goes in every case, and the link decides where the user lands.
// A close that arrives while a save, load or switch lets events run waits for it to end, so the
// window never goes with half its fields written.
void mainfrm::closeEvent(QCloseEvent* event) {
    if (ProjectTask::anyRunning()) {
        event->ignore();
        QTimer::singleShot(kCloseRetryMilliseconds, this, &QWidget::close);
        return;
    }
    if (!asksBeforeSaving(context_.host) || askToSave("Do you want to save the current project changes?"))
        saveProject();
    const bool toStart = textOf(*ui_->Label21) == kStartMenu;
    event->accept();
    if (toStart) {
        if (context_.showStart) context_.showStart();
    } else if (context_.unloadStart) {
        context_.unloadStart();
    }
}

void mainfrm::Label21_Click() {
    setTextOf(*ui_->Label21, kStartMenu);
    close();
}

}  // namespace orvanta
