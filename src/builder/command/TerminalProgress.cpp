#include "builder/command/TerminalProgress.h"

#include <algorithm>
#include <cstdio>

namespace orvanta {

namespace {

constexpr int kBarWidth = 20;

std::string percent(int value) {
    char text[8];
    std::snprintf(text, sizeof text, "%3d%%", value);
    return text;
}

}  // namespace

std::string progressBar(int value, const std::string& caption) {
    const int filled = std::clamp(value, 0, 100) * kBarWidth / 100;
    return "[" + std::string(static_cast<std::size_t>(filled), '#') +
           std::string(static_cast<std::size_t>(kBarWidth - filled), '.') + "] " + percent(value) + " " +
           caption;
}

void TerminalProgress::setValue(int value) {
    value_ = value;
    if (output_.isTerminal()) draw();
}

void TerminalProgress::setCaption(const std::string& caption) {
    caption_ = caption;
    if (output_.isTerminal())
        draw();
    else
        output_.line(percent(value_) + " " + caption);
}

void TerminalProgress::close() {
    // A terminal keeps the last bar; the next line begins below it.
    output_.endStatus();
}

void TerminalProgress::draw() {
    output_.status(progressBar(value_, caption_));
}

}  // namespace orvanta
