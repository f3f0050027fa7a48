#include "core/CommondialogBox.h"

namespace orvanta {

std::vector<DialogFilterEntry> splitDialogFilter(const std::string& filter) {
    std::vector<std::string> parts;
    std::string::size_type start = 0;
    while (start <= filter.size()) {
        const auto bar = filter.find('|', start);
        const auto end = bar == std::string::npos ? filter.size() : bar;
        parts.push_back(filter.substr(start, end - start));
        start = end + 1;
    }
    std::vector<DialogFilterEntry> entries;
    for (std::size_t i = 0; i + 1 < parts.size(); i += 2)
        if (!parts[i + 1].empty()) entries.push_back({parts[i], parts[i + 1]});
    return entries;
}

OpenFileResult finishOpenFileResult(const std::string& chosen) {
    OpenFileResult result;
    result.path = chosen;
    // The dialog's buffer is padded with blanks after its NUL; both go.
    if (const auto nul = result.path.find('\0'); nul != std::string::npos) result.path.resize(nul);
    while (!result.path.empty() && result.path.back() == ' ') result.path.pop_back();
    const auto cut = result.path.rfind('\\');
    result.fileName = cut == std::string::npos ? result.path : result.path.substr(cut + 1);
    return result;
}

OpenFileResult openFileDialog(Dialogs& dialogs, const std::string& filter,
                              const std::string& defaultExtensions, const std::string& initialFolder,
                              const std::string& title) {
    return finishOpenFileResult(dialogs.openFile({filter, defaultExtensions, initialFolder, title}));
}

}  // namespace orvanta
