#include "project/window/start.h"

#include <QApplication>
#include <QMouseEvent>

#include "controls/PlaceholderText.h"
#include "controls/about.h"
#include "controls/QtText.h"
#include "core/RegistryAPI.h"
#include "core/commonFunctions.h"
#include "core/modShellAndWait.h"
#include "core/vars.h"
#include "image/widget/aicAlphaImage.h"
#include "platform/WindowsPath.h"
#include "project/FolderCopy.h"
#include "project/MarkerFile.h"
#include "project/ProjectIndex.h"
#include "project/ProjectPaths.h"
#include "project/window/CopyProgress.h"
#include "project/window/ElidedLabel.h"
#include "project/window/ProjectEditor.h"
#include "ui_start.h"

namespace orvanta {

namespace {

const QString kNamePlaceholder = QStringLiteral("Application name");
const QString kAuthorPlaceholder = QStringLiteral("Author/Publisher name");
const QString kSourcePlaceholder =
    QStringLiteral("browse for the path with the application files (optional)");
const QString kEditionPlaceholder = QStringLiteral("Edition name");
const QString kVersionPlaceholder = QStringLiteral("Version");
const QString kProjectKind = QStringLiteral("Single executable app");
// How often a copy lets the windows repaint and take a click on its Cancel button: every so many
// files, and after so long whatever the count.
constexpr std::size_t kCopyPumpFiles = 64;
constexpr std::uint64_t kCopyPumpMilliseconds = 40;

void fillPanel(QWidget* panel) {
    QPalette palette = panel->palette();
    palette.setColor(QPalette::Window, QColor(250, 250, 250));
    panel->setPalette(palette);
    panel->setAutoFillBackground(true);
}

}  // namespace

start::start(Host& host, Dialogs& dialogs, std::function<ProjectEditor&()> editor, QWidget* parent)
    : QWidget(parent),
      host_(host),
      dialogs_(dialogs),
      editor_(std::move(editor)),
      ui_(std::make_unique<Ui::start>()) {
    ui_->setupUi(this);
    // Long names and texts are shortened, never allowed to widen the window.
    setFixedWidth(std::max(width(), minimumSizeHint().width()));
    ui_->Combo1->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    ui_->Combo1->setMinimumContentsLength(16);
    name_ = new PlaceholderText(ui_->Text1, kNamePlaceholder);
    author_ = new PlaceholderText(ui_->Text3, kAuthorPlaceholder);
    source_ = new PlaceholderText(ui_->Text2, kSourcePlaceholder);
    ui_->Text2->setCursorPosition(0);  // the start of a long placeholder or path says the most
    connect(ui_->Text1, &QLineEdit::textChanged, this, &start::Text1_Change);
    connect(ui_->Text3, &QLineEdit::textChanged, this, [this] {
        if (!author_->showsPlaceholder()) PlaceholderText::setPlaceholderLook(ui_->Text3, false);
    });
    connect(ui_->Combo1, &QComboBox::activated, this, &start::Combo1_Click);
    connect(ui_->Command1, &QPushButton::clicked, this, &start::Command1_Click);
    connect(ui_->Command3, &QPushButton::clicked, this, &start::Command3_Click);
    connect(ui_->Command4, &QPushButton::clicked, this, &start::Command4_Click);
    connect(ui_->command5, &QPushButton::clicked, this, &start::command5_Click);
    connect(ui_->Label3, &QLabel::linkActivated, this, &start::Label3_Click);
    connect(ui_->Check1, &QCheckBox::clicked, this, &start::Check1_Click);
    connect(ui_->aicAlphaImage1, &aicAlphaImage::Click, this, &start::aicAlphaImage1_Click);
    connect(ui_->Text4, &QLineEdit::textEdited, this,
            [this] { advancedFieldEdited(ui_->Text4, QStringLiteral("Edit"), kEditionPlaceholder); });
    connect(ui_->Text5, &QLineEdit::textEdited, this,
            [this] { advancedFieldEdited(ui_->Text5, QStringLiteral("Vers"), kVersionPlaceholder); });
    setUpTips();
    Form_Load();
}

// Children go after this class's part is gone; their last signals (a field losing the focus puts
// its placeholder back) must not reach it.
start::~start() {
    for (QObject* child : findChildren<QObject*>()) child->disconnect(this);
}

ElidedLabel* start::loading() const {
    return ui_->loading;
}

void start::showStatus(const QString& text) {
    ui_->loading->setWholeText(text);
}

void start::Form_Load() {
    setWindowIcon(QApplication::windowIcon());
    fillPanel(ui_->Picture1);
    fillPanel(ui_->Picture2);
    listProjects();
    ui_->Label8->setText(QStringLiteral("Orvanta ") + QString::fromLatin1(kOrvantaVersion));
    ui_->Combo2->clear();
    ui_->Combo2->addItem(kProjectKind);
    ui_->Combo2->setCurrentIndex(0);
}

void start::Form_Activate() {
    if (ui_->Combo1->count() == 0) return;
    ui_->Combo1->clear();
    listProjects();
}

// The list anew, and the selection of the last session if it still points into the list; a stale
// index selects nothing, without a word.
void start::listProjects() {
    for (const std::string& name : orvanta::listProjects(host_, vars::workspaceFolder))
        ui_->Combo1->addItem(toQString(name));
    const std::int32_t last = RegistryAPI(host_).readSettingNumber(vars::settingsKey(), "lastproject", -1);
    if (last < 0 || last >= ui_->Combo1->count()) {
        ui_->Combo1->setCurrentIndex(-1);
        return;
    }
    ui_->Combo1->setCurrentIndex(last);
    Combo1_Click();
}

std::string start::selectedProject() const {
    return fromQString(ui_->Combo1->currentText());
}

void start::Combo1_Click() {
    const std::string root = projectRoot(vars::workspaceFolder, selectedProject());
    ui_->logo->ClearImage();
    ui_->logo->LoadImage_FromFile(inFolder(root, projectfile::kLogo));
    if (const auto lines = projectPreviewLines(host_, root)) {
        ui_->Label5->setWholeText(toQString(lines->first));
        ui_->Label7->setWholeText(toQString(lines->second));
    }
    RegistryAPI(host_).writeSettingNumber(vars::settingsKey(), "lastproject", ui_->Combo1->currentIndex());
    ui_->Command4->setEnabled(true);
}

void start::Text1_Change() {
    const std::string text = fromQString(ui_->Text1->text());
    if (!name_->showsPlaceholder()) PlaceholderText::setPlaceholderLook(ui_->Text1, false);
    const ProjectNameCheck check =
        checkProjectName(host_, vars::workspaceFolder, text, fromQString(kNamePlaceholder));
    nameVerdict_ = toQString(nameVerdict(check, text));
    showStatus(nameVerdict_);
    if (check == ProjectNameCheck::Empty) return;
    ui_->Command1->setEnabled(check == ProjectNameCheck::Acceptable);
    ui_->Command3->setEnabled(check == ProjectNameCheck::Acceptable);
}

std::string start::nameVerdict(ProjectNameCheck check, const std::string& name) const {
    switch (check) {
        case ProjectNameCheck::Taken:
            return "A project with this name already exists!";
        case ProjectNameCheck::Unusable:
            return unusableNameText(name);
        case ProjectNameCheck::TooLong:
            return tooLongNameText(vars::workspaceFolder, name);
        default:
            return {};
    }
}

void start::Command1_Click() {
    const std::string name = fromQString(ui_->Text1->text());
    const std::string& workspace = vars::workspaceFolder;
    if (checkProjectName(host_, workspace, name, fromQString(kNamePlaceholder)) !=
        ProjectNameCheck::Acceptable)
        return;
    if (const auto failed = createProjectTree(host_, workspace, name)) {
        dialogs_.messageBox(
            {folderFailureText(*failed), MessageButtons::Ok, MessageIcon::Critical, "Orvanta"});
        return;
    }
    const std::string root = projectRoot(workspace, name);
    ProjectEditor& editor = editor_();
    editor.beginNewProject(
        name, author_->showsPlaceholder() ? std::string() : fromQString(ui_->Text3->text()), root);
    const std::string defaultLogo = host_.applicationFolder() + "\\i\\default.png";
    if (fileExists(host_, defaultLogo) && host_.copyFile(defaultLogo, inFolder(root, projectfile::kLogo)))
        editor.showLogo(inFolder(root, projectfile::kLogo));
    const std::string background = inFolder(root, projectfile::kBackground);
    const std::string defaultBackground = inFolder(backgroundsFolder(workspace), "Default.jpg");
    if (fileExists(host_, background) == kFalse && fileExists(host_, defaultBackground) != kFalse)
        host_.copyFile(defaultBackground, background);
    editor.showBackground(background);
    QWidget& editorWindow = editor.showNewProject();
    hide();
    // The first save lists "\files", so it waits for the copy; what the copy missed is told after
    // the save, of which the report speaks.
    const std::string missed =
        source_->showsPlaceholder() ? std::string() : copyApplicationFiles(editorWindow, root);
    editor.saveNewProject();
    if (!missed.empty())
        dialogs_.messageBox({missed, MessageButtons::Ok, MessageIcon::Exclamation, "Orvanta"});
    emit unloaded();
}

// Copied here file by file rather than by an xcopy batch file: only so can the files be counted,
// the bar moved, the copy stopped between two files, and the save be sure the copy has ended.
std::string start::copyApplicationFiles(QWidget& editor, const std::string& projectRoot) {
    CopyProgress progress(dialogs_, &editor);
    progress.show();
    host_.processPendingMessages();
    std::uint64_t lastPump = host_.tickMilliseconds();
    const std::string target = inFolder(projectRoot, projectfolder::kFiles);
    const FolderCopyOutcome outcome =
        copyFolderContents(host_, sourceFolder_, target, [&](std::size_t done, std::size_t total) {
            const std::uint64_t now = host_.tickMilliseconds();
            if (done % kCopyPumpFiles == 0 || done == total || now - lastPump >= kCopyPumpMilliseconds) {
                progress.showProgress(done, total);
                host_.processPendingMessages();
                lastPump = now;
            }
            return !progress.cancelled();
        });
    progress.hide();
    return folderCopyReport(outcome, sourceFolder_, target);
}

// A new account may have no documents folder yet: the browser then opens on the nearest folder
// above it that exists, the home folder, rather than on the root of the drive.
std::string start::nearestExistingFolder(std::string folder) const {
    while (folderExists(host_, folder) == kFalse && folder.find('\\') != std::string::npos)
        folder = parentFolder(folder);
    return folder;
}

void start::Command3_Click() {
    if (name_->showsPlaceholder()) return;
    const FolderBrowserAnswer answer = dialogs_.browseForFolder(
        {"Select files folder to copy for " + fromQString(ui_->Text1->text()) +
             " setup project. All the files, directories and sub directories will be copied.",
         nearestExistingFolder(host_.specialFolder(5)), false, false});
    if (answer.folder.empty()) return;
    sourceFolder_ = answer.folder;
    ui_->Text2->setText(toQString(sourceFolder_));
    PlaceholderText::setPlaceholderLook(ui_->Text2, false);
}

void start::Command4_Click() {
    if (ui_->Combo1->currentText().isEmpty()) return;
    setEnabled(false);
    showStatus(QStringLiteral("...loading frontend window"));
    host_.processPendingMessages();
    const std::string name = selectedProject();
    const std::string root = projectRoot(vars::workspaceFolder, name);
    readMarker(host_, markerPath(root, name));  // read as the format wants it; nothing uses it
    // A failed load has told the user why; the index is usable again for another choice.
    if (!editor_().openProject(root)) showStatus({});
    setEnabled(true);
    host_.processPendingMessages();
}

void start::command5_Click() {
    if (ui_->Combo1->currentText().isEmpty()) return;
    const std::string content =
        "Are you sure you want to remove all the files from this project? This operation is irreversible.";
    const DialogAnswer answer = notifyUser(
        host_, dialogs_,
        {"Remove selected project", content, "Orvanta", MessageButtons::YesNo, MessageIcon::Question},
        content);
    if (answer != DialogAnswer::Yes) return;
    const std::string& workspace = vars::workspaceFolder;
    const std::string batch = deleteProjectBatch(workspace);
    host_.writeFileAtomic(batch, deleteProjectBatchText(workspace, selectedProject()));
    showStatus(QStringLiteral("Removing your project. please wait..."));
    shellAndWait(host_, "\"" + batch + "\"", kWindowHidden, 0);
    ui_->Combo1->clear();
    listProjects();
    showStatus(QStringLiteral("Project removel successfuly!"));
    if (ui_->Combo1->count() == 0) return;
    ui_->Combo1->setCurrentIndex(ui_->Combo1->count() - 1);
    Combo1_Click();
}

void start::Label3_Click() {
    ui_->Label3->hide();
    ui_->Check1->show();
    ui_->Check1->setChecked(true);
    for (auto [field, placeholder] :
         {std::pair{ui_->Text4, kEditionPlaceholder}, {ui_->Text5, kVersionPlaceholder}}) {
        field->setText(placeholder);
        PlaceholderText::setPlaceholderLook(field, true);
        field->show();
    }
    ui_->Text4->setFocus();
}

void start::Check1_Click() {
    if (ui_->Check1->isChecked()) return;
    ui_->Text4->hide();
    ui_->Text5->hide();
    ui_->Check1->hide();
    ui_->Label3->show();
    ui_->Text5->setText(kVersionPlaceholder);
    ui_->Text4->setText(kEditionPlaceholder);
}

// Typing into a field that still shows its placeholder: the placeholder goes, what was typed stays.
void start::advancedFieldEdited(QLineEdit* field, const QString& word, const QString& placeholder) {
    QString text = field->text();
    if (!text.startsWith(word)) return;
    text.remove(text.indexOf(placeholder), text.contains(placeholder) ? placeholder.size() : 0);
    field->setText(text);
    field->setCursorPosition(static_cast<int>(text.size()));
    PlaceholderText::setPlaceholderLook(field, false);
}

void start::aicAlphaImage1_Click() {
    shellOpen(host_, dialogs_, myInstallersFolder(vars::workspaceFolder) + "\\", "");
}

void start::setUpTips() {
    tips_ = {
        {ui_->Text1, QStringLiteral("The name of the application the installer is made for")},
        {ui_->Text3, QStringLiteral("The author or publisher of the application")},
        {ui_->Text2, QStringLiteral("The folder whose files and subfolders are copied into the project")},
        {ui_->Command3, QStringLiteral("Browse for the folder with the application files")},
        {ui_->Command1, QStringLiteral("Create the project")},
        {ui_->Combo1, QStringLiteral("The projects saved in your workspace")},
        {ui_->Command4, QStringLiteral("Open the selected project")},
        {ui_->command5, QStringLiteral("Remove selected project")},
        {ui_->aicAlphaImage1, QStringLiteral("Open project folder index")},
        {ui_->Label3, QStringLiteral("Use editions management")},
        {ui_->Text4, QStringLiteral("Application edition name if applicable")},
        {ui_->Text5, QStringLiteral("application's version")}};
    for (const auto& [widget, tip] : tips_) widget->installEventFilter(this);
    setMouseTracking(true);
    ui_->Picture1->setMouseTracking(true);
    ui_->Picture2->setMouseTracking(true);
}

bool start::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Enter) {
        const auto tip = tips_.find(watched);
        if (tip != tips_.end()) showStatus(tip->second);
    }
    return QWidget::eventFilter(watched, event);
}

// Over the background the tips go; what the typed name is told stays until the name changes.
void start::mouseMoveEvent(QMouseEvent* event) {
    showStatus(nameVerdict_);
    QWidget::mouseMoveEvent(event);
}

void start::changeEvent(QEvent* event) {
    if (event->type() == QEvent::ActivationChange && isActiveWindow()) Form_Activate();
    QWidget::changeEvent(event);
}

}  // namespace orvanta
