#include "platform/WindowsPath.h"

#include <algorithm>

#include "platform/CaseFolding.h"

namespace orvanta {

namespace {

// Iterative matcher with one backtrack point for the last "*": linear in practice, never recursive.
bool matchPlain(std::string_view name, std::string_view pattern) {
    std::size_t n = 0, p = 0;
    std::size_t starPattern = std::string_view::npos, starName = 0;
    while (n < name.size()) {
        if (p < pattern.size() && (pattern[p] == '?' || lowerCase(pattern[p]) == lowerCase(name[n]))) {
            ++n;
            ++p;
        } else if (p < pattern.size() && pattern[p] == '*') {
            starPattern = p++;
            starName = n;
        } else if (starPattern != std::string_view::npos) {
            p = starPattern + 1;
            n = ++starName;
        } else {
            return false;
        }
    }
    while (p < pattern.size() && pattern[p] == '*') ++p;
    return p == pattern.size();
}

}  // namespace

bool matchesWildcard(std::string_view name, std::string_view pattern) {
    if (matchPlain(name, pattern)) return true;
    // Windows lets a trailing ".*" match a name that has no extension at all.
    if (pattern.size() >= 2 && pattern.substr(pattern.size() - 2) == ".*" &&
        name.find('.') == std::string_view::npos)
        return matchPlain(name, pattern.substr(0, pattern.size() - 2));
    return false;
}

bool hasWildcard(std::string_view path) {
    return path.find_first_of("*?") != std::string_view::npos;
}

std::string parentFolder(std::string_view path) {
    const auto cut = path.rfind('\\');
    return cut == std::string_view::npos ? std::string() : std::string(path.substr(0, cut));
}

std::string lastComponent(std::string_view path) {
    const auto cut = path.rfind('\\');
    return std::string(cut == std::string_view::npos ? path : path.substr(cut + 1));
}

std::string joinPath(std::string_view folder, std::string_view name) {
    std::string result(folder);
    while (!result.empty() && result.back() == '\\') result.pop_back();
    while (!name.empty() && name.front() == '\\') name.remove_prefix(1);
    result += '\\';
    result += name;
    return result;
}

std::string withBackslashes(std::string path) {
    std::replace(path.begin(), path.end(), '/', '\\');
    return path;
}

std::vector<std::string> pathComponents(std::string_view path) {
    std::vector<std::string> parts;
    std::size_t start = 0;
    while (start <= path.size()) {
        const auto end = std::min(path.find('\\', start), path.size());
        if (end > start) parts.emplace_back(path.substr(start, end - start));
        start = end + 1;
    }
    return parts;
}

}  // namespace orvanta
