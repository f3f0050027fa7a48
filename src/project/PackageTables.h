#pragma once
// The packages of the open project. They are the one part of a project held apart from the
// editor's controls: the loader and the packages manager fill them, the build reads them, and
// they live for the whole run.

#include <cstddef>
#include <vector>

#include "project/PackageList.h"

namespace orvanta {

struct PackageTables {
    std::vector<Package> slots = std::vector<Package>(kPackageSlots);
    std::size_t count = 0;
};

inline PackageTables packageTables;

}  // namespace orvanta
