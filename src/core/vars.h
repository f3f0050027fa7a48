#pragma once
// The process-wide values of the running program. They are set once at start-up (and a few by the
// build) and read everywhere; the one user-interface thread is the only one that touches them.

#include <string>

namespace orvanta::vars {

inline std::string workspaceFolder;   // the documents folder plus "Orvanta", no trailing backslash
inline std::string settingsRootKey;   // "HKCU\Software\Orvanta"
inline std::string compressorChoice;  // "7zip", or empty when no archiver was found
inline std::string rarFolder;         // with trailing backslash, or empty
inline std::string sevenZipFolder;    // with trailing backslash, or empty
inline int compressionLevel = 0;  // 0 to 5; the editor's load sets 5, the package dialog the user's choice
inline std::string finalPackageFile;  // set by the saver
inline bool abortWalks = false;       // stops the recursive folder walks early

// The key of the user's preferences: settingsRootKey plus "\Settings".
inline std::string settingsKey() {
    return settingsRootKey + "\\Settings";
}

// Back to the values a fresh process has; for tests that run Main more than once.
void reset();

}  // namespace orvanta::vars
