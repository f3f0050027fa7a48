#pragma once
// The small window that stands over the editor while a new project's files are copied: how many
// files of how many, a bar, and a button that stops the copy after the file in hand.

#include <QDialog>
#include <cstddef>

#include "core/Dialogs.h"

class QLabel;
class QPushButton;

namespace orvanta {

class ctlProgressBar;

class CopyProgress : public QDialog {
    Q_OBJECT
public:
    CopyProgress(Dialogs& dialogs, QWidget* parent);

    void showProgress(std::size_t done, std::size_t total);
    bool cancelled() const { return cancelled_; }

    QLabel* Label1 = nullptr;  // "12 of 345 files copied"
    ctlProgressBar* ProgressBar1 = nullptr;
    QPushButton* Command1 = nullptr;  // Cancel

public slots:
    // Closing the window stops the copy as the button does.
    void reject() override;

private:
    bool cancelled_ = false;
};

}  // namespace orvanta
