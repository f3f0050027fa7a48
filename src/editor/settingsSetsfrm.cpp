#include "editor/settingsSetsfrm.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "controls/QtText.h"
#include "core/CommondialogBox.h"
#include "core/commonFunctions.h"
#include "editor/Mnemonics.h"
#include "project/ProjectPaths.h"

namespace orvanta {

namespace {

constexpr std::array<const char*, 3> kTypes = {"REG", "REGFILE", "EXE"};

QString numbered(const char* name, int set) {
    return QString::fromLatin1(name) + QString::number(set);
}

}  // namespace

settingsSetsfrm::settingsSetsfrm(Host& host, Dialogs& dialogs, std::string workingFolder,
                                 SettingsSetTables& tables, QWidget* parent)
    : QDialog(parent),
      host_(host),
      dialogs_(dialogs),
      workingFolder_(std::move(workingFolder)),
      tables_(tables) {
    setObjectName(QStringLiteral("settingsSetsfrm"));
    setWindowTitle(QStringLiteral("Settings sets"));
    buildRows();
    for (int set = 0; set < kSettingsSetCount; ++set) readRow(set);
}

void settingsSetsfrm::buildRows() {
    auto* grid = new QGridLayout(this);
    const char* headings[] = {"Set", "Name", "Type", "File in \\settingsset"};
    for (int column = 0; column < 4; ++column)
        grid->addWidget(new QLabel(QString::fromLatin1(headings[column]), this), 0, column);
    for (int set = 0; set < kSettingsSetCount; ++set) {
        Row& row = rows_[static_cast<std::size_t>(set)];
        row.name = new QLineEdit(this);
        row.name->setObjectName(numbered("name", set));
        row.type = new QComboBox(this);
        row.type->setObjectName(numbered("type", set));
        for (const char* type : kTypes) row.type->addItem(QString::fromLatin1(type));
        row.member = new QLineEdit(this);
        row.member->setObjectName(numbered("member", set));
        row.member->setReadOnly(true);
        auto* choose = new QPushButton(QStringLiteral("Choose..."), this);
        choose->setObjectName(numbered("choose", set));
        auto* clearButton = new QPushButton(QStringLiteral("Clear"), this);
        clearButton->setObjectName(numbered("clear", set));
        connect(choose, &QPushButton::clicked, this, [this, set] { this->choose(set); });
        connect(clearButton, &QPushButton::clicked, this, [this, set] { clear(set); });
        const int line = set + 1;
        grid->addWidget(new QLabel(QString::number(set), this), line, 0);
        grid->addWidget(row.name, line, 1);
        grid->addWidget(row.type, line, 2);
        grid->addWidget(row.member, line, 3);
        grid->addWidget(choose, line, 4);
        grid->addWidget(clearButton, line, 5);
    }
    auto* ok = new QPushButton(QStringLiteral("OK"), this);
    ok->setObjectName(QStringLiteral("Command1"));
    auto* cancel = new QPushButton(QStringLiteral("Cancel"), this);
    cancel->setObjectName(QStringLiteral("Command2"));
    connect(ok, &QPushButton::clicked, this, &settingsSetsfrm::Command1_Click);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    grid->addWidget(ok, kSettingsSetCount + 1, 4);
    grid->addWidget(cancel, kSettingsSetCount + 1, 5);
    MnemonicLetters letters;
    giveMnemonics(*this, letters);
}

// The loader has filled the tables from the sets' files.
void settingsSetsfrm::readRow(int set) {
    const SettingsSet& kept = tables_.sets[static_cast<std::size_t>(set)];
    Row& row = rows_[static_cast<std::size_t>(set)];
    row.name->setText(toQString(kept.name));
    const int typeIndex = row.type->findText(toQString(kept.type));
    row.type->setCurrentIndex(typeIndex < 0 ? 0 : typeIndex);
    row.member->setText(toQString(kept.member));
}

void settingsSetsfrm::choose(int set) {
    Row& row = rows_[static_cast<std::size_t>(set)];
    const bool registry = row.type->currentText() == QLatin1String("REG");
    const std::string filter = registry ? "Registry files|*.reg" : "All files|*.*";
    const OpenFileResult picked = openFileDialog(dialogs_, filter, registry ? "*.reg" : "*.*", workingFolder_,
                                                 "Select the file of the settings set");
    if (picked.path.empty()) return;
    const std::string folder = inFolder(workingFolder_, projectfolder::kSettingsSet);
    if (!folderExists(host_, folder)) host_.createFolder(folder);
    const std::string copy = inFolder(folder, picked.fileName);
    if (!host_.copyFile(picked.path, copy) && !fileExists(host_, copy)) {
        dialogs_.messageBox({"Could not copy " + picked.path + " to " + folder + ".", MessageButtons::Ok,
                             MessageIcon::Exclamation, "Orvanta"});
        return;
    }
    row.member->setText(toQString(picked.fileName));
}

void settingsSetsfrm::clear(int set) {
    Row& row = rows_[static_cast<std::size_t>(set)];
    row.name->clear();
    row.member->clear();
}

void settingsSetsfrm::Command1_Click() {
    for (int set = 0; set < kSettingsSetCount; ++set) writeRow(set);
    accept();
}

// An unused set has an empty name and no file; its member file in the folder stays.
void settingsSetsfrm::writeRow(int set) {
    const Row& row = rows_[static_cast<std::size_t>(set)];
    SettingsSet& kept = tables_.sets[static_cast<std::size_t>(set)];
    const std::string name = fromQString(row.name->text().trimmed());
    const std::string member = fromQString(row.member->text());
    const std::string file = settingsSetFile(workingFolder_, set);
    if (name.empty() || member.empty()) {
        kept = {};
        if (fileExists(host_, file)) host_.deleteFile(file);
        return;
    }
    kept = {member, name, fromQString(row.type->currentText())};
    const std::string folder = inFolder(workingFolder_, projectfolder::kSettingsSet);
    if (!folderExists(host_, folder)) host_.createFolder(folder);
    if (!writeSettingsSetFile(host_, file, kept))
        dialogs_.messageBox(
            {"Could not write " + file + ".", MessageButtons::Ok, MessageIcon::Exclamation, "Orvanta"});
}

}  // namespace orvanta
