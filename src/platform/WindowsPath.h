#pragma once
// String rules of Windows paths, the same on every host.

#include <string>
#include <string_view>
#include <vector>

namespace orvanta {

// Matches a bare name against a pattern with "*" and "?", ignoring case as Windows does;
// "*.*" also matches a name without a dot.
bool matchesWildcard(std::string_view name, std::string_view pattern);
bool hasWildcard(std::string_view path);

// "C:\a\b.txt" -> "C:\a"; a path without a backslash gives "".
std::string parentFolder(std::string_view path);
// "C:\a\b.txt" -> "b.txt"; the whole path when it has no backslash.
std::string lastComponent(std::string_view path);
// Joins with exactly one backslash between the two parts.
std::string joinPath(std::string_view folder, std::string_view name);
// Every "/" turned into "\\", which Windows takes for the same separator.
std::string withBackslashes(std::string path);
// Splits at backslashes, dropping empty pieces: "C:\a\\b\" -> {"C:", "a", "b"}.
std::vector<std::string> pathComponents(std::string_view path);

}  // namespace orvanta
