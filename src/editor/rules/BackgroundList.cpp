#include "editor/rules/BackgroundList.h"

#include "platform/CaseFolding.h"

namespace orvanta {

namespace {

bool isBackgroundName(const std::string& name) {
    if (name.size() < 3) return false;
    const std::string_view last = std::string_view(name).substr(name.size() - 3);
    return last == "jpg" || last == "png";
}

}  // namespace

std::vector<std::string> listBackgrounds(Host& host, const std::string& folder) {
    std::vector<std::string> names;
    for (const DirectoryEntry& entry : host.listDirectory(folder + "\\*", true)) {
        if (entry.name == "." || entry.name == "..") continue;
        if (isBackgroundName(entry.name)) names.push_back(entry.name);
    }
    return names;
}

std::optional<std::size_t> findBackground(const std::vector<std::string>& names, const std::string& search) {
    const std::string wanted = toLowerCase(search);
    for (std::size_t row = 0; row < names.size(); ++row)
        if (toLowerCase(names[row]).find(wanted) != std::string::npos) return row;
    return std::nullopt;
}

std::string backgroundPosition(int row, std::size_t count) {
    if (count == 0) return "0/0";
    return std::to_string(row + 1) + "/" + std::to_string(count);
}

}  // namespace orvanta
