#pragma once
// The progress bar control: a bar window inside a frame, with range checks, marquee, smooth or
// block scrolling and the colour state. The bar window is made anew when a style changes.

#include <QFrame>
#include <QPointer>
#include <QProgressBar>

#include "controls/PropertyBag.h"
#include "core/Dialogs.h"

namespace orvanta {

// Codes of the states, as the bar window numbers them.
inline constexpr int kProgressStateNormal = 1;
inline constexpr int kProgressStateError = 2;
inline constexpr int kProgressStatePaused = 3;
inline constexpr int kScrollingStandard = 0;
inline constexpr int kScrollingSmooth = 1;

class ctlProgressBar : public QFrame {
    Q_OBJECT
public:
    explicit ctlProgressBar(Dialogs& dialogs, QWidget* parent = nullptr);

    int Min() const { return min_; }
    int Max() const { return max_; }
    int Value() const { return value_; }
    // A refused value shows the run-time error and keeps the old one; the result says which.
    bool setMin(int min);
    bool setMax(int max);
    bool setValue(int value);

    bool Marquee() const { return marquee_; }
    void setMarquee(bool marquee);
    int Scrolling() const { return scrolling_; }
    void setScrolling(int scrolling);
    int BorderStyle() const { return borderStyle_; }
    void setBorderStyle(int borderStyle);
    int Appearance() const { return appearance_; }
    void setAppearance(int appearance);
    int State() const { return state_; }
    void setState(int state);

    // The bar window; a new one after each change of style.
    QProgressBar* hwnd() const { return bar_; }
    void Refresh();

    void WriteProperties(PropertyBag& bag) const;
    void ReadProperties(PropertyBag& bag);

private:
    void createWindow();
    void applyFrame();
    void applyValues();
    void refuse();

    Dialogs& dialogs_;
    QPointer<QProgressBar> bar_;
    int min_ = 0;
    int max_ = 100;
    int value_ = 0;
    bool marquee_ = false;
    int scrolling_ = kScrollingStandard;
    int borderStyle_ = 0;
    int appearance_ = 1;
    int state_ = kProgressStateNormal;
};

}  // namespace orvanta
