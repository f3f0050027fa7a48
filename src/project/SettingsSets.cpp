#include "project/SettingsSets.h"

#include "core/commonFunctions.h"
#include "project/ProjectPaths.h"

namespace orvanta {

void readSettingsSets(Host& host, const std::string& workingSet, SettingsSetTables& tables) {
    for (int i = 0; i < kSettingsSetCount; ++i)
        tables.sets[static_cast<std::size_t>(i)] =
            readSettingsSetFile(host, settingsSetFile(workingSet, i)).value_or(SettingsSet{});
}

std::optional<std::string> writeSettingsSets(Host& host, const std::string& workingSet,
                                             const SettingsSetTables& tables) {
    for (int i = 0; i < kSettingsSetCount; ++i) {
        const std::string file = settingsSetFile(workingSet, i);
        const bool done = tables.used(i)
                              ? writeSettingsSetFile(host, file, tables.sets[static_cast<std::size_t>(i)])
                              : fileExists(host, file) != kTrue || host.deleteFile(file);
        if (!done) return file;
    }
    return std::nullopt;
}

}  // namespace orvanta
