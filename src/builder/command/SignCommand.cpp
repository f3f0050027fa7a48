#include "builder/command/SignCommand.h"

#include <cstdio>
#include <cstdlib>

#include "platform/AnsiText.h"

namespace orvanta {

std::string quotedForShell(const std::string& hostPath) {
    if (hostPath.starts_with("/")) {
        std::string quoted = "'";
        for (char c : hostPath) quoted += c == '\'' ? std::string("'\\''") : std::string(1, c);
        return quoted + "'";
    }
    // A Windows file name cannot hold a double quote, so nothing inside needs escaping.
    return "\"" + hostPath + "\"";
}

std::string signCommandFor(const std::string& command, const std::string& hostPath) {
    const std::string quoted = quotedForShell(hostPath);
    std::string result;
    for (std::size_t at = 0; at < command.size();) {
        if (command.compare(at, 2, "{}") == 0) {
            result += quoted;
            at += 2;
        } else {
            result += command[at++];
        }
    }
    return result;
}

std::string runSignCommand(const std::string& command, const std::string& hostPath) {
    std::fflush(nullptr);
    const int status = std::system(signCommandFor(command, hostPath).c_str());
    if (status == 0) return {};
    return utf8ToAnsi("The signing command failed on " + hostPath + " (status " + std::to_string(status) +
                      "): " + command);
}

}  // namespace orvanta
