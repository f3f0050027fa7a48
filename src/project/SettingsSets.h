#pragma once
// The settings sets of the open project, held for the whole run beside the editor's controls:
// the loader fills them from "\settingsset\<i>.cfg", the settings sets window edits them, the
// saver writes them back.

#include <array>
#include <optional>
#include <string>

#include "platform/Host.h"
#include "project/SettingsSetFile.h"

namespace orvanta {

struct SettingsSetTables {
    std::array<SettingsSet, kSettingsSetCount> sets;

    bool used(int index) const { return !sets[static_cast<std::size_t>(index)].name.empty(); }
};

inline SettingsSetTables settingsSets;

// Each set from its file in the working set; a set without a file is unused.
void readSettingsSets(Host& host, const std::string& workingSet, SettingsSetTables& tables);
// The file of each set in use; an unused set's file is removed. The path of the first file that
// could not be written or removed; nothing when all went.
std::optional<std::string> writeSettingsSets(Host& host, const std::string& workingSet,
                                             const SettingsSetTables& tables);

}  // namespace orvanta
