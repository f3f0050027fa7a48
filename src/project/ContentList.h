#pragma once
// "files.cfg" and "folders.cfg": one path relative to "\files" a line. The loader adds them to
// the list without clearing it first; the saver refreshes the list from the folder anyway.

#include <string>
#include <vector>

#include "platform/Host.h"
#include "project/ListUpdate.h"

namespace orvanta {

std::string contentListText(const std::vector<std::string>& paths);
bool writeContentList(Host& host, const std::string& path, const std::vector<std::string>& paths);
// At most 100,001 lines, as Append; a missing file keeps the list.
ListUpdate readContentList(Host& host, const std::string& path);

}  // namespace orvanta
