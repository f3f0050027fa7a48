#include "ovcmd/CommandContext.h"

#include <algorithm>

#include "platform/CaseFolding.h"
#include "platform/WindowsPath.h"

namespace orvanta {

bool CommandArguments::has(std::string_view option) const {
    return std::find(switches.begin(), switches.end(), option) != switches.end();
}

CommandArguments splitArguments(const std::vector<std::string>& words) {
    CommandArguments split;
    for (const auto& word : words) {
        if (word.size() > 1 && word[0] == '/')
            split.switches.push_back(toLowerCase(word));
        else
            split.names.push_back(word);
    }
    return split;
}

std::vector<std::string> expandWildcard(Host& host, const std::string& name) {
    if (!hasWildcard(lastComponent(name))) return {name};
    std::vector<std::string> matches;
    const std::string folder = parentFolder(name);
    for (const auto& entry : host.listDirectory(name, false))
        matches.push_back(folder.empty() ? entry.name : joinPath(folder, entry.name));
    return matches;
}

}  // namespace orvanta
