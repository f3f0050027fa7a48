#include "project/FontList.h"

#include "project/LineFile.h"

namespace orvanta {

std::string fontListText(const std::vector<std::string>& fonts) {
    return linesText(fonts);
}

bool writeFontList(Host& host, const std::string& path, const std::vector<std::string>& fonts) {
    return host.writeFileAtomic(path, fontListText(fonts));
}

ListUpdate readFontList(Host& host, const std::string& path) {
    return readMarkedList(host, path);
}

}  // namespace orvanta
