#pragma once
// The integrity record that seals each save: the CRC-32 of each file that makes up the project,
// 37 lines in a file named after the record's own CRC with the extension ".hsh". Readers address
// the record by line number, so the layout keeps its gaps (entry 4 and 30 are always empty) and
// its repeat (entry 13 is entry 2 again).

#include <array>
#include <cstddef>
#include <optional>
#include <string>

#include "core/clsCRC.h"
#include "platform/Host.h"
#include "project/RecordName.h"
#include "project/SettingsSetFile.h"

namespace orvanta {

inline constexpr std::size_t kRecordEntries = 37;
inline constexpr std::size_t kRecordedExecutables = 3;

using RecordEntries = std::array<std::string, kRecordEntries>;

struct IntegrityInputs {
    std::string workingFolder;
    std::string applicationFolder;  // holds "\data\install" and "\data\uninstall"
    std::string anyFile;
    std::string mainExecutable;
    bool mainExecutableChecked = false;  // Check23
    std::string appVersion;
    std::array<std::string, kSettingsSetCount> settingsSetTypes;  // "REG", "REGFILE", "EXE" or other
    // Names below "\executables" for entries 15 to 17. Nothing fills them yet, so they stay empty.
    std::array<std::string, kRecordedExecutables> executableNames;
};

// The 37 values: crcHex of each file, "0" for an empty file, empty for a file that cannot be read
// or whose condition does not hold.
RecordEntries integrityEntries(Host& host, clsCRC& crc, const IntegrityInputs& inputs);

// Computes the record and its sealed name ("<stem><letter>.hsh", the stem from the record's own
// CRC) in memory and puts it in place of the folder's old records, so that the folder holds
// exactly one record at every moment. Gives the name; nothing if the record could not be put in
// place (the old one, or the new text under the old name, then stays).
std::optional<std::string> writeIntegrityRecord(Host& host, const IntegrityInputs& inputs,
                                                const UnitRandom& random);

}  // namespace orvanta
