#include "project/FontFolderScan.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "platform/CaseFolding.h"
#include "platform/WindowsPath.h"
#include "project/EditorControls.h"
#include "project/ProjectPaths.h"

namespace orvanta {

namespace {

bool isFontFile(const std::string& name) {
    static constexpr std::array<std::string_view, 4> kEndings = {"otf", "ttf", "fon", "fnt"};
    if (name.size() < 3) return false;
    const std::string ending = toLowerCase(name.substr(name.size() - 3));
    return std::find(kEndings.begin(), kEndings.end(), ending) != kEndings.end();
}

bool listed(const std::vector<ListItem>& items, const std::string& name) {
    return std::any_of(items.begin(), items.end(),
                       [&name](const ListItem& item) { return item.text == name; });
}

}  // namespace

void scanFontsFolder(Host& host, ProjectFields& fields, const std::string& workingFolder) {
    const std::string folder = inFolder(workingFolder, projectfolder::kFonts);
    auto items = fields.listItems(ctrl::fonts);
    for (const auto& entry : host.listDirectory(inFolder(folder, "*.*"), false)) {
        // A plain directory search does not see hidden or system files.
        const bool hidden = (entry.attributes & (kAttributeHidden | kAttributeSystem)) != 0;
        if (!hidden && isFontFile(entry.name) && !listed(items, entry.name)) {
            fields.addListItem(ctrl::fonts, entry.name, false);
            items.push_back({entry.name, false});
        }
        fields.processPendingEvents();
    }
}

}  // namespace orvanta
