#pragma once
// "\settingsset\<i>.cfg": the first line names the file in "\settingsset" that belongs to settings
// set i (the line the integrity record follows); the second holds the set's name, the third its
// type ("REG", "REGFILE" or "EXE").

#include <optional>
#include <string>

#include "platform/Host.h"

namespace orvanta {

inline constexpr int kSettingsSetCount = 5;

struct SettingsSet {
    std::string member;  // a file name in "\settingsset"
    std::string name;    // empty: the set is unused
    std::string type;

    friend bool operator==(const SettingsSet&, const SettingsSet&) = default;
};

std::string settingsSetFileText(const SettingsSet& set);
bool writeSettingsSetFile(Host& host, const std::string& path, const SettingsSet& set);
// Lines the file lacks read as empty; a file of one line (a member only) names its set after the
// member, so the set stays in use. Nothing if the file cannot be opened.
std::optional<SettingsSet> readSettingsSetFile(Host& host, const std::string& path);

// The types that make a settings set count for the integrity record.
bool isRecordedSettingsSetType(const std::string& type);

}  // namespace orvanta
