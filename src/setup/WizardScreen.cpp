#include "setup/WizardScreen.h"

#include <stdexcept>

namespace orvanta {

namespace {

struct CreatedControl {
    const char* name;
    bool visible;
    bool enabled;
    const char* text;
};

// Every control of the window with its state as created: the row boxes and ticks shown, the
// optional lines hidden, the back button disabled.
constexpr CreatedControl kCreated[] = {
    {"mainzone(0)", true, true, ""},
    {"mainzone(1)", false, true, ""},
    {"mainzone(2)", false, true, ""},
    {"mainzone(3)", false, true, ""},
    {"icone", true, true, ""},
    {"Label1", true, true, ""},
    {"Label2", true, true, "Installation path"},
    {"Label3", true, true, ""},
    {"Text1", true, true, ""},
    {"isButton1", true, true, "..."},
    {"Label4", true, true, "Create a start menu shortcut"},
    {"Check1", true, true, ""},
    {"okay", true, true, ""},
    {"Label5", true, true, "Create a desktop icon"},
    {"Check2", true, true, ""},
    {"okay2", true, true, ""},
    {"Label20", false, true, "Create a quicklauch icon"},
    {"aicAlphaImage2", false, true, ""},
    {"okay4", false, true, ""},
    {"Label6", true, true, ""},
    {"Label17", false, true, ""},
    {"Label21", false, true, ""},
    {"Command6", false, true, ">"},
    {"Label7", true, true, ""},
    {"Label8", true, true, ""},
    {"Label11(0)", true, true, "Installing"},
    {"Label13", true, true, "Copying files..."},
    {"Label12", true, true, ""},
    {"pb", true, true, ""},
    {"Picture1", true, true, ""},
    {"Image1", true, true, ""},
    {"Image3", true, true, ""},
    {"Image4", true, true, ""},
    {"installing", true, true, ""},
    {"preview", true, true, ""},
    {"Label11(1)", true, true, "Finished!"},
    {"Label15", true, true, ""},
    {"Label18", true, true, ""},
    {"Line1", true, true, ""},
    {"Label14", false, true, ""},
    {"Check3", false, true, ""},
    {"okay3", false, true, ""},
    {"Command1", true, true, "Install"},
    {"Command2", true, true, "Exit"},
    {"isButton2", true, false, "<"},
    {"Label22", true, true, ""},
    {"Label19", true, true, ""},
    {"Label16", true, true, ""},
    {"Label10", true, true, ""},
    {"Command3", false, true, "file number checker"},
    {"Command4", false, true, "check available space"},
    {"Command5", false, true, "fonts"},
    {"processes", false, true, ""},
    {"Label9", false, true, ""},
};

}  // namespace

WizardScreen::WizardScreen() {
    for (const CreatedControl& control : kCreated) {
        ControlState state;
        state.visible = control.visible;
        state.enabled = control.enabled;
        state.text = control.text;
        controls_.emplace(control.name, state);
    }
}

ControlState& WizardScreen::operator[](std::string_view name) {
    const auto found = controls_.find(name);
    if (found == controls_.end()) throw std::out_of_range("no control named " + std::string(name));
    return found->second;
}

const ControlState& WizardScreen::at(std::string_view name) const {
    const auto found = controls_.find(name);
    if (found == controls_.end()) throw std::out_of_range("no control named " + std::string(name));
    return found->second;
}

std::string WizardScreen::panel(int index) {
    return "mainzone(" + std::to_string(index) + ")";
}

}  // namespace orvanta
