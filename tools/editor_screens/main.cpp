// Renders each page of the editor window, and the package dialog and the progress window of a
// build over it, into PNG files in the folder given as the argument, with a small project filled
// in so that lists and fields show what they hold; then the simulator's screens and the
// backgrounds manager.
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QLinearGradient>
#include <QListWidget>
#include <QPainter>
#include <QPlainTextEdit>
#include <QTabBar>
#include <QTemporaryDir>
#include <memory>

#include "builder/window/LetsPackage.h"
#include "builder/window/packaging.h"
#include "controls/QtDialogs.h"
#include "core/vars.h"
#include "editor/editionsfrm.h"
#include "editor/mainfrm.h"
#include "editor/themesmanager.h"
#include "image/widget/cCrossComm.h"
#include "platform/Host.h"
#include "simulator/WizardScreens.h"

namespace {

template <typename T>
T* control(orvanta::mainfrm& window, const char* name) {
    return window.findChild<T*>(QString::fromLatin1(name));
}

void fillSample(orvanta::mainfrm& window) {
    control<QLineEdit>(window, "Text1")->setText(QStringLiteral("Demo App"));
    control<QLineEdit>(window, "Text9")->setText(QStringLiteral("Demo Software Ltd"));
    control<QLineEdit>(window, "Text6")->setText(QStringLiteral("https://demo.example"));
    control<QLineEdit>(window, "Text2")
        ->setText(QStringLiteral("Z:\\home\\ann\\Documents\\Orvanta\\myinstallers\\Demo App"));
    window.appname_updater();
    control<QLineEdit>(window, "Text21")->setText(QStringLiteral("demo.exe"));
    for (const char* file : {"demo.exe", "readme.txt", "lib\\core.dll", "lib\\plugins\\ocr.ocx"})
        control<QListWidget>(window, "List6")->addItem(QString::fromLatin1(file));
    for (const char* folder : {"lib", "lib\\plugins"})
        control<QListWidget>(window, "List7")->addItem(QString::fromLatin1(folder));
    control<QListWidget>(window, "List2")->addItem(QStringLiteral("DemoSans.ttf"));
    control<QListWidget>(window, "List3")->addItem(QStringLiteral("HKCU\\Software\\Demo App"));
    control<QListWidget>(window, "List4")->addItem(QStringLiteral("ROAMING\\Demo App"));
    control<QComboBox>(window, "Combo5")->setEditText(QStringLiteral("<>"));
    control<QCheckBox>(window, "Check3")->setChecked(true);
    control<QCheckBox>(window, "Check28")->setChecked(true);
    control<QPlainTextEdit>(window, "Text11")
        ->setPlainText(QStringLiteral("Welcome to the setup of Demo App."));
    window.re_uninoptions();
}

// The editions window over a project with one edition and one version of another.
void renderEditions(orvanta::Host& host, orvanta::Dialogs& dialogs, const QString& dataFolder,
                    const QString& file) {
    using namespace orvanta;
    const std::string root = host.toWindowsPath((dataFolder + QStringLiteral("/Demo App")).toStdString());
    host.createFolder(root);
    host.writeFileAtomic(root + "\\mainsettings.cfg", "Demo App\r\n");
    const WorkingSetSource source{root, "Demo App", "", "", ""};
    createWorkingSet(host, source, "Pro", "");
    createWorkingSet(host, source, "Home", "2.0");
    EditionsContext context{[root] { return root; }, [root] { return root + "\\editions\\Pro"; },
                            [source] { return source; }, [](std::string, std::string) {}};
    editionsfrm window(host, dialogs, std::move(context));
    window.show();
    QApplication::processEvents();
    if (!window.grab().save(file)) qWarning("could not write %s", qPrintable(file));
}

void save(QWidget& window, const QString& file) {
    window.show();
    QApplication::processEvents();
    if (!window.grab().save(file)) qWarning("could not write %s", qPrintable(file));
}

// The package dialog as a machine with the private 7-Zip shows it, then the progress window
// halfway through a build.
void renderBuild(orvanta::Host& host, orvanta::Dialogs& dialogs, orvanta::mainfrm& editor,
                 const QString& folder) {
    using namespace orvanta;
    LetsPackage dialog(LetsPackageContext{host, dialogs, {}, nullptr}, &editor);
    save(dialog, folder + QStringLiteral("/LetsPackage.png"));
    packaging progress(host, dialogs, &editor, &dialog);
    progress.show();
    progress.setValue(35);
    progress.setCaption("Packaging setup files...");
    save(progress, folder + QStringLiteral("/packaging.png"));
}

// A project with a background, a logo, a licence and two packages, played by the simulator; its
// screens go to "installPreview" below the folder.
void renderSimulator(orvanta::Host& host, orvanta::Dialogs& dialogs, const QString& dataFolder,
                     const QString& folder) {
    using namespace orvanta;
    const QString root = dataFolder + QStringLiteral("/Sample");
    QDir().mkpath(root);
    QImage background(1920, 1080, QImage::Format_RGB32);
    QPainter painter(&background);
    QLinearGradient gradient(0, 0, 1920, 1080);
    gradient.setColorAt(0, QColor(214, 232, 247));
    gradient.setColorAt(1, QColor(250, 252, 255));
    painter.fillRect(background.rect(), gradient);
    painter.end();
    background.save(root + QStringLiteral("/1.jpg"), "PNG");
    // The pictures the program delivers beside itself: the row boxes and ticks, and a logo.
    const QString delivered = QCoreApplication::applicationDirPath() + QStringLiteral("/i/");
    QDir().mkpath(dataFolder + QStringLiteral("/app/i"));
    for (const char* picture : {"check.png", "ok.png", "default.png"})
        QFile::copy(delivered + QLatin1String(picture),
                    dataFolder + QStringLiteral("/app/i/") + QLatin1String(picture));
    QFile::copy(delivered + QStringLiteral("default.png"), root + QStringLiteral("/logo.png"));
    const std::string windowsRoot = host.toWindowsPath(root.toStdString());
    const char* lines[] = {"Sample App",
                           "Demo Software Ltd",
                           " 1 ",
                           " 1 ",
                           "",
                           "",
                           " 1 ",
                           " 0 ",
                           "https://demo.example",
                           "5242880",
                           " 1 ",
                           " 1 ",
                           "sample.exe",
                           " 0 ",
                           " 0 ",
                           "2.4",
                           " 0 ",
                           "<>",
                           "Windows XP",
                           " 1 ",
                           " 0 ",
                           "Licence agreement",
                           "Read the full licence",
                           "",
                           " 0 ",
                           "",
                           " 0 ",
                           " 1 ",
                           " 0 "};
    std::string settings;
    for (const char* line : lines) settings += std::string(line) + "\r\n";
    host.writeFileAtomic(windowsRoot + "\\mainsettings.cfg", settings);
    host.writeFileAtomic(
        windowsRoot + "\\packages.cfg",
        "Samples\r\n<>\r\nExample documents to try the program on.\r\n1\r\n0\r\n1024\r\n0\r\n"
        "Runtime\r\n<>\r\nThe runtime the program needs.\r\n0\r\n1\r\n2048\r\n0\r\n");
    host.writeFileAtomic(windowsRoot + "\\slicense.txt",
                         "Sample App is free to use for any purpose.\r\nIt comes without any warranty.\r\n");
    const WizardProject project{"Sample App", windowsRoot, windowsRoot,
                                "Sample App keeps your notes in order and finds them again in an instant.",
                                "Tip: press F3 to search all your notes at once."};
    const WizardScreensResult result =
        writeWizardScreens(host, dialogs, project, folder + QStringLiteral("/installPreview"));
    if (!result.error.empty()) qWarning("simulator: %s", result.error.c_str());
}

// The backgrounds manager over four pictures of the workspace, on the second of them.
void renderBackgrounds(orvanta::Host& host, orvanta::Dialogs& dialogs, const QString& dataFolder,
                       const QString& file) {
    using namespace orvanta;
    const QString workspace = dataFolder + QStringLiteral("/workspace");
    QDir().mkpath(workspace + QStringLiteral("/backgrounds"));
    const std::pair<const char*, std::pair<QColor, QColor>> pictures[] = {
        {"Dawn.jpg", {QColor(250, 200, 150), QColor(120, 90, 160)}},
        {"Ocean.jpg", {QColor(20, 40, 120), QColor(140, 200, 240)}},
        {"Meadow.png", {QColor(60, 150, 60), QColor(230, 230, 120)}},
        {"Slate.png", {QColor(60, 60, 70), QColor(200, 200, 210)}}};
    for (const auto& [name, colours] : pictures) {
        QImage picture(960, 540, QImage::Format_RGB32);
        QPainter painter(&picture);
        QLinearGradient gradient(0, 0, 960, 540);
        gradient.setColorAt(0, colours.first);
        gradient.setColorAt(1, colours.second);
        painter.fillRect(picture.rect(), gradient);
        painter.end();
        picture.save(workspace + QStringLiteral("/backgrounds/") + QLatin1String(name), "PNG");
    }
    vars::workspaceFolder = host.toWindowsPath(workspace.toStdString());
    themesmanagerContext context(host, dialogs);
    context.workingFolder = host.toWindowsPath((dataFolder + QStringLiteral("/Sample")).toStdString());
    themesmanager window(std::move(context));
    window.show();
    window.Command1_Click();
    save(window, file);
}

}  // namespace

int main(int argc, char** argv) {
    using namespace orvanta;
    QApplication application(argc, argv);
    // A host of its own, so the pictures never touch the user's settings or simulated drive.
    QTemporaryDir data;
    HostConfig config;
    config.dataFolder = data.path().toStdString();
    // A program folder with the private 7-Zip, so that the package dialog has an archiver to offer.
    QDir().mkpath(data.path() + QStringLiteral("/app/7z"));
    QFile sevenZip(data.path() + QStringLiteral("/app/7z/7z.exe"));
    sevenZip.open(QIODevice::WriteOnly);
    sevenZip.close();
    config.applicationFolder =
        createHost(config)->toWindowsPath((data.path() + QStringLiteral("/app")).toStdString());
    const std::unique_ptr<Host> host = createHost(config);
    cCrossComm::instance().setHost(host.get());
    QtDialogs dialogs(*host);
    mainfrm window(mainfrmContext{*host, dialogs});
    fillSample(window);
    window.show();
    // Each page must fit the window's size, or some control would be cut off.
    for (int page = 0; page < 3; ++page) {
        window.findChild<QTabBar*>(QStringLiteral("TabStrip1"))->setCurrentIndex(page);
        const QSize needed = window.minimumSizeHint();
        if (needed.width() > window.width() || needed.height() > window.height())
            qWarning("page %d needs %dx%d, the window is %dx%d", page + 1, needed.width(), needed.height(),
                     window.width(), window.height());
    }
    if (argc < 2) return QApplication::exec();

    const QString folder = QString::fromLocal8Bit(argv[1]);
    QDir().mkpath(folder);
    const char* pages[] = {"general", "installer", "uninstaller"};
    for (int page = 0; page < 3; ++page) {
        window.findChild<QTabBar*>(QStringLiteral("TabStrip1"))->setCurrentIndex(page);
        QApplication::processEvents();
        const QString file =
            folder + QStringLiteral("/mainfrm_") + QString::fromLatin1(pages[page]) + QStringLiteral(".png");
        if (!window.grab().save(file)) qWarning("could not write %s", qPrintable(file));
    }
    renderEditions(*host, dialogs, data.path(), folder + QStringLiteral("/editionsfrm.png"));
    renderBuild(*host, dialogs, window, folder);
    renderSimulator(*host, dialogs, data.path(), folder);
    renderBackgrounds(*host, dialogs, data.path(), folder + QStringLiteral("/themesmanager.png"));
    return 0;
}
