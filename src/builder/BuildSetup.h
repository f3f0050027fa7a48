#pragma once
// What a build needs besides the project's controls: the archiver chosen and where it lies, the
// compression level, the workspace and the program's own folder with its delivered stubs.

#include <functional>
#include <string>

namespace orvanta {

enum class ArchiverRoute { WinRar, SevenZip };

struct BuildSetup {
    std::string compressorChoice;  // "winrar" or "7zip"; any other value stops the build
    int compressionLevel = 5;      // 0 to 5, the application files of the WinRAR route only
    std::string rarFolder;         // with trailing backslash
    std::string sevenZipFolder;    // with trailing backslash
    std::string workspaceFolder;   // no trailing backslash
    std::string applicationFolder;
    std::string settingsKey;           // where "verbose" is read
    int* packagerItemIndex = nullptr;  // the editor's index of the per-entry loop, reset first

    // Optional steps of the headless build. Each returns an error text, empty on success; a
    // failure stops the build at that step.
    std::function<std::string()> beforeArchiving;                       // staged, nothing packed yet
    std::function<std::string(const std::string& package)> afterBuild;  // the final package exists

    ArchiverRoute route() const {
        return compressorChoice == "winrar" ? ArchiverRoute::WinRar : ArchiverRoute::SevenZip;
    }
};

}  // namespace orvanta
