#include "project/TextFile.h"

#include "project/LineFile.h"

namespace orvanta {

std::string textFileContent(const std::string& text) {
    return text + "\r\n";
}

bool writeTextFile(Host& host, const std::string& path, const std::string& text) {
    return host.writeFileAtomic(path, textFileContent(text));
}

std::optional<std::string> readTextFile(Host& host, const std::string& path) {
    const auto lines = readLines(host, path, kShortListLines);
    if (!lines) return std::nullopt;
    std::string text;
    for (std::size_t i = 0; i < lines->size(); ++i) {
        if (i > 0) text += "\r\n";
        text += (*lines)[i];
    }
    return text;
}

}  // namespace orvanta
