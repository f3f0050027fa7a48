#include "builder/BatchFiles.h"

#include <array>
#include <string_view>

namespace orvanta {

namespace {

std::string quoted(std::string_view text) {
    return "\"" + std::string(text) + "\"";
}

std::string rarCall(const BatchValues& values) {
    return quoted(values.archiverFolder + "rar.exe");
}

std::string sevenZipCall(const BatchValues& values) {
    return quoted(values.archiverFolder + "7z.exe");
}

std::string selfDelete(const BatchValues& values, std::string_view batchName) {
    return "del " + quoted(values.workspaceFolder + std::string(batchName));
}

// The setup files, where the two routes share a place. Positions 13 and 14 swap between the
// routes, the updater block and the executables list belong to WinRAR alone.
enum class Only { Both, WinRar, SevenZip };
struct SetupEntry {
    std::string_view name;
    Only route;
};
constexpr std::array<SetupEntry, 14> kSetupFiles = {{
    {"\\files.cfg", Only::Both},
    {"\\folders.cfg", Only::Both},
    {"\\mainsettings.cfg", Only::Both},
    {"\\dependencies.cfg", Only::Both},
    {"\\appdatalocations.cfg", Only::Both},
    {"\\registrylocations.cfg", Only::Both},
    {"\\intro.cfg", Only::Both},
    {"\\tips.cfg", Only::Both},
    {"\\uninstallIntro.cfg", Only::Both},
    {"\\packages.cfg", Only::Both},
    {"\\uninstallEnd.cfg", Only::Both},
    {"\\check.png", Only::WinRar},
    {"\\ok.png", Only::Both},
    {"\\check.png", Only::SevenZip},
}};
constexpr std::array<std::string_view, 3> kUpdaterFiles = {"\\msinet.ocx", "\\ovgu.exe", "\\ovgu.cfg"};
constexpr std::array<std::string_view, 3> kRuntimeFiles = {"\\install.exe", "\\install.exe.manifest",
                                                           "\\uninstall.exe"};
constexpr std::array<std::string_view, 5> kPictureFiles = {"\\logo.png", "\\1.jpg", "\\preview.png",
                                                           "\\slicense.txt", "\\prgbar.ocx"};

std::vector<std::string> setupEntries(ArchiverRoute route, const BatchValues& values) {
    const bool winRar = route == ArchiverRoute::WinRar;
    std::vector<std::string> entries = {"\\" + values.hashFileName};
    for (const SetupEntry& entry : kSetupFiles) {
        if (entry.route == Only::Both || (entry.route == Only::WinRar) == winRar)
            entries.emplace_back(entry.name);
    }
    if (winRar && values.updaterFiles)
        entries.insert(entries.end(), kUpdaterFiles.begin(), kUpdaterFiles.end());
    entries.insert(entries.end(), kRuntimeFiles.begin(), kRuntimeFiles.end());
    if (!values.anyFile.empty()) entries.push_back("\\" + values.anyFile);
    entries.insert(entries.end(), kPictureFiles.begin(), kPictureFiles.end());
    if (winRar) entries.emplace_back("\\executables.cfg");
    entries.emplace_back("\\fonts.cfg");
    if (!values.fullLicenseFile.empty()) entries.push_back("\\" + values.fullLicenseFile);
    return entries;
}

}  // namespace

std::vector<std::string> applicationBatchLines(ArchiverRoute route, const BatchValues& values) {
    const std::string& w = values.workingFolder;
    std::vector<std::string> lines;
    if (route == ArchiverRoute::WinRar) {
        const std::string add = rarCall(values) + " a -ep1 -md4096 -m" +
                                std::to_string(values.compressionLevel) + " " +
                                quoted(w + "\\compiled\\package.rar") + " \"" + w;
        for (std::string_view folder :
             {values.filesFolder, std::string("\\packages"), std::string("\\settingsset")})
            lines.push_back(add + std::string(folder));
        if (values.hasFonts) lines.push_back(add + "\\fonts\"");
        lines.push_back(rarCall(values) + " k " + quoted(w + "\\compiled\\package.rar"));
    } else {
        const std::string add =
            sevenZipCall(values) + " a -t7z " + quoted(w + "\\compiled\\package.7z") + " \"" + w;
        for (std::string_view folder :
             {values.filesFolder, std::string("\\packages"), std::string("\\settingsset")})
            lines.push_back(add + std::string(folder));
        if (values.hasFonts) lines.push_back(add + "\\fonts\"");
        lines.push_back("copy /b " + quoted(w + "\\compiled\\package2.exe") + " + " +
                        quoted(w + "\\compiled\\package.7z") + " " + quoted(w + "\\compiled\\package.exe"));
    }
    lines.push_back(selfDelete(values, "\\packager.bat"));
    return lines;
}

std::vector<std::string> setupBatchLines(ArchiverRoute route, const BatchValues& values) {
    const std::string& w = values.workingFolder;
    const std::string add =
        route == ArchiverRoute::WinRar
            ? rarCall(values) + " a -ep1 -md4096 -m5 " + quoted(w + "\\compiled\\package.exe")
            : sevenZipCall(values) + " a -t7z " + quoted(w + "\\compiled\\package.7z");
    std::vector<std::string> lines;
    for (const std::string& entry : setupEntries(route, values))
        lines.push_back(add + " " + quoted(w + entry));
    lines.push_back(selfDelete(values, "\\packager2.bat"));
    return lines;
}

std::vector<std::string> perEntryBatchLines(const BatchValues& values, const std::string& entry) {
    const std::string& w = values.workingFolder;
    return {rarCall(values) + " a -ep -apfiles -md4096 -m" + std::to_string(values.compressionLevel) + " " +
                quoted(w + "\\package.exe") + " " + quoted(w + "\\files\\" + entry),
            selfDelete(values, "\\packager3.bat")};
}

std::string batchFileText(const std::vector<std::string>& lines) {
    std::string text;
    for (const std::string& line : lines) text += line + "\r\n";
    return text;
}

}  // namespace orvanta
