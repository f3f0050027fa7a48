#pragma once
// Which working set a pair of edition and version words addresses, for the switch of editions.

#include <functional>
#include <optional>
#include <string>

namespace orvanta {

struct WorkingSetChoice {
    std::optional<std::string> folder;  // the working set to load; nothing: the window stays as it is
    std::string version;                // the version word as the switch leaves it
    std::string editionName;            // what the edition's name field shows afterwards
};

// "No editions": the project root, whatever the version says. An edition with "No versions":
// "\editions\<edition>" if it exists, else "\versions\<version>\<edition>" if it exists, else
// nothing. An edition with a version: "\versions\<version>\<edition>".
WorkingSetChoice chooseWorkingSet(const std::string& projectRoot, const std::string& edition,
                                  const std::string& version,
                                  const std::function<bool(const std::string&)>& folderExists);

}  // namespace orvanta
