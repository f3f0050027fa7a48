#pragma once
// What the wizard's window shows, without the window: each control by its name with the state the
// wizard gives it. The simulator's Qt view and the installer's Win32 view draw the same table, and
// the handlers of the wizard ask it which panel is visible, as the step is not stored elsewhere.

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace orvanta {

inline constexpr int kPanelHeight = 233;  // a panel's full height in pixels

struct ControlState {
    bool visible = true;
    bool enabled = true;
    bool locked = false;  // a text box that takes no typing
    std::string text;     // caption or contents
    std::string picture;  // the file a picture control loaded; empty: none
    int left = 0;         // a move from the control's place in pixels (Image1, mainzone(0))
    int height = kPanelHeight;
    int opacity = 100;
    int rotation = 0;
    int value = 0;  // a progress bar's position

    friend bool operator==(const ControlState&, const ControlState&) = default;
};

// A fade the view is to play on a picture control, as FadeInOut takes it.
struct FadeRequest {
    std::string control;
    int finalOpacity = 0;
    int stepPercent = 0;
};

class WizardScreen {
public:
    WizardScreen();

    ControlState& operator[](std::string_view name);
    const ControlState& at(std::string_view name) const;
    bool visible(std::string_view name) const { return at(name).visible; }
    const std::string& text(std::string_view name) const { return at(name).text; }
    const std::map<std::string, ControlState, std::less<>>& controls() const { return controls_; }

    // The panel of each step: "mainzone(0)" to "mainzone(3)".
    static std::string panel(int index);

    std::string title;
    std::string background;  // the window's picture, drawn under the panels; empty: none
    bool busyPointer = false;
    bool closeCommand = true;  // the close entry of the system menu
    std::vector<FadeRequest> fades;

private:
    std::map<std::string, ControlState, std::less<>> controls_;
};

}  // namespace orvanta
