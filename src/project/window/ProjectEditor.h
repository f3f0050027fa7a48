#pragma once
// What the project index asks of the editor window, which stands in a later layer.

#include <string>

class QWidget;

namespace orvanta {

class ProjectEditor {
public:
    virtual ~ProjectEditor() = default;
    // A new project: the window is loaded, takes the name (its caption "Orvanta ~ " and the name),
    // the author unless empty, and the project root as its working folder; the defaults that carry
    // the name and the author follow them.
    virtual void beginNewProject(const std::string& name, const std::string& author,
                                 const std::string& projectRoot) = 0;
    // The new project's logo, loaded into the logo control with its placeholder hidden.
    virtual void showLogo(const std::string& logoPath) = 0;
    virtual void showBackground(const std::string& backgroundPath) = 0;
    // Shows the window of the new project; what the creation still has to do stands over it.
    virtual QWidget& showNewProject() = 0;
    // The first save: the project's files come from the window's defaults and its "\files" folder.
    virtual void saveNewProject() = 0;
    // Loads the window and the project of that root; false when the load failed.
    virtual bool openProject(const std::string& projectRoot) = 0;
};

}  // namespace orvanta
