#pragma once
// The drop-down list of the optional packages, opened from the start panel. It goes away by
// itself shortly after the user clicks elsewhere.

#include <QWidget>
#include <memory>

#include "setup/InstallWizard.h"
#include "setup/PackageChoice.h"

class QLabel;
class QListWidget;
class QListWidgetItem;
class QTimer;

namespace orvanta {

class installPackages : public QWidget {
    Q_OBJECT
public:
    installPackages(InstallWizard& wizard, QWidget* owner);

    QListWidget* List1 = nullptr;
    QLabel* Label1 = nullptr;  // the package's description
    QLabel* Label2 = nullptr;  // "Required"
    QTimer* Timer1 = nullptr;

    void List1_Click(int row);

public slots:
    void Timer1_Timer();

signals:
    void choiceChanged();
    void closedByItself();

protected:
    void changeEvent(QEvent* event) override;

private:
    void showChoice();

    PackageChooser chooser_;
};

}  // namespace orvanta
