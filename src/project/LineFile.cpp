#include "project/LineFile.h"

#include <algorithm>
#include <array>

namespace orvanta {

namespace {

constexpr std::size_t kChunkSize = 64 * 1024;

class LineCollector {
public:
    explicit LineCollector(std::size_t maxLines) : maxLines_(maxLines) {}

    bool full() const { return lines_.size() >= maxLines_; }

    // Whole runs up to each line end at once: a list of 100,000 paths is read byte by byte otherwise.
    void take(std::string_view bytes) {
        while (!bytes.empty() && !full()) {
            const auto end = bytes.find('\n');
            current_.append(bytes.substr(0, end));
            if (end == std::string_view::npos) return;
            endLine();
            bytes.remove_prefix(end + 1);
        }
    }

    std::vector<std::string> finish() {
        if (!current_.empty() && !full()) lines_.push_back(std::move(current_));
        return std::move(lines_);
    }

private:
    void endLine() {
        if (!current_.empty() && current_.back() == '\r') current_.pop_back();
        lines_.push_back(std::move(current_));
        current_.clear();
    }

    std::size_t maxLines_;
    std::vector<std::string> lines_;
    std::string current_;
};

}  // namespace

std::optional<std::vector<std::string>> readLines(Host& host, const std::string& path, std::size_t maxLines) {
    const auto reader = host.openForReading(path);
    if (!reader) return std::nullopt;
    LineCollector collector(maxLines);
    std::array<char, kChunkSize> chunk{};
    while (!collector.full()) {
        const std::size_t got = reader->read(chunk.data(), chunk.size());
        if (got == 0) break;
        collector.take(std::string_view(chunk.data(), got));
    }
    return collector.finish();
}

bool isControlByte(char c) {
    return static_cast<unsigned char>(c) < 0x20;
}

bool removeControlBytes(std::string& line) {
    const auto kept = std::remove_if(line.begin(), line.end(), isControlByte);
    if (kept == line.end()) return false;
    line.erase(kept, line.end());
    return true;
}

void appendLine(std::string& out, std::string_view line) {
    for (const char c : line)
        if (!isControlByte(c)) out += c;
    out += "\r\n";
}

std::string linesText(const std::vector<std::string>& lines) {
    std::string text;
    for (const auto& line : lines) appendLine(text, line);
    return text;
}

}  // namespace orvanta
