#pragma once
// The name of the integrity record: the record's own CRC-32 in hexadecimal with its digits turned
// into punctuation, and one random letter after it.

#include <cstdint>
#include <functional>
#include <string>

#include "platform/Host.h"

namespace orvanta {

// A random number in [0, 1). Tests inject their own.
using UnitRandom = std::function<double()>;

// Seeded afresh from the host's timer at each call, so two calls within one tick give the same number.
UnitRandom timerSeededRandom(Host& host);

// n = int(random * 14) + 1: "D" for n up to 3, "A" for 4 to 6, "F" for 7 to 10, "C" above.
char recordLetter(double unitRandom);

// crcHex of the value with "0".."9" replaced by "_ , # ( & ) $ ! - +"; the letters stay.
std::string recordStem(std::int32_t crc);

}  // namespace orvanta
