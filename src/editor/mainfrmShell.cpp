// The shell of the editor: pages, the image buttons of the header and their highlight.
#include <QEvent>
#include <QPushButton>
#include <QShowEvent>
#include <QTabBar>

#include "core/commonFunctions.h"
#include "editor/EditorPictures.h"
#include "editor/Mnemonics.h"
#include "editor/mainfrm.h"
#include "image/widget/aicAlphaImage.h"
#include "ui_mainfrm.h"

namespace orvanta {

namespace {

constexpr const char* kTitleProperty = "orvantaTitle";
constexpr const char* kTipProperty = "orvantaTip";
constexpr const char* kLaterVersion = " This comes in a later version of Orvanta.";

}  // namespace

void mainfrm::connectShell() {
    QTabBar* strip = ui_->TabStrip1;
    // The handler also runs on the strip's further mouse events, so a click on the shown tab
    // shows its page again.
    connect(strip, &QTabBar::currentChanged, this, &mainfrm::TabStrip1_Click);
    connect(strip, &QTabBar::tabBarClicked, this, &mainfrm::TabStrip1_Click);
    connect(strip, &QTabBar::tabBarDoubleClicked, this, &mainfrm::TabStrip1_Click);
    connectImageButton(*ui_->packageit, "Package it!", "Creates the final package all-in-one file.");
    connectImageButton(*ui_->saver, "Save project", "Saves every setting except packages and settings set");
    const std::string simulate =
        "Attention: The project must be saved before the simulation starts. This simulation may not reflect "
        "the final package.";
    connectImageButton(*ui_->pre, "Simulate installation",
                       (context_.showInstallPreview ? simulate : simulate + kLaterVersion).c_str());
    for (aicAlphaImage* files : {ui_->filesfolder, ui_->logo2})
        connectImageButton(*files, "Open application files folder",
                           "All of your application files must me copied to this folder.");
    ui_->pre->setEnabled(static_cast<bool>(context_.showInstallPreview));
    connect(ui_->packageit, &aicAlphaImage::Click, this, &mainfrm::packageit_Click);
    connect(ui_->saver, &aicAlphaImage::Click, this, &mainfrm::saver_Click);
    connect(ui_->pre, &aicAlphaImage::Click, this, &mainfrm::pre_Click);
    connect(ui_->filesfolder, &aicAlphaImage::Click, this, &mainfrm::filesfolder_Click);
    connect(ui_->logo2, &aicAlphaImage::Click, this, &mainfrm::filesfolder_Click);
    connect(ui_->Command35, &QPushButton::clicked, this, [this] {
        if (context_.showPackages) context_.showPackages();
    });
    connect(ui_->Command49, &QPushButton::clicked, this, [this] {
        if (context_.showEditions) context_.showEditions();
    });
    connectHeader();
}

void mainfrm::drawPictures() {
    const int size = ui_->saver->minimumWidth();
    ui_->packageit->LoadImage_FromHandle(buttonPicture(ButtonFace::Package, size));
    ui_->saver->LoadImage_FromHandle(buttonPicture(ButtonFace::Save, size));
    ui_->pre->LoadImage_FromHandle(buttonPicture(ButtonFace::Simulate, size));
    ui_->filesfolder->LoadImage_FromHandle(buttonPicture(ButtonFace::Folder, size));
    // A disabled button is drawn in grey, so that it does not offer a click it cannot take.
    if (!context_.showInstallPreview) ui_->pre->setgrayScale(1);
    const char* titles[][2] = {{"General", "Application, graphics and licences"},
                               {"Installer", "What the installer asks and does"},
                               {"Uninstaller", "What the uninstaller removes"}};
    for (std::size_t i = 0; i < modeimg.size(); ++i)
        modeimg[i]->LoadImage_FromHandle(bannerPicture(
            QString::fromLatin1(titles[i][0]), QString::fromLatin1(titles[i][1]), modeimg[i]->minimumSize()));
    for (aicAlphaImage* placeholder : noway)
        placeholder->LoadImage_FromHandle(placeholderPicture(placeholder->minimumSize()));
    shade->LoadImage_FromHandle(shadePicture(QSize(64, 64)));
    shade->resize(64, 64);
    shade->setOpacity(0);
}

void mainfrm::connectImageButton(aicAlphaImage& image, const char* title, const char* tip) {
    const std::string titleText = title;
    const std::string tipText = tip;
    // A disabled picture sends no mouse events of its own; the window watches its pointer instead.
    image.setProperty(kTitleProperty, QByteArray(title));
    image.setProperty(kTipProperty, QByteArray(tip));
    image.installEventFilter(this);
    connect(&image, &aicAlphaImage::MouseEnter, this, [this, &image, titleText, tipText] {
        showTitle(titleText);
        showTip(tipText);
        highlight(image, true);
    });
    connect(&image, &aicAlphaImage::MouseExit, this, [this, &image] {
        showTitle("");
        highlight(image, false);
    });
}

bool mainfrm::filterDisabledImage(QObject* watched, QEvent* event) {
    auto* image = qobject_cast<aicAlphaImage*>(watched);
    if (image == nullptr || image->isEnabled() || !image->property(kTitleProperty).isValid()) return false;
    if (event->type() == QEvent::Enter) {
        showTitle(image->property(kTitleProperty).toByteArray().toStdString());
        showTip(image->property(kTipProperty).toByteArray().toStdString());
    }
    if (event->type() == QEvent::Leave) showTitle("");
    return true;
}

void mainfrm::highlight(aicAlphaImage& image, bool on) {
    if (on) {
        shade->setGeometry(image.geometry().adjusted(-10, -10, 10, 10));
        shade->lower();
        shade->show();
        shade->FadeInOut(100, 15, 10);
    } else {
        shade->FadeInOut(0, 5, 10);
    }
}

void mainfrm::showPage(int page) {
    // The focus of a page that goes moves to the strip rather than on to the header's buttons.
    QWidget* const pictures[] = {ui_->Picture1, ui_->Picture2, ui_->Picture3};
    QWidget* focus = focusWidget();
    for (int i = 0; i < 3; ++i)
        if (i + 1 != page && focus != nullptr && pictures[i]->isAncestorOf(focus))
            ui_->TabStrip1->setFocus(Qt::OtherFocusReason);
    ui_->Picture1->setVisible(page == 1);
    ui_->Picture2->setVisible(page == 2);
    ui_->Picture3->setVisible(page == 3);
    for (std::size_t i = 0; i < modeimg.size(); ++i) modeimg[i]->setVisible(static_cast<int>(i) + 1 == page);
    if (page == 1) loadPreview();
}

// The loader's end shows the window: the preview of the project just opened comes with it.
void mainfrm::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    if (event->spontaneous()) return;
    loadPreview();
    focusTheTabs();
}

// A load disables the window, which loses its focus; enabled again it starts from the tabs.
void mainfrm::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::EnabledChange && isEnabled()) focusTheTabs();
}

int mainfrm::shownPage() const {
    if (ui_->Picture1->isVisibleTo(this)) return 1;
    if (ui_->Picture2->isVisibleTo(this)) return 2;
    if (ui_->Picture3->isVisibleTo(this)) return 3;
    return 0;
}

void mainfrm::TabStrip1_Click() {
    const QString caption = withoutMnemonic(ui_->TabStrip1->tabText(ui_->TabStrip1->currentIndex()));
    if (caption == QLatin1String("General")) showPage(1);
    if (caption == QLatin1String("Installer")) showPage(2);
    if (caption == QLatin1String("Uninstaller")) showPage(3);
}

void mainfrm::Label22_Click() {
    showPage(2);
}

void mainfrm::Label23_Click() {
    showPage(3);
}

void mainfrm::saver_Click() {
    saveProject();
}

void mainfrm::filesfolder_Click() {
    shellOpen(context_.host, context_.dialogs, workingFolder() + "\\files", "");
}

}  // namespace orvanta
