#include "project/IntegrityRecord.h"

#include "core/RuntimeError.h"
#include "core/commonFunctions.h"
#include "platform/CaseFolding.h"
#include "platform/WindowsPath.h"
#include "project/LineFile.h"
#include "project/ProjectPaths.h"

namespace orvanta {

namespace {

// An empty file counts as 0, which prints as "0"; nothing for a file that cannot be read.
std::optional<std::int32_t> fileCrc(clsCRC& crc, const std::string& path) {
    try {
        return crc.CalculateFile(path).value_or(0);
    } catch (const RuntimeError&) {
        return std::nullopt;
    }
}

std::string crcValueOf(clsCRC& crc, const std::string& path) {
    const auto value = fileCrc(crc, path);
    return value ? crcHex(*value) : std::string();
}

class EntryFiller {
public:
    EntryFiller(Host& host, clsCRC& crc, const IntegrityInputs& inputs)
        : host_(host), crc_(crc), in_(inputs) {}

    RecordEntries fill() {
        fillProjectFiles();
        fillExtraFiles();
        fillSettingsSets();
        fillMainExecutable();
        fillAssets();
        return entries_;
    }

private:
    std::string below(std::string_view name) const { return inFolder(in_.workingFolder, name); }
    std::string belowSettingsSet(std::string_view name) const {
        return inFolder(below(projectfolder::kSettingsSet), name);
    }
    bool exists(const std::string& path) const { return fileExists(host_, path) == kTrue; }
    void hash(std::size_t entry, const std::string& path) { entries_[entry] = crcValueOf(crc_, path); }
    void hashIfExists(std::size_t entry, const std::string& path) {
        if (exists(path)) hash(entry, path);
    }

    void fillProjectFiles() {
        using namespace projectfile;
        hash(0, below(kUninstallIntro));
        hash(1, below(kFonts));
        hash(2, below(kUninstallEnd));
        hash(3, below(kAppDataLocations));
        hash(5, below(kMainSettings));
        hash(6, below(kFolders));
        hash(7, below(kIntro));
        hash(8, below(kRegistryLocations));
        hash(9, below(kPackages));
        hash(10, below(kFiles));
        hash(11, below(kDependencies));
        hash(12, below(kTips));
        hash(13, below(kUninstallEnd));
    }

    void fillExtraFiles() {
        if (!in_.anyFile.empty()) hash(14, below(in_.anyFile));
        for (std::size_t i = 0; i < kRecordedExecutables; ++i)
            if (!in_.executableNames[i].empty())
                hash(15 + i, inFolder(below(projectfolder::kExecutables), in_.executableNames[i]));
    }

    void fillSettingsSets() {
        for (int i = 0; i < kSettingsSetCount; ++i) {
            const auto slot = static_cast<std::size_t>(i);
            if (!isRecordedSettingsSetType(in_.settingsSetTypes[slot])) continue;
            const auto set = readSettingsSetFile(host_, settingsSetFile(in_.workingFolder, i));
            hash(18 + slot, belowSettingsSet(set ? set->member : std::string()));
        }
    }

    void fillMainExecutable() {
        if (!in_.mainExecutableChecked) return;
        const std::string inFiles = inFolder(below(projectfolder::kFiles), in_.mainExecutable);
        const std::string inVersion =
            inFolder(versionFilesFolder(in_.workingFolder, in_.appVersion), in_.mainExecutable);
        if (exists(inFiles)) {
            hash(23, inFiles);
        } else if (exists(inVersion)) {
            hash(23, inVersion);
        }
    }

    void fillAssets() {
        hashIfExists(24, below(projectfile::kBackground));
        hashIfExists(25, below(projectfile::kPreview));
        hashIfExists(26, below(projectfile::kLogo));
        const std::string data = inFolder(in_.applicationFolder, "data");
        hash(27, inFolder(data, "uninstall"));
        hash(28, inFolder(data, "install"));
        hashIfExists(29, below(projectfile::kLicense));
        for (int i = 0; i < kSettingsSetCount; ++i)
            hashIfExists(31 + static_cast<std::size_t>(i), settingsSetFile(in_.workingFolder, i));
        hashIfExists(36, settingsSetIndexFile(in_.workingFolder));
    }

    Host& host_;
    clsCRC& crc_;
    const IntegrityInputs& in_;
    RecordEntries entries_{};
};

bool isRecordName(const std::string& name) {
    return name != "." && name != ".." && toLowerCase(name).ends_with("hsh");
}

// The records of the folder: every file whose name ends in "hsh" in any case. Pending messages
// run after each entry looked at.
std::vector<std::string> recordsIn(Host& host, const std::string& folder) {
    std::vector<std::string> names;
    for (const auto& entry : host.listDirectory(inFolder(folder, "*"), true)) {
        if (!entry.isFolder() && isRecordName(entry.name)) names.push_back(entry.name);
        host.processPendingMessages();
    }
    return names;
}

// The new record is written whole under its own name before the old ones go, so a save stopped at
// any point leaves at least one record, each of them true to its name.
bool replaceRecord(Host& host, const std::string& folder, const std::string& name, const std::string& text) {
    if (!host.writeFileAtomic(inFolder(folder, name), text)) return false;
    for (const std::string& record : recordsIn(host, folder))
        if (record != name) host.deleteFile(inFolder(folder, record));
    return true;
}

}  // namespace

RecordEntries integrityEntries(Host& host, clsCRC& crc, const IntegrityInputs& inputs) {
    return EntryFiller(host, crc, inputs).fill();
}

std::optional<std::string> writeIntegrityRecord(Host& host, const IntegrityInputs& inputs,
                                                const UnitRandom& random) {
    clsCRC crc(host);
    crc.setAlgorithm(1);
    const auto entries = integrityEntries(host, crc, inputs);
    const std::string text = linesText({entries.begin(), entries.end()});
    const std::string name = recordStem(crc.CalculateString(text)) + recordLetter(random()) +
                             std::string(projectfile::kRecordExtension);
    if (!replaceRecord(host, inputs.workingFolder, name, text)) return std::nullopt;
    return name;
}

}  // namespace orvanta
