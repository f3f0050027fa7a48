#pragma once
// "registrylocations.cfg" and "appdatalocations.cfg": one location a line; an empty list is the
// single line "<>", which reads back as "leave the list as it stands".

#include <string>
#include <vector>

#include "platform/Host.h"
#include "project/ListUpdate.h"

namespace orvanta {

std::string locationListText(const std::vector<std::string>& locations);
bool writeLocationList(Host& host, const std::string& path, const std::vector<std::string>& locations);
ListUpdate readLocationList(Host& host, const std::string& path);

}  // namespace orvanta
