#pragma once
// Small routines everything stands on: file tests, the shell, the system's name, and the
// choice between the two forms of a message.

#include <cstdint>
#include <string>

#include "core/Dialogs.h"
#include "platform/Host.h"

namespace orvanta {

// Truth values of these routines: -1 true, 0 false.
inline constexpr std::int16_t kTrue = -1;
inline constexpr std::int16_t kFalse = 0;

// True if a listing of the path with default attributes yields a name: wildcards match, hidden
// and system files do not count, and neither do folders.
std::int16_t fileExists(Host& host, const std::string& path);
// The same listing with folders included, so it is also true for a file.
std::int16_t folderExists(Host& host, const std::string& path);

// Opens a file or address through the shell; a failure is shown with the file or address and
// the shell's reason.
void shellOpen(Host& host, Dialogs& dialogs, const std::string& file, const std::string& parameters);
void shellOpenHidden(Host& host, Dialogs& dialogs, const std::string& file);
// The text for a shell error code below 33; empty for codes without one.
std::string shellErrorText(int code);
// The table's text, or a sentence with the code for one the table has no row for.
std::string shellFailureReason(int code);

// "Windows 2000", "Windows XP", "Windows Vista", "Windows 7", "Windows old" or empty.
std::string windowsVersionName(Host& host);
bool prefersTaskDialog(Host& host);

// A message in the system's two forms: a task dialog titled "Orvanta" on "Windows 7" and
// "Windows Vista", a plain message box with `messageBoxText` everywhere else.
DialogAnswer notifyUser(Host& host, Dialogs& dialogs, const TaskDialogRequest& task,
                        const std::string& messageBoxText);

}  // namespace orvanta
