#include "controls/ControlError.h"

namespace orvanta {

void reportRuntimeError(Dialogs& dialogs, const std::string& source, int number,
                        const std::string& description) {
    dialogs.messageBox({"Run-time error '" + std::to_string(number) + "':\r\n\r\n" + description,
                        MessageButtons::Ok, MessageIcon::Critical, source});
}

}  // namespace orvanta
