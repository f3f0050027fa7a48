#include "project/ListUpdate.h"

#include "project/LineFile.h"

namespace orvanta {

namespace {
constexpr const char* kKeepMark = "<>";
}  // namespace

void applyListUpdate(const ListUpdate& update, std::vector<std::string>& list) {
    if (update.action == ListAction::Keep) return;
    list.clear();
    list.insert(list.end(), update.items.begin(), update.items.end());
}

ListUpdate readMarkedList(Host& host, const std::string& path) {
    auto lines = readLines(host, path, kShortListLines);
    if (!lines || (!lines->empty() && lines->front() == kKeepMark)) return {};
    return {ListAction::Replace, std::move(*lines)};
}

}  // namespace orvanta
