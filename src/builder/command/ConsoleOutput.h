#pragma once
// Standard error of the headless build, shared by its messages and its progress, so that a
// message never lands in the middle of a progress bar.

#include <cstdio>
#include <string>

namespace orvanta {

class ConsoleOutput {
public:
    explicit ConsoleOutput(std::FILE* stream);

    bool isTerminal() const { return terminal_; }
    // A whole line of the system's ANSI text; CR LF inside it becomes a line break.
    void line(const std::string& ansiText);
    // Redraws the one status line of a terminal in place.
    void status(const std::string& ansiText);
    // Ends a status line that is showing, so that it stays as it was last drawn.
    void endStatus();

private:
    std::FILE* stream_;
    bool terminal_;
    bool statusShown_ = false;
};

}  // namespace orvanta
