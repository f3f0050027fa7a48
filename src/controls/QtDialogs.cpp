#include "controls/QtDialogs.h"

#include <QCheckBox>
#include <QFileDialog>
#include <QGuiApplication>
#include <QInputDialog>
#include <QMessageBox>
#include <QPushButton>

#include "controls/QtText.h"
#include "controls/frmButton.h"
#include "core/CommondialogBox.h"
#include "core/NativeTaskDialog.h"

namespace orvanta {
namespace {

QMessageBox::StandardButtons standardButtons(MessageButtons buttons) {
    switch (buttons) {
        case MessageButtons::Ok:
            return QMessageBox::Ok;
        case MessageButtons::OkCancel:
            return QMessageBox::Ok | QMessageBox::Cancel;
        case MessageButtons::AbortRetryIgnore:
            return QMessageBox::Abort | QMessageBox::Retry | QMessageBox::Ignore;
        case MessageButtons::YesNoCancel:
            return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
        case MessageButtons::YesNo:
            return QMessageBox::Yes | QMessageBox::No;
        case MessageButtons::RetryCancel:
            return QMessageBox::Retry | QMessageBox::Cancel;
    }
    return QMessageBox::Ok;
}

DialogAnswer toAnswer(int button) {
    switch (button) {
        case QMessageBox::Cancel:
            return DialogAnswer::Cancel;
        case QMessageBox::Abort:
            return DialogAnswer::Abort;
        case QMessageBox::Retry:
            return DialogAnswer::Retry;
        case QMessageBox::Ignore:
            return DialogAnswer::Ignore;
        case QMessageBox::Yes:
            return DialogAnswer::Yes;
        case QMessageBox::No:
            return DialogAnswer::No;
        default:
            return DialogAnswer::Ok;
    }
}

QMessageBox::Icon toIcon(MessageIcon icon) {
    switch (icon) {
        case MessageIcon::None:
            return QMessageBox::NoIcon;
        case MessageIcon::Critical:
            return QMessageBox::Critical;
        case MessageIcon::Question:
            return QMessageBox::Question;
        case MessageIcon::Exclamation:
            return QMessageBox::Warning;
        case MessageIcon::Information:
            return QMessageBox::Information;
    }
    return QMessageBox::NoIcon;
}

// An empty title is the platform's own: the program's name.
QString windowTitle(const std::string& title) {
    if (!title.empty()) return toQString(title);
    const QString name = QGuiApplication::applicationDisplayName();
    return name.isEmpty() ? QStringLiteral("Orvanta") : name;
}

// "Executable files|*.exe;*.bat" -> "Executable files (*.exe *.bat)", one entry a line.
QString qtFilter(const std::string& filter) {
    QStringList entries;
    for (const DialogFilterEntry& entry : splitDialogFilter(filter)) {
        const QString patterns = toQString(entry.patterns).replace(QLatin1Char(';'), QLatin1Char(' '));
        entries << toQString(entry.description) + QStringLiteral(" (") + patterns + QLatin1Char(')');
    }
    return entries.join(QStringLiteral(";;"));
}

// "*.exe,*.bat" -> "exe": the extension a typed name without one gets.
QString defaultSuffix(const std::string& extensions) {
    QString first = toQString(extensions).section(QLatin1Char(','), 0, 0).trimmed();
    return first.mid(first.lastIndexOf(QLatin1Char('.')) + 1);
}

}  // namespace

DialogAnswer QtDialogs::messageBox(const MessageBoxRequest& request) {
    QMessageBox box(toIcon(request.icon), windowTitle(request.title), toDisplayText(request.text),
                    standardButtons(request.buttons), owner_);
    return toAnswer(box.exec());
}

DialogAnswer QtDialogs::taskDialog(const TaskDialogRequest& request) {
    TaskDialogExRequest native;
    native.windowTitle = request.title;
    native.mainInstruction = request.instruction;
    native.content = request.content;
    native.mainIcon = request.icon;
    native.commonButtons = request.buttons;
    TaskDialogExAnswer answer;
    if (showNativeTaskDialog(host_, native, answer)) return static_cast<DialogAnswer>(answer.button);
    QMessageBox box(toIcon(request.icon), windowTitle(request.title), toDisplayText(request.instruction),
                    standardButtons(request.buttons), owner_);
    box.setInformativeText(toDisplayText(request.content));
    return toAnswer(box.exec());
}

TaskDialogExAnswer QtDialogs::taskDialogEx(const TaskDialogExRequest& request) {
    // The platform's own dialog; Qt's stands in where the host has none or it could not be shown.
    if (TaskDialogExAnswer answer; showNativeTaskDialog(host_, request, answer)) return answer;
    QMessageBox box(toIcon(request.mainIcon), windowTitle(request.windowTitle),
                    toDisplayText(request.mainInstruction), QMessageBox::NoButton, owner_);
    box.setInformativeText(toDisplayText(request.content));
    if (!request.expandedInformation.empty()) box.setDetailedText(toDisplayText(request.expandedInformation));
    QCheckBox* verification = nullptr;
    if (!request.verificationText.empty()) {
        verification = new QCheckBox(toQString(request.verificationText), &box);
        verification->setChecked(request.verificationChecked);
        box.setCheckBox(verification);
    }
    std::vector<std::pair<QAbstractButton*, int>> custom;
    for (const TaskDialogButton& button : request.buttons) {
        QPushButton* added = box.addButton(toQString(button.text), QMessageBox::AcceptRole);
        custom.emplace_back(added, button.id);
        if (button.id == request.defaultButton) box.setDefaultButton(added);
    }
    if (custom.empty()) box.setStandardButtons(standardButtons(request.commonButtons));
    const int standard = box.exec();
    TaskDialogExAnswer answer;
    answer.verificationChecked = verification != nullptr && verification->isChecked();
    answer.button = static_cast<int>(toAnswer(standard));
    for (const auto& [button, id] : custom)
        if (box.clickedButton() == button) answer.button = id;
    return answer;
}

std::string QtDialogs::inputBox(const InputBoxRequest& request) {
    bool accepted = false;
    const QString text =
        QInputDialog::getText(owner_, windowTitle(request.title), toDisplayText(request.prompt),
                              QLineEdit::Normal, toQString(request.defaultText), &accepted);
    return accepted ? fromQString(text) : std::string();
}

std::string QtDialogs::openFile(const OpenFileRequest& request) {
    QFileDialog dialog(owner_, toQString(request.title), toQtPath(host_, request.initialFolder),
                       qtFilter(request.filter));
    dialog.setFileMode(QFileDialog::ExistingFile);
    dialog.setDefaultSuffix(defaultSuffix(request.defaultExtensions));
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return {};
    return fromQtPath(host_, dialog.selectedFiles().first());
}

FolderBrowserAnswer QtDialogs::browseForFolder(const FolderBrowserRequest& request) {
    frmButton dialog(host_, *this, owner_);
    return dialog.Browse(request);
}

}  // namespace orvanta
