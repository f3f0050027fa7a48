#include "setup/PackageChoice.h"

#include "platform/CaseFolding.h"
#include "project/NumberText.h"

namespace orvanta {

namespace {

// The field as a number, with the two words the packages manager writes; nothing for other text.
std::optional<double> installByDefault(const std::string& field) {
    if (equalsIgnoringCase(field, "True")) return 1.0;
    if (equalsIgnoringCase(field, "False")) return 0.0;
    return parseNumber(field);
}

bool required(const Package& package) {
    return packageFlagSet(package.required);
}

}  // namespace

PackageReading readPackages(Host& host, const std::string& path, PackageTables& tables) {
    PackageReading reading;
    const auto count = tables.read(host, path);
    if (!count) return reading;
    reading.opened = true;
    for (std::size_t slot = 0; slot < *count; ++slot) {
        const Package& package = tables.entries[slot];
        const auto chosen = installByDefault(package.installByDefault);
        if (!chosen) {
            reading.error = "The package \"" + package.name + "\" in " + path +
                            " cannot be read: its \"install by default\" field holds \"" +
                            package.installByDefault + "\", where a number, True or False belongs.";
            return reading;
        }
        if (*chosen == 1.0) ++reading.counters.chosen;
        ++reading.counters.total;
    }
    return reading;
}

std::string packagesToInstallText(const PackageCounters& counters) {
    return std::to_string(counters.chosen) + "/" + std::to_string(counters.total) + " packages to install";
}

PackageChooser::PackageChooser(PackageTables& tables, PackageCounters& counters)
    : tables_(tables), counters_(counters) {
    for (int slot = 0; slot < counters_.total; ++slot) {
        const Package& package = tables_.slot(slot);
        rows_.push_back(required(package) ? package.name + " (required)" : package.name);
        selected_.push_back(packageFlagSet(package.installByDefault));
    }
}

void PackageChooser::showPackage(int row, bool selectedNow) {
    if (row < 0 || row >= static_cast<int>(rows_.size())) return;
    const auto index = static_cast<std::size_t>(row);
    selected_[index] = selectedNow;
    const Package& package = tables_.slot(row);
    description_ = package.description;
    requiredShown_ = required(package);
    if (requiredShown_) selected_[index] = true;
}

void PackageChooser::clickRow(int row, bool selectedNow) {
    if (row < 0 || row >= static_cast<int>(rows_.size())) return;
    showPackage(row, selectedNow);
    counters_.chosen = 0;
    for (bool chosen : selected_)
        if (chosen) ++counters_.chosen;
    tables_.slot(row).installByDefault = selected_[static_cast<std::size_t>(row)] ? "1" : "0";
}

void PackageChooser::releaseOnRow(int row, bool selectedNow) {
    showPackage(row, selectedNow);
}

}  // namespace orvanta
