#pragma once
// "packages.cfg": seven text lines a package, one block after another, no count and no separator.
// Flags are "0"/"1" without blanks, since the package tables hold strings.

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "platform/Host.h"

namespace orvanta {

inline constexpr std::size_t kPackageSlots = 1'001;
inline constexpr std::size_t kPackageBlockLines = 7;

struct Package {
    std::string name;             // also the folder below "\packages"
    std::string installLocation;  // starts with a location token or "x:\"
    std::string description;
    std::string installByDefault;  // "0" or "1"
    std::string required;          // "0" or "1"
    std::string occupiedSpace;     // decimal count of bytes
    std::string removeByDefault;   // "0" or "1"
};

std::string packageListText(const std::vector<Package>& packages);
bool writePackageList(Host& host, const std::string& path, const std::vector<Package>& packages);

// Reads the blocks into the package tables from slot 0 on, at most 1,001, and gives the count.
// A block cut short by the end of the file still counts, and its missing fields keep what the
// slot held before. Nothing (and no change) if the file cannot be opened.
std::optional<std::size_t> readPackageList(Host& host, const std::string& path, std::vector<Package>& slots);

}  // namespace orvanta
