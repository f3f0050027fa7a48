// The control gallery: each control in its states and the editor's windows over a small sample
// project, shown in windows, or with a folder as its argument rendered into PNG files there (what
// scripts/screenshots does offscreen).
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QGroupBox>
#include <QLabel>
#include <QTemporaryDir>
#include <QVBoxLayout>
#include <functional>
#include <memory>

#include "controls/QtDialogs.h"
#include "controls/about.h"
#include "controls/ctlListView.h"
#include "controls/ctlProgressBar.h"
#include "controls/frmButton.h"
#include "core/RegistryAPI.h"
#include "core/vars.h"
#include "editor/optionsfrm.h"
#include "editor/packages.h"
#include "image/widget/cCrossComm.h"
#include "pictures.h"
#include "platform/Host.h"
#include "project/window/ProjectEditor.h"
#include "project/window/start.h"
#include "ui_start.h"

namespace orvanta {
namespace {

struct Shot {
    QString name;
    QWidget* widget;
};

void fillListView(ctlListView& list, int view) {
    list.create();
    list.setView(view);
    list.setCheckboxes(true);
    list.setGridLines(true);
    list.setFullRowSelect(true);
    list.ColumnHeadersAdd("Package", 150);
    list.ColumnHeadersAdd("Folder", 150);
    list.ColumnHeadersAdd("Size", 70, LVCFMT_RIGHT);
    const char* rows[][3] = {{"Runtime libraries", "Program Files\\", "12 MB"},
                             {"Sample projects", "User MyDocuments\\", "3 MB"},
                             {"Themes", "Themes\\", "800 KB"},
                             {"Help files", "<>", "1 MB"}};
    for (const auto& row : rows) {
        const int index = list.ListItemsCount();
        list.ListItemsAdd(index, row[0]);
        list.setSubItems(index, 1, row[1]);
        list.setSubItems(index, 2, row[2]);
    }
    list.setItemChecked(0, true);
    list.setItemChecked(2, true);
    list.setListItemsSelected(1, true);
    // The owner colours one cell, as a caller of the pre-paint event would.
    QObject::connect(&list, &ctlListView::OnSubItemPrePaint,
                     [](int item, int subItem, QColor& fore, QColor& back) {
                         if (item == 3 && subItem == 2) {
                             fore = Qt::white;
                             back = QColor(0xc0, 0x39, 0x2b);
                         }
                     });
}

ctlProgressBar* progressBar(Dialogs& dialogs, int value, int scrolling, int state) {
    auto* bar = new ctlProgressBar(dialogs);
    bar->setScrolling(scrolling);
    bar->setValue(value);
    bar->setState(state);
    bar->setFixedSize(260, 22);
    return bar;
}

QWidget* progressBars(Dialogs& dialogs) {
    auto* box = new QGroupBox(QStringLiteral("ctlProgressBar"));
    auto* layout = new QVBoxLayout(box);
    const auto add = [&](const char* caption, ctlProgressBar* bar) {
        layout->addWidget(new QLabel(QString::fromLatin1(caption)));
        layout->addWidget(bar);
    };
    add("Blocks, 40", progressBar(dialogs, 40, kScrollingStandard, kProgressStateNormal));
    add("Smooth, 70", progressBar(dialogs, 70, kScrollingSmooth, kProgressStateNormal));
    add("Error state", progressBar(dialogs, 55, kScrollingSmooth, kProgressStateError));
    add("Paused state", progressBar(dialogs, 30, kScrollingSmooth, kProgressStatePaused));
    auto* marquee = progressBar(dialogs, 0, kScrollingSmooth, kProgressStateNormal);
    marquee->setMarquee(true);
    add("Marquee", marquee);
    return box;
}

// A project "Demo" with three packages in a workspace below `folder`, and the settings key.
void makeSampleProject(Host& host, const QString& folder) {
    vars::workspaceFolder = host.toWindowsPath(folder.toStdString());
    vars::settingsRootKey = "HKCU\\Software\\Orvanta";
    const std::string root = vars::workspaceFolder + "\\myinstallers\\Demo";
    for (const char* part : {"\\myinstallers", "\\myinstallers\\Demo", "\\myinstallers\\Demo\\packages"})
        host.createFolder(vars::workspaceFolder + part);
    host.writeFileAtomic(root + "\\packages.cfg",
                         "Runtime libraries\r\nProgram Files\\Common\r\nShared runtime\r\n1\r\n1\r\n"
                         "2482176\r\n1\r\nSample projects\r\nUser MyDocuments\\Samples\r\n"
                         "Examples to start from\r\n0\r\n0\r\n733184\r\n1\r\nDark theme\r\n"
                         "Themes\\Dark\r\nA darker look\r\n1\r\n0\r\n90112\r\n1\r\n");
    RegistryAPI registry(host);
    registry.createRegistryKey(vars::settingsRootKey + "\\Settings");
    registry.writeSettingNumber(vars::settingsRootKey + "\\Settings", "saveAlways", 1);
}

// The index window is shown on its own here: nothing it asks of the editor does anything.
class NoEditor : public ProjectEditor {
public:
    void beginNewProject(const std::string&, const std::string&, const std::string&) override {}
    void showLogo(const std::string&) override {}
    void showBackground(const std::string&) override {}
    QWidget& showNewProject() override { return window_; }
    void saveNewProject() override {}
    bool openProject(const std::string&) override { return false; }

private:
    QWidget window_;
};

PackagesContext sampleEditor() {
    const std::string root = vars::workspaceFolder + "\\myinstallers\\Demo";
    return {[root] { return root; }, {}, {}};
}

void render(const std::vector<Shot>& shots, const QString& folder) {
    QDir().mkpath(folder);
    for (const Shot& shot : shots) {
        shot.widget->show();
        QApplication::processEvents();
        const QString file = QDir(folder).filePath(shot.name + QStringLiteral(".png"));
        if (!shot.widget->grab().save(file)) qWarning("could not write %s", qPrintable(file));
    }
}

}  // namespace
}  // namespace orvanta

int main(int argc, char** argv) {
    using namespace orvanta;
    QApplication application(argc, argv);
    // A host of its own, so the gallery never touches the user's settings or simulated drive.
    QTemporaryDir data;
    HostConfig config;
    config.dataFolder = data.path().toStdString();
    const std::unique_ptr<Host> host = createHost(config);
    QtDialogs dialogs(*host);

    ctlListView report(dialogs);
    report.resize(400, 150);
    fillListView(report, LVS_REPORT);
    ctlListView list(dialogs);
    list.resize(400, 150);
    fillListView(list, LVS_LIST);
    std::unique_ptr<QWidget> bars(progressBars(dialogs));
    cCrossComm::instance().setHost(host.get());
    std::unique_ptr<QWidget> pictures(pictureControls());
    frmButton browser(*host, dialogs);
    browser.prepare({"Choose the folder of the application files",
                     host->toWindowsPath(QDir::homePath().toStdString()), true, true});
    about aboutWindow(*host, dialogs);
    QTemporaryDir workspace;
    makeSampleProject(*host, workspace.path());
    packages packagesWindow(*host, dialogs, sampleEditor());
    packagesWindow.show();
    packagesWindow.List1()->setListItemsSelected(1, true);
    emit packagesWindow.List1()->ItemClick(1);
    optionsfrm optionsWindow(*host);
    host->writeFileAtomic(vars::workspaceFolder + "\\myinstallers\\Demo\\mainsettings.cfg",
                          "Demo\r\nDemo Software Ltd.\r\n");
    NoEditor noEditor;
    start startWindow(*host, dialogs, [&]() -> ProjectEditor& { return noEditor; });
    startWindow.ui().Combo1->setCurrentIndex(0);
    startWindow.Combo1_Click();

    const std::vector<Shot> shots{{"listview_report", &report},
                                  {"listview_list", &list},
                                  {"progressbar_states", bars.get()},
                                  {"picture_control", pictures.get()},
                                  {"folder_browser", &browser},
                                  {"about", &aboutWindow},
                                  {"packages", &packagesWindow},
                                  {"optionsfrm", &optionsWindow},
                                  {"start", &startWindow}};
    if (argc > 1) {
        render(shots, QString::fromLocal8Bit(argv[1]));
        return 0;
    }
    for (const Shot& shot : shots) shot.widget->show();
    return QApplication::exec();
}
