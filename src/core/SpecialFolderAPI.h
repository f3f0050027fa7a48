#pragma once

#include <string>

#include "platform/Host.h"

namespace orvanta {

inline constexpr int kFolderDocuments = 5;
inline constexpr int kFolderProgramFiles = 38;
inline constexpr int kFolderSystem32Bit = 41;
inline constexpr int kFolderCommonProgramFiles = 43;

// The shell folder of a CSIDL number with a trailing backslash, or empty when the shell has none.
std::string specialFolder(Host& host, int csidl);

}  // namespace orvanta
