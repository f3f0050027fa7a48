#pragma once
// The stat of every entry of one open folder. A walk of a large tree spends most of its time in
// these calls, and they run well in parallel: a folder large enough to repay the hand-over is
// shared between the caller and one worker thread, kept for the next folder.

#include <sys/stat.h>

#include <condition_variable>
#include <cstddef>
#include <mutex>
#include <optional>
#include <string>
#include <thread>
#include <vector>

namespace orvanta {

struct EntryStat {
    struct stat info {};
    bool found = false;
};

class FolderStats {
public:
    FolderStats() = default;
    ~FolderStats();
    FolderStats(const FolderStats&) = delete;
    FolderStats& operator=(const FolderStats&) = delete;

    // fstatat(folder, names[i]) for each name, following links, in the names' order.
    std::vector<EntryStat> statAll(int folder, const std::vector<std::string>& names);

private:
    struct Share {
        int folder;
        const std::vector<std::string>* names;
        std::vector<EntryStat>* results;
        std::size_t begin;
        std::size_t end;
    };
    static void statRange(const Share& share);
    void work();

    std::mutex mutex_;
    std::condition_variable wake_;
    std::condition_variable done_;
    std::optional<Share> job_;  // set by the caller, cleared by the worker when it is done
    bool stopping_ = false;
    std::thread worker_;  // started for the first large folder
};

}  // namespace orvanta
