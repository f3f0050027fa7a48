#include "project/TextFile.h"

#include "project/LineFile.h"

namespace orvanta {

// Line breaks are kept as CR LF, a lone LF becoming one too; every other control byte is left out.
std::string textFileContent(const std::string& text) {
    std::string content;
    content.reserve(text.size() + 2);
    for (const char c : text) {
        if (c == '\n') {
            content += "\r\n";
        } else if (!isControlByte(c)) {
            content += c;
        }
    }
    return content + "\r\n";
}

bool writeTextFile(Host& host, const std::string& path, const std::string& text) {
    return host.writeFileAtomic(path, textFileContent(text));
}

std::optional<std::string> readTextFile(Host& host, const std::string& path, DamagedLines* damaged) {
    auto lines = readLines(host, path, kShortListLines);
    if (!lines) return std::nullopt;
    std::string text;
    for (std::size_t i = 0; i < lines->size(); ++i) {
        if (removeControlBytes((*lines)[i]) && damaged) damaged->push_back({i + 1, kControlBytesLeftOut});
        if (i > 0) text += "\r\n";
        text += (*lines)[i];
    }
    return text;
}

}  // namespace orvanta
