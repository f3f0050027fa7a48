#include "project/InstallerLists.h"

#include "project/LineFile.h"

namespace orvanta {

bool skimInstallerList(Host& host, const std::string& path) {
    return readLines(host, path, kShortListLines).has_value();
}

}  // namespace orvanta
