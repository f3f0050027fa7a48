#pragma once
// The project index: a form for a new project beside the list of saved projects with a preview
// of the selected one. From here a project is created, opened or removed; its label `loading`
// also shows the loader's progress.

#include <QWidget>
#include <functional>
#include <map>
#include <memory>
#include <string>

#include "core/Dialogs.h"
#include "platform/Host.h"
#include "project/ProjectIndex.h"
#include "project/window/ElidedLabel.h"

namespace Ui {
class start;
}
class QLineEdit;

namespace orvanta {

class PlaceholderText;
class ProjectEditor;

class start : public QWidget {
    Q_OBJECT
public:
    // `editor` loads the editor window on first use and gives it.
    start(Host& host, Dialogs& dialogs, std::function<ProjectEditor&()> editor, QWidget* parent = nullptr);
    ~start() override;

    Ui::start& ui() { return *ui_; }
    ElidedLabel* loading() const;
    // The status line: the whole text, shortened to the window's width with the rest in its tip.
    void showStatus(const QString& text);
    const std::string& sourceFolder() const { return sourceFolder_; }

    // The window's events, public so that the program and tests reach them as the user does.
    void Form_Load();
    void Form_Activate();
    void Combo1_Click();
    void Text1_Change();
    void Command1_Click();
    void Command3_Click();
    void Command4_Click();
    void command5_Click();
    void Label3_Click();
    void Check1_Click();
    void aicAlphaImage1_Click();

signals:
    // The window unloads itself after creating a project.
    void unloaded();

protected:
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

private:
    void listProjects();
    std::string nameVerdict(ProjectNameCheck check, const std::string& name) const;
    // Fills the new project's "\files" from the chosen folder, with the progress over `editor`;
    // what the user is to hear of files it did not copy, or nothing.
    std::string copyApplicationFiles(QWidget& editor, const std::string& projectRoot);
    std::string selectedProject() const;
    std::string nearestExistingFolder(std::string folder) const;
    void setUpTips();
    void advancedFieldEdited(QLineEdit* field, const QString& word, const QString& placeholder);

    Host& host_;
    Dialogs& dialogs_;
    std::function<ProjectEditor&()> editor_;
    std::unique_ptr<Ui::start> ui_;
    PlaceholderText* name_ = nullptr;
    PlaceholderText* author_ = nullptr;
    PlaceholderText* source_ = nullptr;
    PlaceholderText* edition_ = nullptr;
    PlaceholderText* version_ = nullptr;
    std::string sourceFolder_;
    // What the typed name is told, shown again whenever a tip gives the status line back.
    QString nameVerdict_;
    std::map<QObject*, QString> tips_;
};

}  // namespace orvanta
