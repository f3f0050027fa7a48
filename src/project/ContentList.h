#pragma once
// "files.cfg" and "folders.cfg": one path relative to "\files" a line. The file replaces the list
// whole, so a switch of working set never shows the last set's entries beside its own.

#include <string>
#include <vector>

#include "platform/Host.h"
#include "project/ListUpdate.h"

namespace orvanta {

std::string contentListText(const std::vector<std::string>& paths);
bool writeContentList(Host& host, const std::string& path, const std::vector<std::string>& paths);
// At most 100,001 lines, as Replace; a missing file empties the list.
ListUpdate readContentList(Host& host, const std::string& path);

}  // namespace orvanta
