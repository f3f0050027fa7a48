#pragma once
// The package dialog without its window: which archiver it offers and holds, the compression
// level and verbose mode, each stored in the user's settings the moment it changes. The window
// moves these values to its controls and sends its clicks here.

#include <array>

#include "builder/BuildSetup.h"
#include "core/Dialogs.h"
#include "platform/Host.h"

namespace orvanta {

// The items of Combo1; an item's index is the level of the "-m" switch.
inline constexpr std::array<const char*, 6> kCompressionLevels = {"None",   "Minimum",      "Below Normal",
                                                                  "Normal", "Above Normal", "Maximum"};
inline constexpr const char* kWinRarDownloadPage = "https://www.win-rar.com/download.html";
inline constexpr const char* kSevenZipDownloadPage = "https://www.7-zip.org/download.html";

// The controls' state as the dialog shows it; both options start disabled.
struct PackageDialogState {
    bool option1Enabled = false;  // WinRAR
    bool option2Enabled = false;  // 7-Zip
    bool option1Value = false;
    bool option2Value = false;
    bool combo1Enabled = true;
    int combo1Index = -1;
    int check2Value = 0;
    bool command1Enabled = true;
};

class PackageDialogModel {
public:
    PackageDialogModel(Host& host, Dialogs& dialogs);

    const PackageDialogState& state() const { return state_; }

    // The stored choices, then what the machine offers; with neither archiver the user is told
    // and may open both download pages.
    void Form_Load();
    void Option1_Click();
    void Option2_Click();
    void Combo1_Click(int index);
    void Check2_Click(int value);

private:
    void selectOption1();
    void selectOption2();
    void offerArchivers();
    bool winRarFound();
    bool sevenZipFound();
    void tellNoArchiver();

    Host& host_;
    Dialogs& dialogs_;
    PackageDialogState state_;
};

// The setup of a build from the choices of this session and the program's own folders.
BuildSetup currentBuildSetup(Host& host);

}  // namespace orvanta
