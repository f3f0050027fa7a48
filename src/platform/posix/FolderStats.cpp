#include "platform/posix/FolderStats.h"

namespace orvanta {

namespace {

// Below this many entries the hand-over to the worker costs more than the calls it takes.
constexpr std::size_t kSharedFrom = 32;

}  // namespace

FolderStats::~FolderStats() {
    if (!worker_.joinable()) return;
    {
        std::lock_guard lock(mutex_);
        stopping_ = true;
    }
    wake_.notify_one();
    worker_.join();
}

void FolderStats::statRange(const Share& share) {
    for (std::size_t index = share.begin; index < share.end; ++index) {
        EntryStat& result = (*share.results)[index];
        result.found = ::fstatat(share.folder, (*share.names)[index].c_str(), &result.info, 0) == 0;
    }
}

std::vector<EntryStat> FolderStats::statAll(int folder, const std::vector<std::string>& names) {
    std::vector<EntryStat> results(names.size());
    if (names.size() < kSharedFrom) {
        statRange({folder, &names, &results, 0, names.size()});
        return results;
    }
    if (!worker_.joinable()) worker_ = std::thread([this] { work(); });
    const std::size_t half = names.size() / 2;
    {
        std::lock_guard lock(mutex_);
        job_ = Share{folder, &names, &results, half, names.size()};
    }
    wake_.notify_one();
    statRange({folder, &names, &results, 0, half});
    std::unique_lock lock(mutex_);
    done_.wait(lock, [this] { return !job_.has_value(); });
    return results;
}

void FolderStats::work() {
    std::unique_lock lock(mutex_);
    for (;;) {
        wake_.wait(lock, [this] { return stopping_ || job_.has_value(); });
        if (stopping_) return;
        const Share share = *job_;
        lock.unlock();
        statRange(share);
        lock.lock();
        job_.reset();
        done_.notify_one();
    }
}

}  // namespace orvanta
