#pragma once
// The windows of the running program, each made on first use and gone when unloaded, and the
// ties between them: the index hands a project to the editor, the editor's hooks open the
// managers and lead back to the index.

#include <QPointer>
#include <memory>
#include <string>

#include "app/SimulatorViewer.h"
#include "core/Dialogs.h"
#include "core/StartBitch.h"
#include "platform/Host.h"
#include "project/EditorContext.h"
#include "project/window/ProjectEditor.h"

namespace orvanta {

class LetsPackage;
class installPreview;
class mainfrm;
class mainfrmFields;
class start;
class themesmanager;

class ApplicationWindows : public ProjectEditor {
public:
    ApplicationWindows(Host& host, Dialogs& dialogs);
    ~ApplicationWindows() override;

    MainHandOver handOver();
    bool anyVisible() const;
    start* startWindow() const;
    mainfrm* editorWindow() const;
    mainfrmFields* fields() const { return fields_.get(); }
    LetsPackage* packageDialog() const;
    installPreview* simulator() const;
    themesmanager* backgroundsManager() const;

    void beginNewProject(const std::string& name, const std::string& author,
                         const std::string& projectRoot) override;
    void showLogo(const std::string& logoPath) override;
    void showBackground(const std::string& backgroundPath) override;
    QWidget& showNewProject() override;
    void saveNewProject() override;
    bool openProject(const std::string& projectRoot) override;

private:
    start& ensureStart();
    mainfrm& ensureEditor();
    EditorContext editorContext();
    void showStart();
    void unloadStart();
    void unloadEditor();
    void showPackages();
    void showEditions();
    void showLetsPackage();
    installPreview* openSimulator();
    void showInstallPreview();
    void showBackgrounds();
    // Whether the editor's settings differ from those the project saved last.
    bool settingsChangedSinceSave();
    void showStatusOnStart(const std::string& text);
    void switchWorkingSet(std::string edition, std::string version);
    // The caption names the project, whether it was made, opened or switched to another working set.
    void showProjectCaption();

    Host& host_;
    Dialogs& dialogs_;
    QPointer<start> start_;
    QPointer<mainfrm> editor_;
    QPointer<LetsPackage> letsPackage_;
    QPointer<installPreview> simulator_;
    QPointer<themesmanager> themes_;
    SimulatorViewer backgroundViewer_{[this] { return openSimulator(); }};
    std::unique_ptr<mainfrmFields> fields_;
};

}  // namespace orvanta
