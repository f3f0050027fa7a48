#include "editor/MainExecutable.h"

#include <algorithm>
#include <cctype>

namespace orvanta {

namespace {

std::string lowered(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return text;
}

}  // namespace

std::string mainExecutableName(const std::string& picked, const std::string& filesFolder) {
    const std::string prefix = lowered(filesFolder + "\\");
    const std::size_t at = lowered(picked).find(prefix);
    if (at != std::string::npos) return picked.substr(at + prefix.size());
    const std::size_t slash = picked.rfind('\\');
    return slash == std::string::npos ? picked : picked.substr(slash + 1);
}

}  // namespace orvanta
