#include "project/PackageList.h"

#include <array>

#include "project/LineFile.h"

namespace orvanta {

namespace {

using PackageField = std::string Package::*;

const std::array<PackageField, kPackageBlockLines> kBlock = {
    &Package::name,     &Package::installLocation, &Package::description,     &Package::installByDefault,
    &Package::required, &Package::occupiedSpace,   &Package::removeByDefault,
};

}  // namespace

std::string packageListText(const std::vector<Package>& packages) {
    std::string text;
    for (const auto& package : packages)
        for (const auto field : kBlock) appendLine(text, package.*field);
    return text;
}

bool writePackageList(Host& host, const std::string& path, const std::vector<Package>& packages) {
    return host.writeFileAtomic(path, packageListText(packages));
}

std::optional<std::size_t> readPackageList(Host& host, const std::string& path, std::vector<Package>& slots) {
    const auto lines = readLines(host, path, kPackageSlots * kPackageBlockLines);
    if (!lines) return std::nullopt;
    const std::size_t count = (lines->size() + kPackageBlockLines - 1) / kPackageBlockLines;
    if (slots.size() < count) slots.resize(count);
    for (std::size_t i = 0; i < lines->size(); ++i)
        slots[i / kPackageBlockLines].*kBlock[i % kPackageBlockLines] = (*lines)[i];
    return count;
}

}  // namespace orvanta
