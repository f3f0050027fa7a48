#pragma once
// The free texts ("intro.cfg", "tips.cfg", "uninstallIntro.cfg", "uninstallEnd.cfg") and
// "slicense.txt": one multi-line text, written whole with one CR LF after it, read back as at most
// 51 lines joined by CR LF without one after the last. So the text neither grows from save to
// save nor loses an empty last line.

#include <optional>
#include <string>

#include "platform/Host.h"

namespace orvanta {

std::string textFileContent(const std::string& text);
bool writeTextFile(Host& host, const std::string& path, const std::string& text);
// Nothing if the file cannot be opened; the field then keeps its value.
std::optional<std::string> readTextFile(Host& host, const std::string& path);

}  // namespace orvanta
