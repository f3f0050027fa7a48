#pragma once
// What every built-in command of the command processor works with: the host that maps the
// batch file's Windows paths, and the two output streams of the line.

#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Host.h"

namespace orvanta {

struct CommandContext {
    Host& host;
    std::ostream& out;
    std::ostream& err;
};

// The words of a command after its name, switches ("/s", lower-cased) apart from the names.
struct CommandArguments {
    std::vector<std::string> switches;
    std::vector<std::string> names;
    bool has(std::string_view option) const;
};
CommandArguments splitArguments(const std::vector<std::string>& words);

// The files a name stands for: the matches of a wildcard in its last component, or the name itself.
std::vector<std::string> expandWildcard(Host& host, const std::string& name);

inline constexpr int kErrorLevelSyntax = 1;
inline constexpr int kErrorLevelNotFound = 2;
inline constexpr int kErrorLevelUnknownCommand = 9009;

}  // namespace orvanta
