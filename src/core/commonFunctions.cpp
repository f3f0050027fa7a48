#include "core/commonFunctions.h"

#include <array>
#include <utility>

namespace orvanta {

namespace {

// Dir$ lists the contents of a folder given with a trailing backslash.
std::string listingPattern(const std::string& path) {
    if (!path.empty() && path.back() == '\\') return path + "*.*";
    return path;
}

bool listsVisibleName(Host& host, const std::string& path, bool includeFolders) {
    if (path.empty()) return false;
    for (const auto& entry : host.listDirectory(listingPattern(path), includeFolders)) {
        if ((entry.attributes & (kAttributeHidden | kAttributeSystem)) != 0) continue;
        if (entry.isFolder() && !includeFolders) continue;
        return true;
    }
    return false;
}

// Every failure is told, with what could not be opened: a silent click leaves the user guessing.
void reportShellFailure(Host& host, Dialogs& dialogs, const std::string& file, int code) {
    const std::string instruction = "Could not open " + file;
    const std::string reason = shellFailureReason(code);
    notifyUser(host, dialogs, {instruction, reason, "Orvanta", MessageButtons::Ok, MessageIcon::Exclamation},
               instruction + "\r\n" + reason);
}

}  // namespace

std::int16_t fileExists(Host& host, const std::string& path) {
    return listsVisibleName(host, path, false) ? kTrue : kFalse;
}

std::int16_t folderExists(Host& host, const std::string& path) {
    return listsVisibleName(host, path, true) ? kTrue : kFalse;
}

std::string shellErrorText(int code) {
    static const std::array<std::pair<int, const char*>, 12> kTexts = {{
        {2, "File not found."},
        {3, "Caminho n\xE3o encontrado."},
        {5, "File opening denied."},
        {8, "Not enough available memory to run the process."},
        {11, "Invalid executable (non-Win32\xAE .exe or corrupted .exe )."},
        {26, "A sharing violation occurred."},
        {27, "Invalid filetype."},
        {28, "The DDE transaction could not be completed because the request timed out."},
        {29, "The DDE transaction failed."},
        {30, "O fichero que est\xE1 a abrir est\xE1 em uso."},
        {31, "There's no application available for this filetype."},
        {32, "The specified dynamic-link library was not found. "},
    }};
    for (const auto& [number, text] : kTexts)
        if (number == code) return text;
    return {};
}

std::string shellFailureReason(int code) {
    const std::string text = shellErrorText(code);
    return text.empty() ? "The system gave the error " + std::to_string(code) + "." : text;
}

void shellOpen(Host& host, Dialogs& dialogs, const std::string& file, const std::string& parameters) {
    const int result = host.shellExecute(file, parameters, kWindowNormalFocus);
    if (result < 33) reportShellFailure(host, dialogs, file, result);
}

void shellOpenHidden(Host& host, Dialogs& dialogs, const std::string& file) {
    const int result = host.shellExecute(file, "", kWindowHidden);
    if (result < 33) reportShellFailure(host, dialogs, file, result);
}

std::string windowsVersionName(Host& host) {
    const VersionWords version = host.versionWords();
    if (version.major == 5) {
        if (version.minor == 0) return "Windows 2000";
        if (version.minor == 1 || version.minor == 2) return "Windows XP";
        return {};
    }
    if (version.major == 6) return version.minor == 0 ? "Windows Vista" : "Windows 7";
    return "Windows old";
}

bool prefersTaskDialog(Host& host) {
    const std::string name = windowsVersionName(host);
    return name == "Windows 7" || name == "Windows Vista";
}

DialogAnswer notifyUser(Host& host, Dialogs& dialogs, const TaskDialogRequest& task,
                        const std::string& messageBoxText) {
    if (prefersTaskDialog(host)) return dialogs.taskDialog(task);
    return dialogs.messageBox({messageBoxText, task.buttons, task.icon, task.title});
}

}  // namespace orvanta
