#include "ovcmd/BatchLine.h"

#include <cctype>
#include <cstdlib>

namespace orvanta {

namespace {

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

bool isBlank(char c) {
    return c == ' ' || c == '\t';
}

// The word after a redirection sign: quoted or up to the next blank.
std::string redirectionTarget(std::string_view rest) {
    std::size_t i = 0;
    while (i < rest.size() && isBlank(rest[i])) ++i;
    std::string target;
    bool quoted = false;
    for (; i < rest.size() && (quoted || !isBlank(rest[i])); ++i) {
        if (rest[i] == '"')
            quoted = !quoted;
        else
            target += rest[i];
    }
    return target;
}

}  // namespace

std::string expandReferences(std::string_view line, const std::vector<std::string>& arguments) {
    std::string expanded;
    for (std::size_t i = 0; i < line.size(); ++i) {
        if (line[i] != '%' || i + 1 >= line.size()) {
            expanded += line[i];
            continue;
        }
        const char next = line[i + 1];
        if (next == '%') {
            expanded += '%';
            ++i;
        } else if (isDigit(next)) {
            const auto index = static_cast<std::size_t>(next - '0');
            if (index < arguments.size()) expanded += arguments[index];
            ++i;
        } else if (const auto close = line.find('%', i + 1); close != std::string_view::npos) {
            const std::string name(line.substr(i + 1, close - i - 1));
            if (const char* value = std::getenv(name.c_str())) expanded += value;
            i = close;
        } else {
            expanded += line[i];
        }
    }
    return expanded;
}

BatchLine parseBatchLine(std::string_view line) {
    std::size_t start = 0;
    while (start < line.size() && (isBlank(line[start]) || line[start] == '@')) ++start;
    line.remove_prefix(start);
    BatchLine parsed;
    bool quoted = false;
    for (std::size_t i = 0; i < line.size(); ++i) {
        if (line[i] == '"') quoted = !quoted;
        if (quoted || line[i] != '>') continue;
        parsed.append = i + 1 < line.size() && line[i + 1] == '>';
        parsed.output = redirectionTarget(line.substr(i + (parsed.append ? 2 : 1)));
        line = line.substr(0, i);
        break;
    }
    while (!line.empty() && isBlank(line.back())) line.remove_suffix(1);
    parsed.command = std::string(line);
    return parsed;
}

CommandWord firstWord(std::string_view command) {
    CommandWord result;
    bool quoted = false;
    std::size_t i = 0;
    for (; i < command.size(); ++i) {
        const char c = command[i];
        if (c == '"') {
            quoted = !quoted;
            continue;
        }
        if (!quoted && (isBlank(c) || (c == '/' && !result.word.empty()))) break;
        result.word += c;
    }
    result.restAt = i;
    return result;
}

}  // namespace orvanta
