#pragma once
// The name of a list view notification code, for debug output.

#include <string>

namespace orvanta {

// "NM_CLICK" for -2; an empty string for a code the table does not know.
std::string mMsg2String(int code);

}  // namespace orvanta
