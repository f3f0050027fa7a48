#include "image/IconSelection.h"

#include <cstdlib>
#include <limits>
#include <optional>

namespace orvanta {

namespace {

constexpr std::int64_t kTooDeep = -10000;
constexpr std::int64_t kScoreCeiling = 10000;

// Being smaller than wanted counts double, and negative.
std::int64_t sizeScore(std::int32_t entrySize, std::int32_t wanted) {
    const std::int64_t difference = std::int64_t{entrySize} - wanted;
    return wanted > entrySize ? difference * 2 : difference;
}

std::int64_t score(const IconEntry& entry, std::int32_t iconCx, std::int32_t iconCy,
                   std::int32_t iconBitDepth) {
    if (entry.bitDepth > 32) return kTooDeep;
    return sizeScore(entry.width, iconCx) + sizeScore(entry.height, iconCy) +
           std::abs(std::int64_t{entry.bitDepth} - iconBitDepth);
}

std::optional<std::size_t> firstPass(const std::vector<IconEntry>& entries, std::int32_t iconCx,
                                     std::int32_t iconCy, std::int32_t iconBitDepth) {
    std::optional<std::size_t> best;
    std::int64_t bestScore = kScoreCeiling;
    for (std::size_t i = 0; i < entries.size(); ++i) {
        if (entries[i].bitDepth == 0) continue;
        const std::int64_t value = score(entries[i], iconCx, iconCy, iconBitDepth);
        if (value == 0) return i;
        if (value > 0 && value < bestScore) {
            best = i;
            bestScore = value;
        }
    }
    return best;
}

// No entry was at least as large as wanted: the nearest wins, leaning towards 32 bits, and among
// equals the one nearest the end of the directory.
std::optional<std::size_t> secondPass(const std::vector<IconEntry>& entries, std::int32_t iconCx,
                                      std::int32_t iconCy, std::int32_t iconBitDepth) {
    std::optional<std::size_t> best;
    std::int64_t bestScore = std::numeric_limits<std::int64_t>::max();
    for (std::size_t i = entries.size(); i-- > 0;) {
        if (entries[i].bitDepth == 0) continue;
        const std::int64_t value = std::abs(score(entries[i], iconCx, iconCy, iconBitDepth)) +
                                   std::abs(32 - std::int64_t{entries[i].bitDepth});
        if (value < bestScore) {
            best = i;
            bestScore = value;
        }
    }
    return best;
}

}  // namespace

std::size_t selectIconEntry(const std::vector<IconEntry>& entries, std::int32_t iconCx, std::int32_t iconCy,
                            std::int32_t iconBitDepth) {
    if (entries.size() == 1) return 0;
    if (auto best = firstPass(entries, iconCx, iconCy, iconBitDepth)) return *best;
    return secondPass(entries, iconCx, iconCy, iconBitDepth).value_or(0);
}

}  // namespace orvanta
