#include "project/IntegrityRecord.h"

#include <exception>

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
    } catch (const std::exception&) {
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
            const auto member = readSettingsSetMember(host_, settingsSetFile(in_.workingFolder, i));
            hash(18 + slot, belowSettingsSet(member.value_or("")));
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

bool isDotEntry(const std::string& name) {
    return name == "." || name == "..";
}

}  // namespace

void deleteIntegrityRecords(Host& host, const std::string& workingFolder) {
    for (const auto& entry : host.listDirectory(inFolder(workingFolder, "*"), true)) {
        if (!isDotEntry(entry.name) && toLowerCase(entry.name).ends_with("hsh"))
            host.deleteFile(inFolder(workingFolder, entry.name));
        host.processPendingMessages();
    }
}

RecordEntries integrityEntries(Host& host, clsCRC& crc, const IntegrityInputs& inputs) {
    return EntryFiller(host, crc, inputs).fill();
}

std::optional<std::string> writeIntegrityRecord(Host& host, const IntegrityInputs& inputs,
                                                const UnitRandom& random) {
    clsCRC crc(host);
    crc.setAlgorithm(1);
    deleteIntegrityRecords(host, inputs.workingFolder);
    const auto entries = integrityEntries(host, crc, inputs);
    const std::string draft = inFolder(inputs.workingFolder, projectfile::kRecordDraft);
    if (!host.writeFileAtomic(draft, linesText({entries.begin(), entries.end()}))) return std::nullopt;
    const auto sealed = fileCrc(crc, draft);
    if (!sealed) return std::nullopt;
    const std::string name =
        recordStem(*sealed) + recordLetter(random()) + std::string(projectfile::kRecordExtension);
    if (!host.renameFile(draft, inFolder(inputs.workingFolder, name))) return std::nullopt;
    return name;
}

}  // namespace orvanta
