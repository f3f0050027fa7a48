#pragma once
// The optional packages as the wizard offers them: read from "packages.cfg" into the shared package
// tables, counted, and chosen row by row in the drop-down list, where a required package cannot be
// deselected. The choice lives in the tables in memory only.

#include <cstdint>
#include <string>
#include <vector>

#include "platform/Host.h"
#include "project/PackageTables.h"

namespace orvanta {

struct PackageCounters {
    std::int16_t chosen = 0;  // `packagesChosen`
    std::int16_t total = 0;   // `packagesTotal`
};

struct PackageReading {
    bool opened = false;
    std::string error;  // names the package whose "install by default" field is no number
    PackageCounters counters;
};

// `read_packages`: fills the tables from the file and counts what is chosen by default. The field
// may hold "True" or "False", which read as chosen and not chosen.
PackageReading readPackages(Host& host, const std::string& path, PackageTables& tables);

// "2/2 packages to install".
std::string packagesToInstallText(const PackageCounters& counters);

// The list of `installPackages`: one row a package, selected or not.
class PackageChooser {
public:
    PackageChooser(PackageTables& tables, PackageCounters& counters);

    const std::vector<std::string>& rows() const { return rows_; }
    const std::vector<bool>& selected() const { return selected_; }
    const std::string& description() const { return description_; }  // `Label1`
    bool requiredShown() const { return requiredShown_; }            // `Label2`

    // A click on a row whose selection the user has just set to `selectedNow`: shows the package,
    // keeps a required one selected, recounts and stores the choice in the tables.
    void clickRow(int row, bool selectedNow);
    // The mouse released over a row: the same without the recount.
    void releaseOnRow(int row, bool selectedNow);

private:
    void showPackage(int row, bool selectedNow);

    PackageTables& tables_;
    PackageCounters& counters_;
    std::vector<std::string> rows_;
    std::vector<bool> selected_;
    std::string description_ = "No packages.";
    bool requiredShown_ = false;
};

}  // namespace orvanta

namespace orvanta {
// The counters of the running program, beside its package tables.
inline PackageCounters packageCounters;
}  // namespace orvanta
