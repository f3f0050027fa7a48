#include "project/SettingsSetFile.h"

#include "project/LineFile.h"

namespace orvanta {

std::string settingsSetFileText(const std::string& memberFile) {
    return linesText({memberFile});
}

bool writeSettingsSetFile(Host& host, const std::string& path, const std::string& memberFile) {
    return host.writeFileAtomic(path, settingsSetFileText(memberFile));
}

std::optional<std::string> readSettingsSetMember(Host& host, const std::string& path) {
    const auto lines = readLines(host, path, 1);
    if (!lines) return std::nullopt;
    return lines->empty() ? std::string() : lines->front();
}

bool isRecordedSettingsSetType(const std::string& type) {
    return type == "REG" || type == "REGFILE" || type == "EXE";
}

}  // namespace orvanta
