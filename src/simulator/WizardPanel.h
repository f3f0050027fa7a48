#pragma once
// One step's panel of the wizard window. It shows the window's picture as it lies under the panel,
// so that a panel stacked over another hides it whole, and a panel that rolls keeps its picture in
// place while its height changes.

#include <QWidget>
#include <string>

namespace orvanta {

class aicAlphaImage;
class c32bppDIB;

class WizardPanel : public QWidget {
    Q_OBJECT
public:
    explicit WizardPanel(QWidget* parent = nullptr);

    // The window's picture as the window shows it, placed so that the panel at `offset` in the
    // window shows the part of it below itself; an empty picture leaves the panel plain.
    void showWindowPicture(const c32bppDIB& windowPicture, QPoint offset);
    aicAlphaImage& picture() { return *picture_; }

private:
    aicAlphaImage* picture_;
};

}  // namespace orvanta
