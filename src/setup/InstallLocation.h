#pragma once
// Where the wizard proposes to install, and the checks the start panel makes before it goes on.

#include <string>

#include "platform/Host.h"
#include "setup/WizardSettings.h"

namespace orvanta {

// CSIDL numbers of the folders behind the editor's root words, besides those every host knows.
inline constexpr int kFolderRoamingAppData = 26;
inline constexpr int kFolderLocalAppData = 28;
inline constexpr int kFolderCommonAppData = 35;
inline constexpr int kFolderResources = 56;

// The path `Text1` starts with. "<>" is the program files folder, with the author's folder when
// asked; a path that begins with a root word is that folder of this machine, followed by the
// author's folder as the editor's preview shows it; any other path keeps all but its drive, which
// becomes the system's.
std::string proposedInstallPath(Host& host, const WizardSettings& settings);

// Drives C to K, in upper case; nothing after the drive is looked at.
bool installPathAccepted(const std::string& path);
inline constexpr const char* kInvalidPathMessage = "Invalid path or drive letter is not upper case.";

// Whether a system of that name meets the minimum; a minimum the table does not know is no check.
bool minimumWindowsMet(const std::string& minimum, const std::string& system);

}  // namespace orvanta
