#include "controls/rules/MessageTable.h"

#include <cstdint>
#include <cstdio>

namespace orvanta {

MessageTable::Change MessageTable::add(int message) {
    // 0 marks a hole, so it cannot be a message of its own.
    if (message == 0 || slots_[0] == ALL_MESSAGES) return Change::Done;
    if (message == ALL_MESSAGES) {
        slots_[0] = ALL_MESSAGES;
        return Change::Done;
    }
    for (int i = 1; i <= slots_[0]; ++i) {
        const auto slot = static_cast<std::size_t>(i);
        if (slots_[slot] == message) return Change::Done;
        if (slots_[slot] == 0) {
            slots_[slot] = message;
            return Change::Done;
        }
    }
    if (slots_[0] == MSG_ENTRIES) return Change::Overflow;
    slots_[static_cast<std::size_t>(++slots_[0])] = message;
    return Change::Done;
}

MessageTable::Change MessageTable::remove(int message) {
    if (message == ALL_MESSAGES) {
        slots_.fill(0);
        return Change::Done;
    }
    if (slots_[0] == ALL_MESSAGES) return Change::Done;
    for (int i = 1; i <= slots_[0]; ++i) {
        const auto slot = static_cast<std::size_t>(i);
        if (slots_[slot] == message && message != 0) {
            slots_[slot] = 0;
            return Change::Done;
        }
    }
    return Change::NotFound;
}

bool MessageTable::contains(int message) const {
    if (slots_[0] == ALL_MESSAGES) return true;
    for (int i = 1; i <= slots_[0]; ++i)
        if (slots_[static_cast<std::size_t>(i)] == message) return message != 0;
    return false;
}

std::string messageNotFoundText(int message) {
    char hex[16];
    std::snprintf(hex, sizeof hex, "%X", static_cast<std::uint32_t>(message));
    return std::string("Message &H") + hex + " not found in table";
}

}  // namespace orvanta
