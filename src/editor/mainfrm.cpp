#include "editor/mainfrm.h"

#include <QApplication>
#include <QTabBar>
#include <QTimer>

#include "core/vars.h"
#include "editor/FormText.h"
#include "image/widget/aicAlphaImage.h"
#include "ui_mainfrm.h"

namespace orvanta {

mainfrm::mainfrm(mainfrmContext context, QWidget* parent)
    : QWidget(parent), context_(std::move(context)), ui_(std::make_unique<Ui::mainfrm>()) {
    ui_->setupUi(this);
    modeimg = {ui_->modeimg_0, ui_->modeimg_1, ui_->modeimg_2};
    noway = {ui_->noway_0, ui_->noway_1};
    shade = new aicAlphaImage(ui_->header);
    shade->setObjectName(QStringLiteral("shade"));
    shade->setAttribute(Qt::WA_TransparentForMouseEvents);
    shade->lower();
    // The packing loop's timers are made stopped; only the loop itself starts them.
    Timer3 = new QTimer(this);
    Timer3->setInterval(50);
    Timer2 = new QTimer(this);
    Timer2->setInterval(2000);
    connect(Timer3, &QTimer::timeout, this, &mainfrm::Timer3_Timer);
    connectShell();
    connectFieldRules();
    connectDependentChecks();
    connectLicenseGroup();
    connectLists();
    connectAssets();
    connectFilesView();
    installTips();
    Form_Load();
    connectKeyboard();
}

mainfrm::~mainfrm() = default;

void mainfrm::Form_Load() {
    setWindowIcon(QApplication::windowIcon());
    drawPictures();
    for (const char* tab : {"General", "Installer", "Uninstaller"})
        ui_->TabStrip1->addTab(QString::fromLatin1(tab));
    showPage(1);
    fillLists();
    ui_->Text11->setProperty("maxLength", 500);
    ui_->Text12->setProperty("maxLength", 420);
    for (QLineEdit* box : {ui_->Text14, ui_->Text28, ui_->Text29, ui_->Text26, ui_->Text31, ui_->Text7})
        setPlaceholderLook(*box, true);
    // A value the user cannot type into does not look like a box that takes typing.
    for (QLineEdit* box : findChildren<QLineEdit*>()) {
        if (!box->isReadOnly()) continue;
        QPalette look = box->palette();
        look.setColor(QPalette::Base, look.color(QPalette::Window));
        box->setPalette(look);
    }
    ui_->Text30->hide();
    ui_->Command46->hide();
    // Without a licence the licence group waits for its box; nothing in the folder is touched yet.
    enableLicenseGroup(false);
    re_uninoptions();
    appname_updater();
}

void mainfrm::fillLists() {
    for (const char* version : {"Windows 2000", "Windows XP", "Windows Vista", "Windows 7"})
        ui_->Combo4->addItem(QString::fromLatin1(version));
    ui_->Combo4->setCurrentIndex(1);
    vars::compressionLevel = 5;
    for (const char* root : {"HKLM", "HKCU"}) ui_->Combo2->addItem(QString::fromLatin1(root));
    ui_->Combo2->setCurrentIndex(0);
    for (const char* place : {"LOCAL\\", "ROAMING\\", "ALL\\"})
        ui_->Combo3->addItem(QString::fromLatin1(place));
    ui_->Combo3->setCurrentIndex(1);
    const QSignalBlocker quiet(ui_->Combo5);
    for (const char* place :
         {"<>", "Themes\\", "User Local ApplicationData\\", "User ApplicationData (Roaming)\\",
          "Allusers ApplicationData\\", "User MyDocuments\\"})
        ui_->Combo5->addItem(QString::fromLatin1(place));
    ui_->Combo5->setCurrentIndex(-1);
    ui_->Combo5->setEditText(QStringLiteral("<>"));
}

void mainfrm::appname_updater() {
    install_path_updater();
    const std::string name = textOf(*ui_->Text1);
    setTextOf(*ui_->Text18, "Thanks for using " + name + "!");
    setTextOf(*ui_->Text4, name);
    setTextOf(*ui_->Text3, "\\Software\\" + name);
    setTextOf(*ui_->Text13, textOf(*ui_->Text9));
    setTextOf(*ui_->Text15, name);
    setTextOf(*ui_->Text8, "install" + name + ".exe");
}

void mainfrm::CheckFormStatus(const QWidget& form) {
    const QString wanted = form.objectName().trimmed();
    bool loaded = false;
    bool shown = false;
    for (const QWidget* window : QApplication::topLevelWidgets()) {
        if (window->objectName().trimmed() != wanted) continue;
        loaded = true;
        shown = window->isVisible();
    }
    const auto flag = [](bool value) { return std::string(value ? "True" : "False"); };
    context_.dialogs.messageBox({"Load Status: " + flag(loaded) + "\r\nShow Status:" + flag(shown),
                                 MessageButtons::Ok, MessageIcon::None, ""});
}

std::string mainfrm::workingFolder() const {
    return textOf(*ui_->Text2);
}

void mainfrm::showTip(const std::string& text) {
    setTextOf(*ui_->tips, text);
}

void mainfrm::showTitle(const std::string& title) {
    setTextOf(*ui_->controlTips, title);
}

}  // namespace orvanta
