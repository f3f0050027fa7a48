#include "UserDay.h"

#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QFocusEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <filesystem>

#include "controls/ctlProgressBar.h"
#include "core/vars.h"
#include "editor/editionsfrm.h"
#include "editor/mainfrm.h"
#include "editor/mainfrmFields.h"
#include "editor/packages.h"
#include "image/widget/aicAlphaImage.h"
#include "image/widget/cCrossComm.h"
#include "project/EditorControls.h"
#include "project/PackageTables.h"
#include "project/window/start.h"
#include "support/Split.h"

namespace orvanta::testing {

namespace {

// The program's own picture of a new project's logo, so that the editor has a real image to show.
std::string deliveredLogo() {
    QFile file(QStringLiteral(ORVANTA_SHARE_FOLDER "/i/default.png"));
    if (!file.open(QIODevice::ReadOnly)) throw std::runtime_error("no delivered logo");
    const QByteArray data = file.readAll();
    return {data.constData(), static_cast<std::size_t>(data.size())};
}

}  // namespace

void UserDay::SetUp() {
    vars::reset();
    packageTables = {};
    for (const char* stub : {"install", "uninstall", "package", "package2", "install.exe.manifest"})
        box.writeFile(std::string("app\\data\\") + stub, std::string("stand-in for ") + stub);
    box.writeFile("app\\7z\\7z.exe", "archiver");
    box.writeFile("app\\i\\default.png", deliveredLogo());
    // The folder of the application's files, and a licence kept elsewhere.
    box.writeFile("my program\\prog.exe", "MZ-prog");
    box.writeFile("my program\\helper.ocx", "ocx");
    box.writeFile("my program\\lib\\x.dll", "dll-x");
    for (std::size_t i = 3; i < kProgramFiles; ++i)
        box.writeFile("my program\\lib\\data" + std::to_string(i % 4) + "\\part" + std::to_string(i) + ".dat",
                      "p");
    box.writeFile("docs\\eula.rtf", "{\\rtf1 eula}");
    // A new account: no documents folder until the first project makes one.
    std::filesystem::remove_all(box.hostRoot() / "Documents");
}

void UserDay::TearDown() {
    endProgram();
    cCrossComm::instance().setHost(nullptr);
    vars::reset();
}

MainOutcome UserDay::startProgram(const std::string& commandLine) {
    endProgram();
    box.config().commandLine = commandLine;
    Host& host = box.restartHost();
    host.setMessagePump([] { QApplication::processEvents(); });
    cCrossComm::instance().setHost(&host);
    windows = std::make_unique<ApplicationWindows>(host, dialogs);
    return Main(host, dialogs, windows->handOver());
}

void UserDay::endProgram() {
    windows.reset();
    letEventsRun();
}

void UserDay::letEventsRun() {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
}

start& UserDay::index() {
    if (windows == nullptr || windows->startWindow() == nullptr) throw std::runtime_error("no index window");
    return *windows->startWindow();
}

mainfrm& UserDay::editor() {
    if (windows == nullptr || windows->editorWindow() == nullptr) throw std::runtime_error("no editor");
    return *windows->editorWindow();
}

mainfrmFields& UserDay::fields() {
    editor();
    return *windows->fields();
}

void UserDay::focusIn(QWidget& field) {
    QFocusEvent event(QEvent::FocusIn, Qt::MouseFocusReason);
    QCoreApplication::sendEvent(&field, &event);
}

void UserDay::focusOut(QWidget& field) {
    QFocusEvent event(QEvent::FocusOut, Qt::MouseFocusReason);
    QCoreApplication::sendEvent(&field, &event);
}

void UserDay::typeInto(QWidget& field, const std::string& text) {
    QWidget* target = &field;
    if (auto* combo = qobject_cast<QComboBox*>(&field)) target = combo->lineEdit();
    focusIn(*target);
    if (auto* line = qobject_cast<QLineEdit*>(target)) line->selectAll();
    if (auto* multi = qobject_cast<QPlainTextEdit*>(target)) multi->selectAll();
    std::size_t from = 0;
    for (std::size_t end; (end = text.find('\n', from)) != std::string::npos; from = end + 1) {
        QTest::keyClicks(target, QString::fromStdString(text.substr(from, end - from)));
        QTest::keyClick(target, Qt::Key_Return);
    }
    QTest::keyClicks(target, QString::fromStdString(text.substr(from)));
    focusOut(*target);
}

void UserDay::typeInEditor(const char* name, const std::string& text) {
    typeInto(in<QWidget>(editor(), name), text);
}

void UserDay::clickInEditor(const char* name) {
    in<QAbstractButton>(editor(), name).click();
}

void UserDay::chooseProject(const std::string& name) {
    auto& list = in<QComboBox>(index(), "Combo1");
    const int row = list.findText(QString::fromStdString(name));
    if (row < 0) throw std::runtime_error("no project " + name + " in the list");
    list.setCurrentIndex(row);
    emit list.activated(row);
}

UserDay::CopyWatch UserDay::createProject(const std::function<void(QWidget& progress)>& duringCopy) {
    start& window = index();
    typeInto(in<QLineEdit>(window, "Text1"), kProject);
    typeInto(in<QLineEdit>(window, "Text3"), "Ann Author");
    dialogs.answerNextFolder({box.windowsPath("my program"), false});
    in<QPushButton>(window, "Command3").click();
    CopyWatch watch;
    QTimer watcher;
    QObject::connect(&watcher, &QTimer::timeout, [&] {
        auto* progress = windows->editorWindow()
                             ? windows->editorWindow()->findChild<QWidget*>(QStringLiteral("CopyProgress"))
                             : nullptr;
        if (progress == nullptr || !progress->isVisible()) return;
        if (watch.counts.empty()) watch.editorShownFirst = editor().isVisible();
        watch.savedEarly = watch.savedEarly || box.exists(rel("mainsettings.cfg"));
        watch.counts.push_back(in<QLabel>(*progress, "Label1").text().toStdString());
        watch.bar.push_back(in<ctlProgressBar>(*progress, "ProgressBar1").Value());
        if (duringCopy) duringCopy(*progress);
    });
    watcher.start(0);
    in<QPushButton>(window, "Command1").click();
    watcher.stop();
    letEventsRun();
    return watch;
}

// A spread of what a user fills in: texts, placeholder boxes, combo boxes, check boxes whose rules
// tick others, both option groups, the licence, the four lists and a multi-line text.
void UserDay::fillEditor() {
    typeInEditor("Text6", "http://myapp.example");
    typeInEditor("Text16", "2.5");
    // Clicking into the empty main executable box asks for the file.
    dialogs.answerNextOpenFile(box.windowsPath(rel("files\\prog.exe")));
    focusIn(in<QWidget>(editor(), "Text21"));
    focusOut(in<QWidget>(editor(), "Text21"));
    typeInEditor("Text7", "Start My App");
    typeInEditor("Text28", "http://help.example");
    typeInEditor("Text8", "myapp-%version.exe");
    auto& windowsVersion = in<QComboBox>(editor(), "Combo4");
    windowsVersion.setCurrentIndex(windowsVersion.findText(QStringLiteral("Windows 7")));
    typeInEditor("Combo5", "Allusers ApplicationData\\My App");
    clickInEditor("Check24");
    clickInEditor("Check28");  // also ticks the desktop shortcut
    clickInEditor("Check33");  // also ticks startup and its "Checked"
    clickInEditor("Check3");
    clickInEditor("Check13");
    clickInEditor("Check6");
    clickInEditor("Check41");
    clickInEditor("Option5");
    clickInEditor("Check37");

    clickInEditor("Check1");
    typeInEditor("Text19", "Short licence");
    typeInEditor("Text22", "Terms");
    typeInEditor("Text23", "Show terms");
    dialogs.answerNextOpenFile(box.windowsPath("docs\\eula.rtf"));
    clickInEditor("Command16");
    typeInEditor("Text11", "Welcome to My App.\n\nEnjoy.");

    clickInEditor("Command2");  // the key the new project offers
    in<QComboBox>(editor(), "Combo2").setCurrentIndex(1);
    typeInEditor("Text3", "\\Software\\My App Shared");
    clickInEditor("Command2");
    clickInEditor("Command18");  // the application data folder the new project offers
    clickInEditor("Option2");    // offered once the registry list has an entry
    for (const char* dependency : {"helper.ocx", "lib\\x.dll"}) {
        clickInEditor("Command5");
        typeInEditor("Text30", dependency);
        clickInEditor("Command46");
    }
    dialogs.answerNextInput("myfont.ttf");
    clickInEditor("Command13");
}

void UserDay::saveWithTheButton() {
    auto& saver = in<aicAlphaImage>(editor(), "saver");
    QTest::mouseClick(&saver, Qt::LeftButton, {}, saver.rect().center());
}

// The "Start menu" link closes the editor and shows the index again.
void UserDay::backToTheIndex() {
    editor().Label21_Click();
    letEventsRun();
}

void UserDay::inPackagesManager(const std::function<void(packages&)>& work) {
    bool opened = false;
    // The manager is modal: the user works in it while the editor's click waits.
    QTimer::singleShot(0, &editor(), [&] {
        auto* manager = editor().findChild<packages*>();
        if (manager == nullptr) return;
        opened = true;
        work(*manager);
        in<QPushButton>(*manager, "Command1").click();
    });
    clickInEditor("Command35");
    EXPECT_TRUE(opened) << "the packages manager did not open";
}

void UserDay::inEditionsWindow(const std::function<void(editionsfrm&)>& work) {
    bool opened = false;
    QTimer::singleShot(0, &editor(), [&] {
        auto* window = editor().findChild<editionsfrm*>();
        if (window == nullptr) return;
        opened = true;
        work(*window);
        window->Command4->click();
        if (!window->isVisible()) return;
        ADD_FAILURE() << "the editions window does not close";
        window->reject();
    });
    clickInEditor("Command49");
    EXPECT_TRUE(opened) << "the editions window did not open";
}

std::string UserDay::root() {
    return box.windowsPath(std::string("Documents\\Orvanta\\myinstallers\\") + kProject);
}

std::string UserDay::rel(const std::string& below) {
    return std::string("Documents\\Orvanta\\myinstallers\\") + kProject + "\\" + below;
}

std::vector<std::string> UserDay::lines(const std::string& below) {
    const std::string text = bytes(below);
    std::vector<std::string> result;
    std::size_t from = 0;
    for (std::size_t end; (end = text.find("\r\n", from)) != std::string::npos; from = end + 2)
        result.push_back(text.substr(from, end - from));
    EXPECT_EQ(from, text.size()) << below << " does not end its last line with CR LF";
    return result;
}

std::string UserDay::crlf(const std::vector<std::string>& lines) {
    std::string text;
    for (const std::string& line : lines) text += line + "\r\n";
    return text;
}

UserDay::Snapshot UserDay::snapshot() {
    // The stored fields and the boxes that rule them.
    const std::vector<std::string> shownFields = split(
        "appName appAuthor startMenuShortcut desktopShortcut shortcutTooltip startupOption "
        "startupChecked website appSize quickLaunchShortcut quickLaunchChecked mainExecutable "
        "noRepair noModify appVersion rollEffect installPath minWindowsVersion authorFolder "
        "instantInstall licenseTitle licenseButtonCaption Option1 Option2 Option3 cleanAll anyFile "
        "lockInstallPath desktopChecked startMenuChecked startupArguments startupAllUsers "
        "supportLink helpLink updateInfoLink finalPackageName shortcutArguments startupRequired "
        "appIconOnRootFolder noUninstaller editionName showEditionName justRunMode Option4 Option5 "
        "updateIgnoreLicense updateRunApp updateSilent createRestorePoint introText tipsText "
        "uninstallIntroText uninstallEndText resumedLicenseEnabled resumedLicenseText "
        "fullLicenseFile registryLocations appDataLocations dependencies fonts files folders "
        "workingFolder Check23 Check15 Check31 Check32 Text10",
        ' ');
    mainfrmFields& editorFields = fields();
    Snapshot shown;
    for (const std::string& name : shownFields) {
        const ControlName control{name};
        QWidget* widget = editorFields.find(control);
        std::string seen;
        if (widget == nullptr) {
            ADD_FAILURE() << "no field " << name;
        } else if (qobject_cast<QAbstractButton*>(widget) != nullptr) {
            seen = std::to_string(editorFields.value(control));
        } else if (qobject_cast<QListWidget*>(widget) != nullptr) {
            for (const ListItem& item : editorFields.listItems(control))
                seen += item.text + (item.selected ? "[x]" : "") + "|";
        } else {
            seen = editorFields.text(control);
            if (auto* line = qobject_cast<QLineEdit*>(widget); line != nullptr && line->font().italic())
                seen += " (placeholder look)";
        }
        if (widget != nullptr && !widget->isEnabled()) seen += " (disabled)";
        shown[std::string(control.name)] = seen;
    }
    return shown;
}

void UserDay::expectRestored(const Snapshot& saved, const std::string& how, bool switchedBack) {
    const Snapshot now = snapshot();
    for (auto [field, expected] : saved) {
        if (switchedBack && (field == "files" || field == "folders")) continue;
        if (!switchedBack && field == "licenseButtonCaption") expected = "Read full license";
        if (!switchedBack && field == "fullLicenseFile") expected = "";
        EXPECT_EQ(now.at(field), expected) << field << ", " << how;
    }
}

}  // namespace orvanta::testing
