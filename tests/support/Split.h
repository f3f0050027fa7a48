#pragma once
// Long expected data written as one text: the pieces between separators, empty ones included.

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

namespace orvanta::testing {

inline std::vector<std::string> split(std::string_view text, char separator) {
    std::vector<std::string> pieces;
    for (std::size_t from = 0, end = 0; from <= text.size(); from = end + 1) {
        end = std::min(text.find(separator, from), text.size());
        pieces.emplace_back(text.substr(from, end - from));
    }
    return pieces;
}

}  // namespace orvanta::testing
