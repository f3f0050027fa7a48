#include "builder/command/ReproducibleTimes.h"

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <vector>

#include "platform/AnsiText.h"

namespace orvanta {

namespace fs = std::filesystem;

namespace {

fs::path hostPathOf(const std::string& utf8) {
    return fs::path(std::u8string(utf8.begin(), utf8.end()));
}

std::string shown(const fs::path& path) {
    const std::u8string text = path.u8string();
    return utf8ToAnsi(std::string(text.begin(), text.end()));
}

fs::file_time_type fileTime(std::int64_t seconds) {
    return std::chrono::file_clock::from_sys(std::chrono::sys_seconds(std::chrono::seconds(seconds)));
}

// The entries of a folder in name order, so that the walk is the same on every file system.
std::vector<fs::directory_entry> sortedEntries(const fs::path& folder, std::error_code& error) {
    std::vector<fs::directory_entry> entries;
    for (fs::directory_iterator it(folder, error), end; !error && it != end; it.increment(error))
        entries.push_back(*it);
    std::sort(entries.begin(), entries.end(),
              [](const auto& a, const auto& b) { return a.path().filename() < b.path().filename(); });
    return entries;
}

class Stamper {
public:
    explicit Stamper(std::int64_t seconds) : time_(fileTime(seconds)) {}

    bool stamp(const fs::path& path) {
        std::error_code error;
        fs::last_write_time(path, time_, error);
        if (error) failed_ = "The time of " + shown(path) + " could not be set: " + error.message();
        return !error;
    }

    // Contents first: setting a file's time leaves its folder's alone, but a new name would not.
    bool stampTree(const fs::path& folder) {
        std::error_code error;
        for (const auto& entry : sortedEntries(folder, error)) {
            const bool folderEntry = entry.is_directory(error) && !entry.is_symlink(error);
            if (folderEntry ? !stampTree(entry.path()) : !stamp(entry.path())) return false;
        }
        if (error) {
            failed_ = "The folder " + shown(folder) + " could not be read: " + error.message();
            return false;
        }
        // The C runtime of Windows sets no folder's time; the archive then keeps the folder's own.
        fs::last_write_time(folder, time_, error);
        return true;
    }

    const std::string& failure() const { return failed_; }

private:
    fs::file_time_type time_;
    std::string failed_;
};

}  // namespace

EpochSetting sourceDateEpoch() {
    const char* value = std::getenv("SOURCE_DATE_EPOCH");
    if (!value) return {};
    const std::string text(value);
    if (text.empty() || text.size() > 12 ||
        !std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; }))
        return {std::nullopt, "SOURCE_DATE_EPOCH must be a whole number of seconds, not \"" + text + "\"."};
    return {std::stoll(text), {}};
}

std::optional<std::int64_t> fileTimeSeconds(const std::string& hostPath) {
    std::error_code error;
    const auto time = fs::last_write_time(hostPathOf(hostPath), error);
    if (error) return std::nullopt;
    const auto system = std::chrono::file_clock::to_sys(time);
    return std::chrono::duration_cast<std::chrono::seconds>(system.time_since_epoch()).count();
}

std::string stampArchivedFiles(const std::string& workingFolder, const std::string& filesFolder,
                               std::int64_t seconds) {
    const fs::path working = hostPathOf(workingFolder);
    Stamper stamper(seconds);
    std::error_code error;
    for (const auto& entry : sortedEntries(working, error))
        if (entry.is_regular_file(error) && !stamper.stamp(entry.path())) return stamper.failure();
    if (error) return "The folder " + shown(working) + " could not be read: " + error.message();
    // The setup files lie at the top; these folders go into the archive whole.
    for (const std::string& name :
         {filesFolder, std::string("\\packages"), std::string("\\settingsset"), std::string("\\fonts")}) {
        const fs::path folder = working / hostPathOf(name.substr(1));
        if (fs::is_directory(folder, error) && !stamper.stampTree(folder)) return stamper.failure();
    }
    return {};
}

}  // namespace orvanta
