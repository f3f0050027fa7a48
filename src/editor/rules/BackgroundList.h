#pragma once
// The backgrounds the manager offers: the pictures of the workspace's "backgrounds" folder, in
// the order the file system gives them, and the search over their names.

#include <optional>
#include <string>
#include <vector>

#include "platform/Host.h"

namespace orvanta {

// Only the last three characters of a name count, with case: "sky.jpg" and "skyjpg" are taken,
// "sky.JPG" is not. Folders whose names end so are taken too.
std::vector<std::string> listBackgrounds(Host& host, const std::string& folder);
// The first name that holds `search`, both in lower case; nothing when none does.
std::optional<std::size_t> findBackground(const std::vector<std::string>& names, const std::string& search);
// "3/12": the row counted from one and the number of rows; "0/0" for none.
std::string backgroundPosition(int row, std::size_t count);

}  // namespace orvanta
