#pragma once
// The text of the batch files that drive the archiver. Each line is one archiver call, written
// exactly as the archivers' command lines and the command processors expect; the first three
// lines of the application files' batch file lack their closing quote and are meant to.

#include <string>
#include <vector>

#include "builder/BuildSetup.h"

namespace orvanta {

struct BatchValues {
    std::string workingFolder;    // {W}, as the editor shows it
    std::string workspaceFolder;  // {S}, where the batch files lie
    std::string archiverFolder;   // {R} or {Z}, with trailing backslash
    int compressionLevel = 5;     // {L}
    std::string filesFolder = "\\files";
    bool hasFonts = false;
    std::string hashFileName;     // the record's name as the folder search found it; may be empty
    std::string anyFile;          // empty: no line
    std::string fullLicenseFile;  // empty: no line
    bool updaterFiles = false;    // the WinRAR route's three updater entries
};

// "\packager.bat": the application files, packages, settings sets and fonts, then the closing step.
std::vector<std::string> applicationBatchLines(ArchiverRoute route, const BatchValues& values);
// "\packager2.bat": one call per setup file, in the route's order.
std::vector<std::string> setupBatchLines(ArchiverRoute route, const BatchValues& values);
// "\packager3.bat" of the per-entry loop: one file of the application files folder.
std::vector<std::string> perEntryBatchLines(const BatchValues& values, const std::string& entry);

// The lines with CR LF after each, as a batch file holds them.
std::string batchFileText(const std::vector<std::string>& lines);

}  // namespace orvanta
