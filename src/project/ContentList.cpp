#include "project/ContentList.h"

#include "project/LineFile.h"

namespace orvanta {

std::string contentListText(const std::vector<std::string>& paths) {
    return linesText(paths);
}

bool writeContentList(Host& host, const std::string& path, const std::vector<std::string>& paths) {
    return host.writeFileAtomic(path, contentListText(paths));
}

ListUpdate readContentList(Host& host, const std::string& path) {
    auto lines = readLines(host, path, kContentListLines);
    return {ListAction::Replace, lines ? std::move(*lines) : std::vector<std::string>{}};
}

}  // namespace orvanta
