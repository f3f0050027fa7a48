#include "editor/rules/MainExecutable.h"

#include "platform/CaseFolding.h"

namespace orvanta {

std::string mainExecutableName(const std::string& picked, const std::string& filesFolder) {
    const std::string prefix = filesFolder + "\\";
    const std::size_t at = findIgnoringCase(picked, prefix);
    if (at != std::string::npos) return picked.substr(at + prefix.size());
    const std::size_t slash = picked.rfind('\\');
    return slash == std::string::npos ? picked : picked.substr(slash + 1);
}

}  // namespace orvanta
