#pragma once
// A property set to a value the control refuses: the run-time error a user of the system would be
// shown, with its source, through the dialogs service. The property keeps its old value.

#include <string>

#include "core/Dialogs.h"

namespace orvanta {

inline constexpr int kErrorNumberInvalidPropertyValue = 380;
inline constexpr const char* kInvalidPropertyValueText = "Invalid property value";

// Shows "Run-time error '380':" and the text, titled with the source ("pb.ctlProgressBar").
void reportRuntimeError(Dialogs& dialogs, const std::string& source, int number,
                        const std::string& description);

}  // namespace orvanta
