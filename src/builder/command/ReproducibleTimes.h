#pragma once
// What makes two builds of one project give the same bytes: every file the archiver takes gets
// one fixed time, and the folders are walked in name order.

#include <cstdint>
#include <optional>
#include <string>

namespace orvanta {

// SOURCE_DATE_EPOCH as seconds since 1970; nothing when it is unset. A value that is not a whole
// non-negative number is refused with an error text.
struct EpochSetting {
    std::optional<std::int64_t> seconds;
    std::string error;
};
EpochSetting sourceDateEpoch();

// The time of a file in seconds since 1970, by host path; nothing when it cannot be read.
std::optional<std::int64_t> fileTimeSeconds(const std::string& hostPath);

// Gives `seconds` to the files at the top of the working folder and to everything below the
// folders the archive takes whole (their own time too, after their contents, where the host lets
// a folder's time be set). Host paths.
// An error text naming the file that could not be touched; empty on success.
std::string stampArchivedFiles(const std::string& workingFolder, const std::string& filesFolder,
                               std::int64_t seconds);

}  // namespace orvanta
