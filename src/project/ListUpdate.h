#pragma once
// What reading a list file asks of the list it feeds. Some list files do not say what the list
// holds but how to change it: "<>" leaves it as it stands.

#include <string>
#include <vector>

#include "platform/Host.h"

namespace orvanta {

enum class ListAction {
    Replace,  // clear the list, then add `items`
    Keep,     // leave the list as it stands
};

struct ListUpdate {
    ListAction action = ListAction::Keep;
    std::vector<std::string> items;
};

// Applies an update to a list held as strings (what a list control does with it).
void applyListUpdate(const ListUpdate& update, std::vector<std::string>& list);

// The short-list rule: at most 51 lines; "<>" in the first line, or a missing file, keeps the
// list; anything else, an empty file too, replaces it.
ListUpdate readMarkedList(Host& host, const std::string& path);

}  // namespace orvanta
