#include "project/LocationList.h"

#include "project/LineFile.h"

namespace orvanta {

std::string locationListText(const std::vector<std::string>& locations) {
    return locations.empty() ? linesText({"<>"}) : linesText(locations);
}

bool writeLocationList(Host& host, const std::string& path, const std::vector<std::string>& locations) {
    return host.writeFileAtomic(path, locationListText(locations));
}

ListUpdate readLocationList(Host& host, const std::string& path) {
    return readMarkedList(host, path);
}

}  // namespace orvanta
