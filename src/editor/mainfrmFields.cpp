#include "editor/mainfrmFields.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <map>

#include "controls/PlaceholderText.h"
#include "controls/QtText.h"
#include "editor/mainfrm.h"
#include "image/widget/aicAlphaImage.h"
#include "ui_mainfrm.h"

namespace orvanta {

namespace {

// Field names and the controls of the window that hold them; every other name is the control's own.
const std::map<std::string_view, const char*>& fieldControls() {
    static const std::map<std::string_view, const char*> table{{"appName", "Text1"},
                                                               {"appAuthor", "Text9"},
                                                               {"startMenuShortcut", "Check3"},
                                                               {"desktopShortcut", "Check2"},
                                                               {"shortcutTooltip", "Text7"},
                                                               {"startupOption", "Check4"},
                                                               {"startupChecked", "Check5"},
                                                               {"website", "Text6"},
                                                               {"appSize", "Text20"},
                                                               {"quickLaunchShortcut", "Check9"},
                                                               {"quickLaunchChecked", "Check10"},
                                                               {"mainExecutable", "Text21"},
                                                               {"noRepair", "Check13"},
                                                               {"noModify", "Check12"},
                                                               {"appVersion", "Text16"},
                                                               {"rollEffect", "Check6"},
                                                               {"installPath", "Combo5"},
                                                               {"minWindowsVersion", "Combo4"},
                                                               {"authorFolder", "Check20"},
                                                               {"instantInstall", "Check21"},
                                                               {"licenseTitle", "Text22"},
                                                               {"licenseButtonCaption", "Text23"},
                                                               {"cleanAll", "Check24"},
                                                               {"anyFile", "Text27"},
                                                               {"lockInstallPath", "Check27"},
                                                               {"desktopChecked", "Check28"},
                                                               {"startMenuChecked", "Check29"},
                                                               {"startupArguments", "Text26"},
                                                               {"startupAllUsers", "Check30"},
                                                               {"supportLink", "Text14"},
                                                               {"helpLink", "Text28"},
                                                               {"updateInfoLink", "Text29"},
                                                               {"finalPackageName", "Text8"},
                                                               {"shortcutArguments", "Text31"},
                                                               {"startupRequired", "Check33"},
                                                               {"appIconOnRootFolder", "Check19"},
                                                               {"noUninstaller", "Check22"},
                                                               {"editionName", "Text33"},
                                                               {"showEditionName", "Check35"},
                                                               {"justRunMode", "Check39"},
                                                               {"updateIgnoreLicense", "Check36"},
                                                               {"updateRunApp", "Check38"},
                                                               {"updateSilent", "Check37"},
                                                               {"createRestorePoint", "Check41"},
                                                               {"introText", "Text11"},
                                                               {"tipsText", "Text12"},
                                                               {"uninstallIntroText", "Text17"},
                                                               {"uninstallEndText", "Text18"},
                                                               {"resumedLicenseEnabled", "Check1"},
                                                               {"resumedLicenseText", "Text19"},
                                                               {"fullLicenseFile", "Text5"},
                                                               {"registryLocations", "List3"},
                                                               {"appDataLocations", "List4"},
                                                               {"dependencies", "List1"},
                                                               {"fonts", "List2"},
                                                               {"files", "List6"},
                                                               {"folders", "List7"},
                                                               {"workingFolder", "Text2"}};
    return table;
}

// The window's text boxes keep CR LF out of sight: Qt's line breaks are a lone LF.
QString withoutCrLf(const std::string& text) {
    return toQString(text).replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
}

std::string withCrLf(const QString& text) {
    return fromQString(QString(text).replace(QStringLiteral("\n"), QStringLiteral("\r\n")));
}

// The check mark of a list that has check boxes, else the selection.
bool itemMarked(const QListWidgetItem& item) {
    if ((item.flags() & Qt::ItemIsUserCheckable) != 0) return item.checkState() == Qt::Checked;
    return item.isSelected();
}

}  // namespace

mainfrmFields::mainfrmFields(mainfrm& window, std::function<void(const std::string&)> startLoading)
    : window_(window), startLoading_(std::move(startLoading)) {}

QWidget* mainfrmFields::control(ControlName control) const {
    if (control.name == "mainfrm") return &window_;
    const auto field = fieldControls().find(control.name);
    QString name =
        field != fieldControls().end()
            ? QString::fromLatin1(field->second)
            : QString::fromLatin1(control.name.data(), static_cast<qsizetype>(control.name.size()));
    if (control.index >= 0) name += QStringLiteral("_%1").arg(control.index);
    return window_.findChild<QWidget*>(name);
}

std::string mainfrmFields::text(ControlName name) const {
    QWidget* widget = control(name);
    if (auto* line = qobject_cast<QLineEdit*>(widget)) return fromQString(line->text());
    if (auto* box = qobject_cast<QPlainTextEdit*>(widget)) return withCrLf(box->toPlainText());
    if (auto* combo = qobject_cast<QComboBox*>(widget)) return fromQString(combo->currentText());
    if (auto* label = qobject_cast<QLabel*>(widget)) return fromQString(label->text());
    if (auto* button = qobject_cast<QAbstractButton*>(widget)) return fromQString(button->text());
    if (widget == &window_) return fromQString(window_.windowTitle());
    return {};
}

void mainfrmFields::setText(ControlName name, const std::string& text) {
    QWidget* widget = control(name);
    if (auto* line = qobject_cast<QLineEdit*>(widget)) {
        line->setText(toQString(text));
    } else if (auto* box = qobject_cast<QPlainTextEdit*>(widget)) {
        box->setPlainText(withoutCrLf(text));
    } else if (auto* combo = qobject_cast<QComboBox*>(widget)) {
        // A list-only combo box takes only a text of its list, as the platform's refuses others.
        if (combo->isEditable())
            combo->setEditText(toQString(text));
        else if (const int index = combo->findText(toQString(text)); index >= 0)
            combo->setCurrentIndex(index);
    } else {
        setCaption(name, text);
    }
}

int mainfrmFields::value(ControlName name) const {
    if (auto* button = qobject_cast<QAbstractButton*>(control(name))) return button->isChecked() ? 1 : 0;
    return 0;
}

void mainfrmFields::setValue(ControlName name, int value) {
    if (auto* button = qobject_cast<QAbstractButton*>(control(name))) button->setChecked(value != 0);
}

bool mainfrmFields::enabled(ControlName name) const {
    const QWidget* widget = control(name);
    return widget != nullptr && widget->isEnabled();
}

void mainfrmFields::setEnabled(ControlName name, bool enabled) {
    if (QWidget* widget = control(name)) widget->setEnabled(enabled);
}

bool mainfrmFields::visible(ControlName name) const {
    const QWidget* widget = control(name);
    return widget != nullptr && !widget->isHidden();
}

void mainfrmFields::setVisible(ControlName name, bool visible) {
    if (QWidget* widget = control(name)) widget->setVisible(visible);
}

void mainfrmFields::setPlaceholderLook(ControlName name, bool on) {
    if (auto* line = qobject_cast<QLineEdit*>(control(name))) PlaceholderText::setPlaceholderLook(line, on);
}

void mainfrmFields::setCaption(ControlName name, const std::string& caption) {
    QWidget* widget = control(name);
    if (auto* button = qobject_cast<QAbstractButton*>(widget))
        button->setText(toQString(caption));
    else if (auto* label = qobject_cast<QLabel*>(widget))
        label->setText(toQString(caption));
    else if (auto* group = qobject_cast<QGroupBox*>(widget))
        group->setTitle(toQString(caption));
    else if (widget == &window_)
        window_.setWindowTitle(toQString(caption));
}

void mainfrmFields::clearList(ControlName list) {
    if (auto* widget = qobject_cast<QListWidget*>(control(list))) widget->clear();
}

// The dependencies' list shows its mark as a check box; the others as the selection.
void mainfrmFields::addListItem(ControlName list, const std::string& text, bool selected) {
    auto* widget = qobject_cast<QListWidget*>(control(list));
    if (widget == nullptr) return;
    auto* item = new QListWidgetItem(toQString(text), widget);
    if (list.name == "dependencies") {
        item->setFlags(item->flags() | Qt::ItemIsUserCheckable);
        item->setCheckState(selected ? Qt::Checked : Qt::Unchecked);
    } else if (selected) {
        item->setSelected(true);
    }
}

void mainfrmFields::addListItems(ControlName list, const std::vector<std::string>& texts) {
    auto* widget = qobject_cast<QListWidget*>(control(list));
    if (widget == nullptr) return;
    QStringList items;
    items.reserve(static_cast<qsizetype>(texts.size()));
    for (const std::string& text : texts) items.push_back(toQString(text));
    widget->setUpdatesEnabled(false);
    widget->addItems(items);
    widget->setUpdatesEnabled(true);
}

std::vector<ListItem> mainfrmFields::listItems(ControlName list) const {
    std::vector<ListItem> items;
    const auto* widget = qobject_cast<const QListWidget*>(control(list));
    if (widget == nullptr) return items;
    items.reserve(static_cast<std::size_t>(widget->count()));
    for (int row = 0; row < widget->count(); ++row) {
        const QListWidgetItem& item = *widget->item(row);
        items.push_back({fromQString(item.text()), itemMarked(item)});
    }
    return items;
}

std::size_t mainfrmFields::listCount(ControlName list) const {
    const auto* widget = qobject_cast<const QListWidget*>(control(list));
    return widget == nullptr ? 0 : static_cast<std::size_t>(widget->count());
}

void mainfrmFields::setListIndex(ControlName list, int index) {
    if (auto* widget = qobject_cast<QListWidget*>(control(list))) widget->setCurrentRow(index);
}

bool mainfrmFields::loadPicture(ControlName picture, const std::string& path) {
    auto* image = qobject_cast<aicAlphaImage*>(control(picture));
    return image != nullptr && image->LoadImage_FromFile(path);
}

void mainfrmFields::clearPicture(ControlName picture) {
    if (auto* image = qobject_cast<aicAlphaImage*>(control(picture))) image->ClearImage();
}

void mainfrmFields::showStatus(StatusLabel label, const std::string& text) {
    if (label == StatusLabel::StartLoading) {
        if (startLoading_) startLoading_(text);
        return;
    }
    window_.controls().controlTips->setText(toQString(text));
}

void mainfrmFields::processPendingEvents() {
    QApplication::processEvents();
}

}  // namespace orvanta
