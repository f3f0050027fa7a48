// Renders each page of the editor window, and the package dialog and the progress window of a
// build over it, into PNG files in the folder given as the argument, with a small project filled
// in so that lists and fields show what they hold.
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QTabBar>
#include <QTemporaryDir>
#include <memory>

#include "builder/window/LetsPackage.h"
#include "builder/window/packaging.h"
#include "controls/QtDialogs.h"
#include "editor/editionsfrm.h"
#include "editor/mainfrm.h"
#include "image/widget/cCrossComm.h"
#include "platform/Host.h"

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
    return 0;
}
