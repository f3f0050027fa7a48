#pragma once
// The free texts ("intro.cfg", "tips.cfg", "uninstallIntro.cfg", "uninstallEnd.cfg") and
// "slicense.txt": one multi-line text, written whole with one CR LF after it, read back as at most
// 51 lines joined by CR LF without one after the last. So the text neither grows from save to
// save nor loses an empty last line.

#include <optional>
#include <string>

#include "platform/Host.h"
#include "project/LineFile.h"

namespace orvanta {

std::string textFileContent(const std::string& text);
bool writeTextFile(Host& host, const std::string& path, const std::string& text);
// Nothing if the file cannot be opened; the field then keeps its value. Lines that held control
// bytes are read without them and noted in `damaged`.
std::optional<std::string> readTextFile(Host& host, const std::string& path, DamagedLines* damaged = nullptr);

}  // namespace orvanta
