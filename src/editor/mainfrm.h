#pragma once
// The editor window. While a project is open its controls are the project's data: the loader
// fills them and the saver reads them back, each control reached by its object name ("Text21",
// "Check23", "noway" 1 through the arrays below). The window itself keeps the rules that tie the
// fields together, the item lists, the view of the application's files and the asset buttons.

#include <QPoint>
#include <QPointer>
#include <QWidget>
#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "builder/PerEntryPacker.h"
#include "core/Dialogs.h"
#include "editor/settingsSetsfrm.h"
#include "platform/Host.h"

class QLabel;
class QLineEdit;
class QListWidget;
class QTabBar;
class QTimer;

namespace Ui {
class mainfrm;
}

namespace orvanta {

class aicAlphaImage;
class optionsfrm;

// What the editor needs from the rest of the program. Windows that belong to other parts are
// reached through these hooks; an empty hook does nothing.
struct mainfrmContext {
    mainfrmContext(Host& hostIn, Dialogs& dialogsIn) : host(hostIn), dialogs(dialogsIn) {}

    Host& host;
    Dialogs& dialogs;
    std::function<void()> project_saver;
    std::function<void()> showPackages;        // Command35
    std::function<void()> showStart;           // after leaving by the "Start menu" link
    std::function<void()> showEditions;        // the editions and versions window
    std::function<void()> unloadStart;         // after leaving any other way: the program ends
    std::function<void()> showBackgrounds;     // Command1, the backgrounds manager
    std::function<void()> showInstallPreview;  // the simulator; without it `pre` stays disabled
    std::function<void()> showLetsPackage;     // the package dialog, once the checks of `packageit` pass
};

class mainfrm : public QWidget, public PackerTimers {
    Q_OBJECT
public:
    explicit mainfrm(mainfrmContext context, QWidget* parent = nullptr);
    ~mainfrm() override;

    Ui::mainfrm& controls() { return *ui_; }
    // The control arrays of the window.
    std::array<aicAlphaImage*, 3> modeimg{};  // the header picture of each tab
    std::array<aicAlphaImage*, 2> noway{};    // placeholders: 0 of the preview, 1 of the logo
    aicAlphaImage* shade = nullptr;           // the highlight behind the image buttons
    int packagerItemIndex = 0;                // kept here for the packing loop
    QTimer* Timer3 = nullptr;                 // the packing loop's watch on its batch file, 50 ms
    QTimer* Timer2 = nullptr;                 // started at the loop's end, 2000 ms, no action

    void setTimer3Enabled(bool enabled) override;
    void setTimer2Enabled(bool enabled) override;

    // ---- The shell
    void appname_updater();
    void CheckFormStatus(const QWidget& form);
    // Shows page 1, 2 or 3 (Picture1 to Picture3) and its header picture, leaving the strip as it is.
    void showPage(int page);
    int shownPage() const;
    std::string workingFolder() const;
    // The tip line: a title for controlTips and a text for tips.
    void showTip(const std::string& text);
    void showTitle(const std::string& title);

    // ---- Field rules
    void install_path_updater();
    void cleanall_updater();
    void re_uninoptions();
    void setPlaceholderLook(QLineEdit& box, bool on);

public slots:
    void TabStrip1_Click();
    void packageit_Click();
    void Timer3_Timer();
    void saver_Click();
    void pre_Click();
    void filesfolder_Click();
    void Label21_Click();
    void Label22_Click();
    void Label23_Click();
    // The "Options" link: one options window, without modality, owned by the editor.
    void Label24_Click();

    // Item lists
    void Command5_Click();
    void Command46_Click();
    void Command4_Click();
    void Command2_Click();
    void Command3_Click();
    void Command18_Click();
    void Command19_Click();
    void Command43_Click();
    void Command42_Click();
    void Command48_Click();
    void Command47_Click();
    void Command13_Click();
    void Command12_Click();
    void Command30_Click();
    void Command32_Click();

    // Application files view
    void Command33_Click();
    void Command34_Click();
    void Command45_Click();

    // Assets
    void Command15_Click();
    void Command40_Click();
    void Command14_Click();
    void Command38_Click();
    void Command16_Click();
    void Command8_Click();
    void Command41_Click();
    void Command26_Click();
    void Command39_Click();
    void Command36_Click();
    void Command37_Click();
    void Command44_Click();
    // The preview is not loaded with the project: the window fetches it when the working folder
    // changes, when it is shown and when the page of the preview is shown.
    void loadPreview();
    // Tells the user why a damaged PNG could not be shown, in its reader's words; any other
    // picture that fails stays silent.
    void reportUnreadablePicture(const aicAlphaImage& control, const std::string& path);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;

signals:
    // A drag on the header band has handed the window to the system's move.
    void moveStarted();

private:
    void Form_Load();
    void fillLists();
    void drawPictures();
    void connectShell();
    void connectFieldRules();
    void connectDependentChecks();
    void connectLicenseGroup();
    void connectLists();
    void connectAssets();
    void connectFilesView();
    void enableLicenseGroup(bool on);
    void installTips();
    void connectImageButton(aicAlphaImage& image, const char* title, const char* tip);
    void highlight(aicAlphaImage& image, bool on);
    bool askToSave(const std::string& question);
    void saveProject();
    void connectHeader();
    void connectKeyboard();
    void focusTheTabs();
    std::vector<aicAlphaImage*> imageButtons() const;
    bool filterKeyboard(QObject* watched, QEvent* event);
    std::vector<QLabel*> links() const;
    void activateLink(QLabel& link);
    void startDrag();
    bool filterFocus(QObject* watched, QEvent* event);
    bool filterMouse(QObject* watched, QEvent* event);
    bool filterHeaderDrag(QEvent* event);
    bool filterDisabledImage(QObject* watched, QEvent* event);

    // Field rules
    void Check23_Changed(bool on);
    void Check22_Changed(bool on);
    void Check1_Changed(bool on);
    void Option5_Changed(bool on);
    void placeholderFocusIn(QLineEdit& box);
    void placeholderFocusOut(QLineEdit& box);
    void countCharacters();

    // Item lists
    void locationButtons(QListWidget& list, QWidget& remove, QWidget& up, QWidget& down);
    void addLocation(QListWidget& list, const QString& text);
    void removeLocation(QListWidget& list, QWidget& remove);
    void moveLocation(QListWidget& list, int by);
    void listButtonStates();

    // Assets
    std::string pickFile(const std::string& title, const std::string& filter, const std::string& pattern,
                         const std::string& folder);
    std::string licensePath() const;
    void showAgain(aicAlphaImage& control, const std::string& file);

    mainfrmContext context_;
    std::unique_ptr<Ui::mainfrm> ui_;
    bool choosingExecutable_ = false;
    QPointer<optionsfrm> options_;
    std::optional<QPoint> dragFrom_;  // where a press on the header band began
};

}  // namespace orvanta
