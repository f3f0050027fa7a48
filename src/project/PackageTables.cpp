#include "project/PackageTables.h"

#include <algorithm>

#include "core/RuntimeError.h"
#include "platform/CaseFolding.h"
#include "project/NumberText.h"

namespace orvanta {

namespace {

void checkSlot(int index) {
    if (index < 0 || index > kLastPackageSlot)
        throw RuntimeError(kErrorNumberSubscriptOutOfRange, "Subscript out of range");
}

}  // namespace

Package& PackageTables::slot(int index) {
    checkSlot(index);
    return entries[static_cast<std::size_t>(index)];
}

const Package& PackageTables::slot(int index) const {
    checkSlot(index);
    return entries[static_cast<std::size_t>(index)];
}

std::optional<std::size_t> PackageTables::read(Host& host, const std::string& path) {
    const auto read = readPackageList(host, path, entries);
    if (read) count = *read;
    return read;
}

bool PackageTables::write(Host& host, const std::string& path, std::size_t upTo, bool skipEmptyNames) const {
    std::vector<Package> written;
    for (std::size_t index = 0; index < std::min(upTo, entries.size()); ++index)
        if (!skipEmptyNames || !entries[index].name.empty()) written.push_back(entries[index]);
    return writePackageList(host, path, written);
}

bool packageFlagSet(const std::string& field) {
    if (const auto flag = parseFlag(field)) return *flag != 0;
    return equalsIgnoringCase(field, "True");
}

}  // namespace orvanta
