#include "simulator/installPackages.h"

#include <QEvent>
#include <QLabel>
#include <QListWidget>
#include <QTimer>
#include <QVBoxLayout>

#include "controls/QtText.h"

namespace orvanta {

installPackages::installPackages(InstallWizard& wizard, QWidget* owner)
    : QWidget(owner, Qt::Tool | Qt::FramelessWindowHint), chooser_(wizard.tables(), wizard.counters()) {
    setObjectName(QStringLiteral("installPackages"));
    setMinimumSize(3000 / 15, 2000 / 15);
    resize(260, 180);
    setAttribute(Qt::WA_DeleteOnClose);
    List1 = new QListWidget(this);
    List1->setObjectName(QStringLiteral("List1"));
    Label1 = new QLabel(QStringLiteral("No packages."), this);
    Label1->setObjectName(QStringLiteral("Label1"));
    Label1->setWordWrap(true);
    Label2 = new QLabel(QStringLiteral("Required"), this);
    Label2->setObjectName(QStringLiteral("Label2"));
    Label2->hide();
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(List1, 1);
    layout->addWidget(Label1);
    layout->addWidget(Label2);
    Timer1 = new QTimer(this);
    Timer1->setInterval(200);
    connect(Timer1, &QTimer::timeout, this, &installPackages::Timer1_Timer);
    for (const std::string& row : chooser_.rows()) {
        auto* item = new QListWidgetItem(toQString(row), List1);
        item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
    }
    showChoice();
    connect(List1, &QListWidget::itemClicked, this,
            [this](QListWidgetItem* item) { List1_Click(List1->row(item)); });
}

// A click on a row turns its choice over; a required package stays chosen.
void installPackages::List1_Click(int row) {
    if (row < 0 || row >= static_cast<int>(chooser_.selected().size())) return;
    chooser_.clickRow(row, !chooser_.selected()[static_cast<std::size_t>(row)]);
    showChoice();
    emit choiceChanged();
}

void installPackages::showChoice() {
    for (int row = 0; row < List1->count(); ++row)
        List1->item(row)->setCheckState(chooser_.selected()[static_cast<std::size_t>(row)] ? Qt::Checked
                                                                                           : Qt::Unchecked);
    Label1->setText(toDisplayText(chooser_.description()));
    Label2->setVisible(chooser_.requiredShown());
}

void installPackages::changeEvent(QEvent* event) {
    if (event->type() == QEvent::ActivationChange && !isActiveWindow()) Timer1->start();
    QWidget::changeEvent(event);
}

void installPackages::Timer1_Timer() {
    Timer1->stop();
    emit closedByItself();
    close();
}

}  // namespace orvanta
