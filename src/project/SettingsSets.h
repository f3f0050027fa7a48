#pragma once
// The settings sets of the open project, one name and one type for each of the five, held for
// the whole run beside the editor's controls.

#include <array>
#include <string>

#include "project/SettingsSetFile.h"

namespace orvanta {

struct SettingsSetTables {
    std::array<std::string, kSettingsSetCount> names;  // empty: the set is unused
    std::array<std::string, kSettingsSetCount> types;  // "REG", "REGFILE" or "EXE"
};

inline SettingsSetTables settingsSets;

}  // namespace orvanta
