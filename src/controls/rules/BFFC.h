#pragma once
// The folder chooser the windows hold: set its properties, call OpenBrowse or SaveBrowse, read
// DoRecurse afterwards. The dialog is a call on the dialogs service.

#include <cstdint>
#include <string>

#include "core/Dialogs.h"
#include "platform/Host.h"

namespace orvanta {

class BFFC {
public:
    BFFC(Host& host, Dialogs& dialogs) : host_(host), dialogs_(dialogs) {}

    std::string Title;  // "Descriptive text on the Browse for Folder dialog"
    std::string InitDir;
    bool ShowRecurse = false;
    bool ShowCreate = false;
    std::uintptr_t ParentForm = 0;

    // The chosen folder, or an empty string when the user cancelled.
    std::string OpenBrowse() { return Browse(); }
    std::string SaveBrowse() { return Browse(); }
    bool DoRecurse() const { return doRecurse_; }

private:
    std::string Browse();

    Host& host_;
    Dialogs& dialogs_;
    bool doRecurse_ = false;
};

}  // namespace orvanta
