#include "controls/rules/BFFC.h"

#include "controls/rules/ModBrowse.h"

namespace orvanta {

std::string BFFC::Browse() {
    const FolderBrowserAnswer answer =
        dialogs_.browseForFolder(prepareBrowseRequest(host_, {Title, InitDir, ShowRecurse, ShowCreate}));
    // Without the box on the dialog there is nothing the user could have ticked.
    doRecurse_ = ShowRecurse && answer.recurse;
    return answer.folder;
}

}  // namespace orvanta
