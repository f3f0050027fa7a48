#pragma once
// The packages of the open project, the seven fields of each in slots 0 to 1000. They are the one
// part of a project held apart from the editor's controls: the loader and the packages manager
// fill them from "packages.cfg" of the working folder, the build and the simulator read them, and
// they live for the whole run.

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "platform/Host.h"
#include "project/PackageList.h"

namespace orvanta {

inline constexpr int kLastPackageSlot = static_cast<int>(kPackageSlots) - 1;

struct PackageTables {
    // Not "slots", which Qt takes for a keyword in every file that includes a window.
    std::vector<Package> entries = std::vector<Package>(kPackageSlots);
    std::size_t count = 0;  // packages read last

    // A slot outside 0 to 1000 is the bounds error "Subscript out of range" (RuntimeError 9).
    Package& slot(int index);
    const Package& slot(int index) const;

    // Reads the file into the slots from 0 on and counts what it read; slots past them keep what
    // they held. Nothing, and no change, when the file cannot be opened.
    std::optional<std::size_t> read(Host& host, const std::string& path);
    // Writes the slots 0 to upTo - 1, leaving out those with an empty name when asked.
    bool write(Host& host, const std::string& path, std::size_t upTo, bool skipEmptyNames) const;
};

// The tables of the running program.
inline PackageTables packageTables;

// The "install by default" field is "0"/"1" when written from a check box, but a change of a
// list's check mark stores "True"/"False" there; every reader takes both, and " 1 " as well.
bool packageFlagSet(const std::string& field);

}  // namespace orvanta
