#include "project/SettingsSetFile.h"

#include "project/LineFile.h"

namespace orvanta {

namespace {
constexpr std::size_t kSettingsSetLines = 3;
}  // namespace

std::string settingsSetFileText(const SettingsSet& set) {
    return linesText({set.member, set.name, set.type});
}

bool writeSettingsSetFile(Host& host, const std::string& path, const SettingsSet& set) {
    return host.writeFileAtomic(path, settingsSetFileText(set));
}

std::optional<SettingsSet> readSettingsSetFile(Host& host, const std::string& path) {
    auto lines = readLines(host, path, kSettingsSetLines);
    if (!lines) return std::nullopt;
    lines->resize(kSettingsSetLines);
    SettingsSet set{(*lines)[0], (*lines)[1], (*lines)[2]};
    if (set.name.empty()) set.name = set.member;
    return set;
}

bool isRecordedSettingsSetType(const std::string& type) {
    return type == "REG" || type == "REGFILE" || type == "EXE";
}

}  // namespace orvanta
