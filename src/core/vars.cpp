#include "core/vars.h"

namespace orvanta::vars {

void reset() {
    workspaceFolder.clear();
    settingsRootKey.clear();
    compressorChoice.clear();
    rarFolder.clear();
    sevenZipFolder.clear();
    compressionLevel = 0;
    finalPackageFile.clear();
    abortWalks = false;
}

}  // namespace orvanta::vars
