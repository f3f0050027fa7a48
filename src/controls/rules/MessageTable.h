#pragma once
// The messages a subclassed window hands to its owner, before or after the original handling: up
// to MSG_ENTRIES numbers, or every message. A deleted number leaves a hole that a later add fills.

#include <array>
#include <string>

namespace orvanta {

inline constexpr int MSG_ENTRIES = 32;
inline constexpr int ALL_MESSAGES = -1;

class MessageTable {
public:
    enum class Change { Done, Overflow, NotFound };

    // Adding to a table that holds ALL_MESSAGES changes nothing; adding ALL_MESSAGES makes one.
    Change add(int message);
    // Deleting ALL_MESSAGES empties the table.
    Change remove(int message);
    bool contains(int message) const;
    bool empty() const { return slots_[0] == 0; }

private:
    // Slot 0 holds the count of slots in use (holes included) or ALL_MESSAGES; the numbers follow.
    std::array<int, MSG_ENTRIES + 1> slots_{};
};

inline constexpr const char* kMessageTableOverflowText =
    "Message table overflow. Either increase the value of Const MSG_ENTRIES or use ALL_MESSAGES instead of "
    "specific "
    "message values";

// "Message &H1F not found in table"
std::string messageNotFoundText(int message);

}  // namespace orvanta
