#include "builder/command/ConsoleOutput.h"

#include <unistd.h>

#include "platform/AnsiText.h"

namespace orvanta {

namespace {

std::string printable(const std::string& ansiText) {
    std::string text = ansiToUtf8(ansiText);
    std::string out;
    out.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n') continue;
        out += text[i];
    }
    return out;
}

}  // namespace

ConsoleOutput::ConsoleOutput(std::FILE* stream) : stream_(stream), terminal_(isatty(fileno(stream)) != 0) {}

void ConsoleOutput::line(const std::string& ansiText) {
    endStatus();
    std::fprintf(stream_, "%s\n", printable(ansiText).c_str());
    std::fflush(stream_);
}

void ConsoleOutput::status(const std::string& ansiText) {
    // Clear to the end of the line: the new text may be shorter than the old.
    std::fprintf(stream_, "\r%s\x1b[K", printable(ansiText).c_str());
    std::fflush(stream_);
    statusShown_ = true;
}

void ConsoleOutput::endStatus() {
    if (!statusShown_) return;
    std::fputc('\n', stream_);
    statusShown_ = false;
}

}  // namespace orvanta
