#include "platform/WindowsCommandLine.h"

namespace orvanta {

std::vector<std::string> splitCommandLine(std::string_view line) {
    std::vector<std::string> arguments;
    std::size_t i = 0;
    while (true) {
        while (i < line.size() && (line[i] == ' ' || line[i] == '\t')) ++i;
        if (i >= line.size()) break;
        std::string argument;
        bool quoted = false;
        while (i < line.size() && (quoted || (line[i] != ' ' && line[i] != '\t'))) {
            if (line[i] == '\\') {
                std::size_t slashes = 0;
                while (i < line.size() && line[i] == '\\') ++slashes, ++i;
                if (i < line.size() && line[i] == '"') {
                    argument.append(slashes / 2, '\\');
                    if (slashes % 2 == 1) argument += '"', ++i;
                } else {
                    argument.append(slashes, '\\');
                }
            } else if (line[i] == '"') {
                // A doubled quote inside a quoted run stands for one quote character.
                if (quoted && i + 1 < line.size() && line[i + 1] == '"') {
                    argument += '"';
                    i += 2;
                } else {
                    quoted = !quoted;
                    ++i;
                }
            } else {
                argument += line[i++];
            }
        }
        arguments.push_back(std::move(argument));
    }
    return arguments;
}

std::string quoteArgument(std::string_view argument) {
    if (!argument.empty() && argument.find_first_of(" \t\"") == std::string_view::npos)
        return std::string(argument);
    std::string quoted = "\"";
    std::size_t slashes = 0;
    for (char c : argument) {
        if (c == '\\') {
            ++slashes;
            continue;
        }
        quoted.append(c == '"' ? slashes * 2 + 1 : slashes, '\\');
        slashes = 0;
        quoted += c;
    }
    quoted.append(slashes * 2, '\\');
    quoted += '"';
    return quoted;
}

}  // namespace orvanta
