#include "editor/editionsfrm.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include "controls/QtText.h"
#include "project/ProjectIndex.h"
#include "project/ProjectPaths.h"

namespace orvanta {

namespace {

constexpr const char* kTitle = "Editions and versions";

}  // namespace

editionsfrm::editionsfrm(Host& host, Dialogs& dialogs, EditionsContext context, QWidget* parent)
    : QDialog(parent), host_(host), dialogs_(dialogs), context_(std::move(context)) {
    setWindowTitle(QString::fromLatin1(kTitle));
    buildLayout();
    connect(Command1, &QPushButton::clicked, this, &editionsfrm::Command1_Click);
    connect(Command2, &QPushButton::clicked, this, &editionsfrm::Command2_Click);
    connect(Command3, &QPushButton::clicked, this, &editionsfrm::Command3_Click);
    connect(Command4, &QPushButton::clicked, this, &QDialog::close);
    connect(List1, &QListWidget::currentRowChanged, this, [this] { List1_Changed(); });
    connect(List1, &QListWidget::itemDoubleClicked, this, &editionsfrm::Command3_Click);
    refresh(openSubPath());
}

std::string editionsfrm::openSubPath() const {
    const std::string root = context_.projectRoot();
    const std::string folder = context_.workingFolder();
    return folder.starts_with(root) ? folder.substr(root.size()) : std::string();
}

void editionsfrm::buildLayout() {
    auto* intro = new QLabel(QStringLiteral(
        "Each edition of your application, and each version of an edition, keeps its own settings, "
        "pictures, packages and fonts. A new one starts as a copy of the project's saved settings."));
    intro->setWordWrap(true);
    List1 = new QListWidget;
    Label2 = new QLabel;
    Text1 = new QLineEdit;
    // The project's name was checked against the longest path with room for names this long.
    Text1->setMaxLength(static_cast<int>(kLongestEditionName));
    Text2 = new QLineEdit;
    Text2->setMaxLength(static_cast<int>(kLongestVersionName));
    Text2->setPlaceholderText(toQString(std::string(kNoVersions)));
    Command1 = new QPushButton(QStringLiteral("Create"));
    Command2 = new QPushButton(QStringLiteral("Delete"));
    Command3 = new QPushButton(QStringLiteral("Open"));
    Command4 = new QPushButton(QStringLiteral("Close"));

    auto* form = new QFormLayout;
    form->addRow(QStringLiteral("New edition:"), Text1);
    form->addRow(QStringLiteral("Version:"), Text2);
    auto* listButtons = new QHBoxLayout;
    listButtons->addWidget(Command3);
    listButtons->addWidget(Command2);
    listButtons->addStretch();
    listButtons->addWidget(Command4);
    auto* createRow = new QHBoxLayout;
    createRow->addLayout(form, 1);
    createRow->addWidget(Command1, 0, Qt::AlignBottom);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(intro);
    layout->addWidget(List1, 1);
    layout->addWidget(Label2);
    layout->addLayout(listButtons);
    layout->addLayout(createRow);
    resize(460, 380);
}

std::string editionsfrm::describe(const WorkingSet& workingSet) {
    if (workingSet.subPath.empty()) return "The project itself (no edition)";
    if (workingSet.version == kNoVersions) return workingSet.edition;
    return workingSet.edition + ", version " + workingSet.version;
}

bool editionsfrm::isOpen(const WorkingSet& workingSet) const {
    return context_.workingFolder() == context_.projectRoot() + workingSet.subPath;
}

void editionsfrm::refresh(const std::string& selectSubPath) {
    sets_ = listWorkingSets(host_, context_.projectRoot());
    List1->clear();
    Label2->clear();
    int selectRow = 0;
    for (std::size_t index = 0; index < sets_.size(); ++index) {
        const WorkingSet& workingSet = sets_[index];
        auto* item = new QListWidgetItem(toQString(describe(workingSet)), List1);
        if (isOpen(workingSet)) {
            QFont font = item->font();
            font.setBold(true);
            item->setFont(font);
            Label2->setText(QStringLiteral("Open in the editor: ") + toQString(describe(workingSet)));
        }
        if (workingSet.subPath == selectSubPath) selectRow = static_cast<int>(index);
    }
    List1->setCurrentRow(selectRow);
    List1_Changed();
}

const WorkingSet* editionsfrm::selected() const {
    const int row = List1->currentRow();
    if (row < 0 || static_cast<std::size_t>(row) >= sets_.size()) return nullptr;
    return &sets_[static_cast<std::size_t>(row)];
}

// The root cannot be deleted, nor the working set the editor would save into.
void editionsfrm::List1_Changed() {
    const WorkingSet* workingSet = selected();
    Command2->setEnabled(workingSet != nullptr && !workingSet->subPath.empty() && !isOpen(*workingSet));
    Command3->setEnabled(workingSet != nullptr && !isOpen(*workingSet));
}

void editionsfrm::Command1_Click() {
    const std::string edition = fromQString(Text1->text().trimmed());
    const std::string version = fromQString(Text2->text().trimmed());
    const WorkingSetCreation creation = createWorkingSet(host_, context_.source(), edition, version);
    if (!creation.refusal.empty()) {
        dialogs_.messageBox({creation.refusal, MessageButtons::Ok, MessageIcon::Exclamation, kTitle});
        return;
    }
    if (!creation.copies.complete()) {
        std::string names;
        for (const std::string& name : creation.copies.failedCopies) names += "\n" + name;
        dialogs_.messageBox(
            {"These files of the project could not be copied into the new working set:" + names,
             MessageButtons::Ok, MessageIcon::Exclamation, kTitle});
    }
    Text1->clear();
    Text2->clear();
    refresh(workingSetSubPath(edition, version));
}

void editionsfrm::Command2_Click() {
    const WorkingSet* workingSet = selected();
    if (workingSet == nullptr || workingSet->subPath.empty() || isOpen(*workingSet)) return;
    const std::string question = "Delete \"" + describe(*workingSet) +
                                 "\" with its settings, pictures, packages and fonts? This cannot be undone.";
    if (dialogs_.messageBox({question, MessageButtons::YesNo, MessageIcon::Question, kTitle}) !=
        DialogAnswer::Yes)
        return;
    deleteWorkingSet(host_, context_.projectRoot(), *workingSet);
    refresh({});
}

void editionsfrm::Command3_Click() {
    const WorkingSet* workingSet = selected();
    if (workingSet == nullptr || isOpen(*workingSet)) return;
    const WorkingSet chosen = *workingSet;
    context_.switchTo(chosen.edition, chosen.version);
    refresh(chosen.subPath);
}

}  // namespace orvanta
