#pragma once
// The package tables: the seven fields of each package in slots 0 to 1000, held for the whole run
// and shared by the packages manager, the loader and the simulator, which all fill them from
// "packages.cfg" in the working folder.

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "platform/Host.h"
#include "project/PackageList.h"

namespace orvanta {

inline constexpr int kLastPackageSlot = static_cast<int>(kPackageSlots) - 1;

class PackageTables {
public:
    PackageTables() : slots_(kPackageSlots) {}

    // A slot outside 0 to 1000 is the bounds error "Subscript out of range" (RuntimeError 9).
    Package& slot(int index);
    const Package& slot(int index) const;

    // Reads the file into the slots from 0 on and gives the number of packages read; slots past
    // them keep what they held. Nothing, and no change, when the file cannot be opened.
    std::optional<std::size_t> read(Host& host, const std::string& path);
    // Writes the slots 0 to count - 1, leaving out those with an empty name when asked.
    bool write(Host& host, const std::string& path, std::size_t count, bool skipEmptyNames) const;
    // Every slot back to empty strings.
    void clear();

private:
    std::vector<Package> slots_;
};

// The tables of the running program.
PackageTables& packageTables();

// The "install by default" field is "0"/"1" when written from a check box, but a change of a
// list's check mark stores "True"/"False" there; every reader takes both, and " 1 " as well.
bool packageFlagSet(const std::string& field);

}  // namespace orvanta
