#pragma once
// "dependencies.cfg": two lines an item, the name and " 1 " when selected (copy to the system
// folder and register) or " 0 ". An empty list is an empty file.

#include <cstddef>
#include <string>
#include <vector>

#include "platform/Host.h"

namespace orvanta {

inline constexpr std::size_t kDependencyPairs = 101;

struct Dependency {
    std::string name;
    bool selected = false;
};

std::string dependencyListText(const std::vector<Dependency>& dependencies);
bool writeDependencyList(Host& host, const std::string& path, const std::vector<Dependency>& dependencies);
// At most 101 items. The loader clears the list first, so a missing file gives an empty list. A
// flag line that is no number leaves the item unselected, as a newly added item is.
std::vector<Dependency> readDependencyList(Host& host, const std::string& path);

}  // namespace orvanta
