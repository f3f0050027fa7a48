#include "app/ApplicationWindows.h"

#include <QApplication>
#include <QLabel>

#include "builder/PackageExe.h"
#include "builder/window/LetsPackage.h"
#include "controls/QtText.h"
#include "core/vars.h"
#include "editor/editionsfrm.h"
#include "editor/mainfrm.h"
#include "editor/mainfrmFields.h"
#include "editor/packages.h"
#include "editor/themesmanager.h"
#include "image/widget/aicAlphaImage.h"
#include "project/EditionSwitch.h"
#include "project/EditorControls.h"
#include "project/LineFile.h"
#include "project/MainSettingsFields.h"
#include "project/ProjectLoader.h"
#include "project/ProjectPaths.h"
#include "project/ProjectSaver.h"
#include "project/window/start.h"
#include "simulator/installPreview.h"

namespace orvanta {

ApplicationWindows::ApplicationWindows(Host& host, Dialogs& dialogs) : host_(host), dialogs_(dialogs) {}

ApplicationWindows::~ApplicationWindows() {
    fields_.reset();
    delete editor_.data();
    delete start_.data();
}

start* ApplicationWindows::startWindow() const {
    return start_;
}

mainfrm* ApplicationWindows::editorWindow() const {
    return editor_;
}

LetsPackage* ApplicationWindows::packageDialog() const {
    return letsPackage_;
}

installPreview* ApplicationWindows::simulator() const {
    return simulator_;
}

themesmanager* ApplicationWindows::backgroundsManager() const {
    return themes_;
}

MainHandOver ApplicationWindows::handOver() {
    // A marker whose project cannot be loaded leaves the user at the index rather than nowhere.
    return {[this] { showStart(); },
            [this](const std::string& folder) {
                if (!openProject(folder)) showStart();
            }};
}

bool ApplicationWindows::anyVisible() const {
    return (start_ != nullptr && start_->isVisible()) || (editor_ != nullptr && editor_->isVisible());
}

start& ApplicationWindows::ensureStart() {
    if (start_ == nullptr) {
        start_ = new start(host_, dialogs_, [this]() -> ProjectEditor& { return *this; });
        start_->setAttribute(Qt::WA_DeleteOnClose);
        QObject::connect(start_, &start::unloaded, start_, &QObject::deleteLater);
    }
    return *start_;
}

void ApplicationWindows::showStart() {
    ensureStart().show();
}

// Leaving the editor any way but to the index ends the program: the index goes too.
void ApplicationWindows::unloadStart() {
    if (start_ != nullptr) start_->deleteLater();
}

mainfrm& ApplicationWindows::ensureEditor() {
    if (editor_ != nullptr) return *editor_;
    mainfrmContext context(host_, dialogs_);
    context.project_saver = [this] {
        EditorContext saving = editorContext();
        project_saver(saving);
    };
    context.showPackages = [this] { showPackages(); };
    context.showEditions = [this] { showEditions(); };
    context.showStart = [this] { showStart(); };
    context.unloadStart = [this] { unloadStart(); };
    context.showLetsPackage = [this] { showLetsPackage(); };
    context.showInstallPreview = [this] { showInstallPreview(); };
    context.showBackgrounds = [this] { showBackgrounds(); };
    editor_ = new mainfrm(context);
    editor_->setAttribute(Qt::WA_DeleteOnClose);
    fields_ = std::make_unique<mainfrmFields>(*editor_,
                                              [this](const std::string& text) { showStatusOnStart(text); });
    QObject::connect(editor_, &QObject::destroyed, [this] { fields_.reset(); });
    return *editor_;
}

void ApplicationWindows::unloadEditor() {
    fields_.reset();
    delete editor_.data();
}

EditorContext ApplicationWindows::editorContext() {
    ensureEditor();
    return {host_, dialogs_, *fields_};
}

void ApplicationWindows::showStatusOnStart(const std::string& text) {
    if (start_ != nullptr) start_->showStatus(toQString(text));
}

void ApplicationWindows::beginNewProject(const std::string& name, const std::string& author,
                                         const std::string& projectRoot) {
    mainfrm& editor = ensureEditor();
    fields_->setText(ctrl::appName, name);
    showProjectCaption();
    if (!author.empty()) fields_->setText(ctrl::appAuthor, author);
    fields_->setText(ctrl::workingFolder, projectRoot);
    // The window's load filled the defaults that carry the name before there was one.
    editor.appname_updater();
}

void ApplicationWindows::showProjectCaption() {
    fields_->setCaption(ctrl::mainfrm, "Orvanta ~ " + fields_->text(ctrl::appName));
}

void ApplicationWindows::showLogo(const std::string& logoPath) {
    ensureEditor();
    fields_->loadPicture(ctrl::logo, logoPath);
    fields_->setVisible(ctrl::noway(1), false);
}

void ApplicationWindows::showBackground(const std::string& backgroundPath) {
    ensureEditor();
    fields_->loadPicture(ctrl::aicAlphaImage3, backgroundPath);
}

QWidget& ApplicationWindows::showNewProject() {
    mainfrm& editor = ensureEditor();
    editor.show();
    return editor;
}

void ApplicationWindows::saveNewProject() {
    EditorContext saving = editorContext();
    project_saver(saving);
}

// A failed load has told the user why; the editor goes, and the caller makes the index usable.
bool ApplicationWindows::openProject(const std::string& projectRoot) {
    EditorContext loading = editorContext();
    const LoadOutcome outcome = loadProject(loading, projectRoot);
    if (outcome == LoadOutcome::Refused) return false;  // a save or load still runs in this editor
    if (outcome != LoadOutcome::Loaded) {
        unloadEditor();
        return false;
    }
    showProjectCaption();
    editor_->show();
    editor_->setEnabled(true);
    if (start_ != nullptr) {
        start_->hide();
        start_->setEnabled(true);
    }
    return true;
}

void ApplicationWindows::showPackages() {
    mainfrm& editor = ensureEditor();
    PackagesContext context{
        [this] { return fields_->text(ctrl::workingFolder); },
        [this](const std::string& caption) { fields_->setCaption(ctrl::Command35, caption); },
        [&editor](const std::string& tip) { editor.showTip(tip); }};
    packages window(host_, dialogs_, std::move(context), packageTables, &editor);
    window.exec();
}

void ApplicationWindows::showEditions() {
    mainfrm& editor = ensureEditor();
    EditionsContext context{
        [this] { return projectRootOnDisk(host_, fields_->text(ctrl::workingFolder)); },
        [this] { return fields_->text(ctrl::workingFolder); },
        [this] {
            return WorkingSetSource{projectRootOnDisk(host_, fields_->text(ctrl::workingFolder)),
                                    fields_->text(ctrl::appName), fields_->text(ctrl::fullLicenseFile),
                                    fields_->text(ctrl::resumedLicenseText), fields_->text(ctrl::anyFile)};
        },
        [this](std::string edition, std::string version) { switchWorkingSet(edition, version); }};
    editionsfrm window(host_, dialogs_, std::move(context), &editor);
    window.exec();
}

// One package dialog at a time, without modality, owned by the editor.
void ApplicationWindows::showLetsPackage() {
    mainfrm& editor = ensureEditor();
    if (letsPackage_ == nullptr) {
        LetsPackageContext context{host_, dialogs_,
                                   [this](const BuildSetup& setup, BuildProgress& progress) {
                                       EditorContext building = editorContext();
                                       packageexe(building, setup, progress, "\\files");
                                   },
                                   &editor.packagerItemIndex};
        letsPackage_ = new LetsPackage(std::move(context), &editor);
    }
    letsPackage_->show();
    letsPackage_->raise();
}

void ApplicationWindows::switchWorkingSet(std::string edition, std::string version) {
    EditorContext switching = editorContext();
    if (changes_edition(switching, edition, version) == LoadOutcome::Loaded) showProjectCaption();
}

}  // namespace orvanta

namespace orvanta {

// One simulator at a time, over the project as it was saved a moment ago.
installPreview* ApplicationWindows::openSimulator() {
    mainfrm& editor = ensureEditor();
    if (simulator_ != nullptr) simulator_->closeWindow();
    installPreviewContext context(host_, dialogs_);
    const std::string name = fields_->text(ctrl::appName);
    context.project = {name, projectRoot(vars::workspaceFolder, name), fields_->text(ctrl::workingFolder),
                       fields_->text(ctrl::introText), fields_->text(ctrl::tipsText)};
    context.unsavedChanges = [this] { return settingsChangedSinceSave(); };
    context.endProgram = [] { QApplication::exit(0); };
    simulator_ = new installPreview(std::move(context), &editor);
    simulator_->setAttribute(Qt::WA_DeleteOnClose);
    if (!simulator_->start()) return nullptr;
    return simulator_;
}

void ApplicationWindows::showInstallPreview() {
    installPreview* simulator = openSimulator();
    if (simulator == nullptr) return;
    simulator->move(editorWindow()->geometry().center() - simulator->rect().center());
    simulator->show();
    simulator->raise();
}

// One backgrounds manager at a time; the simulator is its viewer.
void ApplicationWindows::showBackgrounds() {
    mainfrm& editor = ensureEditor();
    if (themes_ != nullptr) {
        themes_->raise();
        themes_->activateWindow();
        return;
    }
    themesmanagerContext context(host_, dialogs_);
    context.workingFolder = fields_->text(ctrl::workingFolder);
    // Looked up before the manager exists: it has a picture of the same name.
    context.editorBackground = editor.findChild<aicAlphaImage*>(QStringLiteral("aicAlphaImage3"));
    context.preview = &backgroundViewer_;
    themes_ = new themesmanager(std::move(context), &editor);
    themes_->setAttribute(Qt::WA_DeleteOnClose);
    themes_->show();
}

bool ApplicationWindows::settingsChangedSinceSave() {
    if (!fields_) return false;
    const std::string file = fields_->text(ctrl::workingFolder) + "\\mainsettings.cfg";
    const auto saved = readLines(host_, file, kContentListLines);
    if (!saved) return true;
    std::string savedText;
    for (const std::string& line : *saved) savedText += line + "\r\n";
    // The any-file line depends on a file that may have gone since; either form counts as saved.
    return savedText != mainSettingsText(mainSettingsOf(*fields_, true)) &&
           savedText != mainSettingsText(mainSettingsOf(*fields_, false));
}

}  // namespace orvanta
