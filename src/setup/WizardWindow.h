#pragma once
// What the wizard asks of the window that shows it. The simulator's Qt window and the installer's
// Win32 window each give their own; tests record the calls.

#include <string>

namespace orvanta {

class WizardWindow {
public:
    virtual ~WizardWindow() = default;
    // Lets the window draw and handle what is waiting before the wizard goes on.
    virtual void processPendingEvents() = 0;
    virtual void closeWindow() = 0;
    // Ends the whole program at once, without saving anything.
    virtual void endProgram() = 0;
    // Whether ending the program now would lose what the user typed into the open project.
    virtual bool unsavedChanges() { return false; }
    virtual void showPackageChooser() = 0;
    virtual void closePackageChooser() = 0;
};

}  // namespace orvanta
