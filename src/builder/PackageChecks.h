#pragma once
// The checks behind the "Package it!" button: they look at the form and at the working folder,
// save nothing, stop at the first failure with its message, and repair two fields instead of
// refusing.

#include <string>
#include <vector>

#include "core/Dialogs.h"
#include "platform/Host.h"
#include "project/ProjectFields.h"

namespace orvanta {

// What a failed check does to the form besides its values.
class CheckedForm {
public:
    enum class Caret { End, Start, FirstListEntry };
    virtual ~CheckedForm() = default;
    virtual void showPage(int page) = 0;  // 1 to 3, the tab strip left as it is
    virtual void focus(ControlName control, Caret caret) = 0;
};

struct PackageCheckResult {
    int failedCheck = 0;               // 1 to 7; 0 when every check passed
    std::vector<std::string> repairs;  // what was corrected on the way, in words
    bool passed() const { return failedCheck == 0; }
};

PackageCheckResult runPackageChecks(Host& host, Dialogs& dialogs, ProjectFields& fields, CheckedForm& form);

}  // namespace orvanta
