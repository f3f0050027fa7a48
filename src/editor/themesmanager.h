#pragma once
// The backgrounds manager: walks through the pictures of the workspace's "backgrounds" folder,
// shows the neighbours of the current one, can show it live in the simulator, and applies it as
// the working set's background "\1.jpg".

#include <QPoint>
#include <QWidget>
#include <memory>
#include <string>
#include <vector>

#include "core/Dialogs.h"
#include "platform/Host.h"

class QTimer;

namespace Ui {
class themesmanager;
}

namespace orvanta {

class BackgroundPreview;
class aicAlphaImage;

struct themesmanagerContext {
    themesmanagerContext(Host& hostIn, Dialogs& dialogsIn) : host(hostIn), dialogs(dialogsIn) {}

    Host& host;
    Dialogs& dialogs;
    std::string workingFolder;                  // where "\1.jpg" goes
    aicAlphaImage* editorBackground = nullptr;  // the editor's picture of the applied background
    BackgroundPreview* preview = nullptr;       // the simulator as a viewer; none: nothing is shown live
};

class themesmanager : public QWidget {
    Q_OBJECT
public:
    explicit themesmanager(themesmanagerContext context, QWidget* parent = nullptr);
    ~themesmanager() override;

    QTimer* Timer1 = nullptr;  // its one tick puts the window in its place
    bool emptyFolder() const { return emptyFolder_; }
    int currentRow() const;

public slots:
    void Command1_Click();
    void Command2_Click();
    void HScroll1_Change(int value);
    void Check1_Click();
    void label1_Change(const QString& text);
    void Command3_Click();
    void Command4_Click();
    void Command5_Click();
    void Timer1_Timer();

protected:
    void showEvent(QShowEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void Form_Load();
    void selectRow(int row);
    void walk(int step);
    void showPosition();
    std::string fileAt(int row) const;
    std::string currentFile() const;
    bool copyOverBackground();
    void openPreview();
    void placeAlone();
    void placeBesidePreview();

    themesmanagerContext context_;
    std::unique_ptr<Ui::themesmanager> ui_;
    std::vector<std::string> names_;
    bool emptyFolder_ = false;
    bool copiedOverBackground_ = false;
    QPoint placedAt_;
};

}  // namespace orvanta
