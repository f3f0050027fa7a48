#pragma once
// "\settingsset\<i>.cfg": its first line names a file in "\settingsset" that belongs to settings
// set i. What follows that line is the settings editor's own.

#include <optional>
#include <string>

#include "platform/Host.h"

namespace orvanta {

inline constexpr int kSettingsSetCount = 5;

std::string settingsSetFileText(const std::string& memberFile);
bool writeSettingsSetFile(Host& host, const std::string& path, const std::string& memberFile);
// The first line (empty for an empty file); nothing if the file cannot be opened.
std::optional<std::string> readSettingsSetMember(Host& host, const std::string& path);

// The types that make a settings set count for the integrity record.
bool isRecordedSettingsSetType(const std::string& type);

}  // namespace orvanta
