#pragma once
// One line of a batch file as the command processor sees it: "@" and blanks in front dropped,
// "%" references expanded, an output redirection ("> file", ">> file") taken off the end.

#include <string>
#include <string_view>
#include <vector>

namespace orvanta {

struct BatchLine {
    std::string command;  // the line without its redirection
    std::string output;   // target of ">" or ">>", empty when none
    bool append = false;
};

// "%0" to "%9" take the batch file's arguments (the file itself for %0), "%%" is one "%", and
// "%NAME%" the environment variable; an unknown variable expands to nothing, as in a batch file.
std::string expandReferences(std::string_view line, const std::vector<std::string>& arguments);

// Splits off a redirection outside double quotes.
BatchLine parseBatchLine(std::string_view line);

// The first word of a command: its name ("copy", "del", a program path), quotes removed, and where
// the rest of the line starts. cmd.exe also ends a word at "/", so "del/q" is "del" with "/q".
struct CommandWord {
    std::string word;
    std::size_t restAt = 0;
};
CommandWord firstWord(std::string_view command);

}  // namespace orvanta
