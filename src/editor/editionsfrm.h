#pragma once
// The editions window: the working sets of the project, one for each edition and each version of
// an edition. It makes new ones from the project's saved settings, removes them, and switches the
// editor to the one chosen.

#include <QDialog>
#include <functional>
#include <string>
#include <vector>

#include "core/Dialogs.h"
#include "platform/Host.h"
#include "project/WorkingSetIndex.h"

class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;

namespace orvanta {

// What the window needs of the editor it opens over.
struct EditionsContext {
    std::function<std::string()> projectRoot;
    std::function<std::string()> workingFolder;  // the working set open in the editor
    // The project's name and the editor's fields that name files of the root to copy.
    std::function<WorkingSetSource()> source;
    // Saves the open working set and loads the one the two words address.
    std::function<void(std::string edition, std::string version)> switchTo;
};

class editionsfrm : public QDialog {
    Q_OBJECT
public:
    editionsfrm(Host& host, Dialogs& dialogs, EditionsContext context, QWidget* parent = nullptr);

    QListWidget* List1 = nullptr;     // the working sets
    QLineEdit* Text1 = nullptr;       // the new edition's name
    QLineEdit* Text2 = nullptr;       // its version; empty for none
    QPushButton* Command1 = nullptr;  // Create
    QPushButton* Command2 = nullptr;  // Delete
    QPushButton* Command3 = nullptr;  // Open
    QPushButton* Command4 = nullptr;  // Close
    QLabel* Label2 = nullptr;         // which working set is open

public slots:
    void Command1_Click();
    void Command2_Click();
    void Command3_Click();

private:
    void buildLayout();
    std::string openSubPath() const;
    void refresh(const std::string& selectSubPath);
    void List1_Changed();
    const WorkingSet* selected() const;
    bool isOpen(const WorkingSet& workingSet) const;
    static std::string describe(const WorkingSet& workingSet);

    Host& host_;
    Dialogs& dialogs_;
    EditionsContext context_;
    std::vector<WorkingSet> sets_;
};

}  // namespace orvanta
