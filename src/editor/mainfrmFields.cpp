#include "editor/mainfrmFields.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QListWidget>
#include <stdexcept>
#include <utility>

#include "editor/FormText.h"
#include "editor/Mnemonics.h"
#include "editor/mainfrm.h"
#include "image/widget/aicAlphaImage.h"
#include "ui_mainfrm.h"

namespace orvanta {

namespace {

// Fields by the control that holds them; other names are the controls' own.
constexpr std::pair<std::string_view, std::string_view> kFieldControls[] = {
    {"appName", "Text1"},
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
    {"workingFolder", "Text2"},
};

std::string_view controlName(std::string_view name) {
    for (const auto& [field, control] : kFieldControls)
        if (field == name) return control;
    return name;
}

std::string keyOf(ControlName control) {
    std::string key(control.name);
    if (control.index >= 0) key += "(" + std::to_string(control.index) + ")";
    return key;
}

// List1's entries carry a check mark: "copy to the system folder and register".
bool marksByCheck(const QListWidget& list) {
    return list.objectName() == QLatin1String("List1");
}

}  // namespace

mainfrmFields::mainfrmFields(mainfrm& window, std::function<void(const std::string&)> startLoading)
    : window_(window), startLoading_(std::move(startLoading)) {}

QWidget* mainfrmFields::find(ControlName control) const {
    if (control.name == "mainfrm") return &window_;
    if (control.name == "noway" || control.name == "modeimg") {
        const auto index = static_cast<std::size_t>(control.index);
        if (control.name == "noway" && index < window_.noway.size()) return window_.noway[index];
        if (control.name == "modeimg" && index < window_.modeimg.size()) return window_.modeimg[index];
        return nullptr;
    }
    if (control.index >= 0) return nullptr;
    const std::string_view name = controlName(control.name);
    return window_.findChild<QWidget*>(QString::fromLatin1(name.data(), static_cast<qsizetype>(name.size())));
}

template <typename T>
T& mainfrmFields::as(ControlName control) const {
    T* widget = qobject_cast<T*>(find(control));
    if (widget == nullptr) throw std::out_of_range("the editor has no control named " + keyOf(control));
    return *widget;
}

std::string mainfrmFields::text(ControlName control) const {
    QWidget& widget = as<QWidget>(control);
    if (auto* box = qobject_cast<QLineEdit*>(&widget)) return textOf(*box);
    if (auto* combo = qobject_cast<QComboBox*>(&widget)) return textOf(*combo);
    if (auto* multi = qobject_cast<QPlainTextEdit*>(&widget)) return textOf(*multi);
    if (auto* label = qobject_cast<QLabel*>(&widget)) return textOf(*label);
    if (auto* button = qobject_cast<QAbstractButton*>(&widget))
        return fromQString(withoutMnemonic(button->text()));
    return fromQString(widget.windowTitle());
}

void mainfrmFields::setText(ControlName control, const std::string& text) {
    QWidget& widget = as<QWidget>(control);
    if (auto* box = qobject_cast<QLineEdit*>(&widget)) setTextOf(*box, text);
    if (auto* combo = qobject_cast<QComboBox*>(&widget)) setTextOf(*combo, text);
    if (auto* multi = qobject_cast<QPlainTextEdit*>(&widget)) setTextOf(*multi, text);
    if (auto* label = qobject_cast<QLabel*>(&widget)) setTextOf(*label, text);
}

int mainfrmFields::value(ControlName control) const {
    return as<QAbstractButton>(control).isChecked() ? 1 : 0;
}

// An option button of a group cannot be cleared by itself: selecting another one clears it.
void mainfrmFields::setValue(ControlName control, int value) {
    as<QAbstractButton>(control).setChecked(value != 0);
}

bool mainfrmFields::enabled(ControlName control) const {
    return as<QWidget>(control).isEnabled();
}

void mainfrmFields::setEnabled(ControlName control, bool enabled) {
    as<QWidget>(control).setEnabled(enabled);
}

// A control counts as visible unless it was hidden itself, whether or not its page is shown.
bool mainfrmFields::visible(ControlName control) const {
    QWidget& widget = as<QWidget>(control);
    return &widget == &window_ ? widget.isVisible() : !widget.isHidden();
}

void mainfrmFields::setVisible(ControlName control, bool visible) {
    as<QWidget>(control).setVisible(visible);
}

void mainfrmFields::setPlaceholderLook(ControlName control, bool on) {
    window_.setPlaceholderLook(as<QLineEdit>(control), on);
}

void mainfrmFields::setCaption(ControlName control, const std::string& caption) {
    QWidget& widget = as<QWidget>(control);
    if (&widget == &window_) widget.setWindowTitle(toQString(caption));
    if (auto* button = qobject_cast<QAbstractButton*>(&widget))
        setCaptionKeepingMnemonic(*button, toDisplayText(caption));
    if (auto* label = qobject_cast<QLabel*>(&widget)) label->setText(toDisplayText(caption));
}

void mainfrmFields::clearList(ControlName list) {
    as<QListWidget>(list).clear();
}

void mainfrmFields::addListItem(ControlName list, const std::string& text, bool selected) {
    QListWidget& widget = as<QListWidget>(list);
    auto* item = new QListWidgetItem(toQString(text), &widget);
    if (marksByCheck(widget)) {
        item->setFlags(item->flags() | Qt::ItemIsUserCheckable);
        item->setCheckState(selected ? Qt::Checked : Qt::Unchecked);
    } else {
        item->setSelected(selected);
    }
}

void mainfrmFields::addListItems(ControlName list, const std::vector<std::string>& texts) {
    QStringList items;
    items.reserve(static_cast<qsizetype>(texts.size()));
    for (const std::string& text : texts) items.push_back(toQString(text));
    as<QListWidget>(list).addItems(items);
}

std::vector<ListItem> mainfrmFields::listItems(ControlName list) const {
    const QListWidget& widget = as<QListWidget>(list);
    std::vector<ListItem> items;
    items.reserve(static_cast<std::size_t>(widget.count()));
    for (int row = 0; row < widget.count(); ++row) {
        const QListWidgetItem* item = widget.item(row);
        const bool marked = marksByCheck(widget) ? item->checkState() == Qt::Checked : item->isSelected();
        items.push_back({fromQString(item->text()), marked});
    }
    return items;
}

std::size_t mainfrmFields::listCount(ControlName list) const {
    return static_cast<std::size_t>(as<QListWidget>(list).count());
}

void mainfrmFields::setListIndex(ControlName list, int index) {
    QListWidget& widget = as<QListWidget>(list);
    if (index < 0) {
        widget.clearSelection();
        widget.setCurrentRow(-1);
    } else {
        widget.setCurrentRow(index);
    }
}

bool mainfrmFields::loadPicture(ControlName picture, const std::string& path) {
    aicAlphaImage& control = as<aicAlphaImage>(picture);
    const bool shown = control.LoadImage_FromFile(path);
    // The header's copy of the logo follows the logo, which has told the user already.
    if (!shown && picture.name != "logo2") window_.reportUnreadablePicture(control, path);
    return shown;
}

void mainfrmFields::clearPicture(ControlName picture) {
    as<aicAlphaImage>(picture).ClearImage();
}

void mainfrmFields::showStatus(StatusLabel label, const std::string& text) {
    if (label == StatusLabel::ControlTips)
        window_.showTitle(text);
    else if (startLoading_)
        startLoading_(text);
}

void mainfrmFields::processPendingEvents() {
    QCoreApplication::processEvents();
}

}  // namespace orvanta
