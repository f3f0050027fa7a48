#include "core/CommondialogBox.h"

namespace orvanta {

std::string toDialogFilter(std::string filter) {
    for (char& c : filter)
        if (c == '|') c = '\0';
    filter.append(2, '\0');
    return filter;
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

}  // namespace orvanta
