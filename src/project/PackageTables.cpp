#include "project/PackageTables.h"

#include <algorithm>
#include <cctype>

#include "core/RuntimeError.h"
#include "project/NumberText.h"

namespace orvanta {

namespace {

void checkSlot(int index) {
    if (index < 0 || index > kLastPackageSlot)
        throw RuntimeError(kErrorNumberSubscriptOutOfRange, "Subscript out of range");
}

bool equalsIgnoringCase(const std::string& text, const std::string& word) {
    return std::equal(text.begin(), text.end(), word.begin(), word.end(), [](char a, char b) {
        return std::tolower(static_cast<unsigned char>(a)) == std::tolower(static_cast<unsigned char>(b));
    });
}

}  // namespace

Package& PackageTables::slot(int index) {
    checkSlot(index);
    return slots_[static_cast<std::size_t>(index)];
}

const Package& PackageTables::slot(int index) const {
    checkSlot(index);
    return slots_[static_cast<std::size_t>(index)];
}

std::optional<std::size_t> PackageTables::read(Host& host, const std::string& path) {
    return readPackageList(host, path, slots_);
}

bool PackageTables::write(Host& host, const std::string& path, std::size_t count, bool skipEmptyNames) const {
    std::vector<Package> written;
    for (std::size_t index = 0; index < std::min(count, slots_.size()); ++index)
        if (!skipEmptyNames || !slots_[index].name.empty()) written.push_back(slots_[index]);
    return writePackageList(host, path, written);
}

void PackageTables::clear() {
    std::fill(slots_.begin(), slots_.end(), Package{});
}

PackageTables& packageTables() {
    static PackageTables tables;
    return tables;
}

bool packageFlagSet(const std::string& field) {
    if (const auto flag = parseFlag(field)) return *flag != 0;
    return equalsIgnoringCase(field, "True");
}

}  // namespace orvanta
