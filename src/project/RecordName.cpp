#include "project/RecordName.h"

#include <random>

#include "core/clsCRC.h"

namespace orvanta {

UnitRandom timerSeededRandom(Host& host) {
    return [&host] {
        std::minstd_rand generator(static_cast<std::minstd_rand::result_type>(host.tickMilliseconds()));
        return std::generate_canonical<double, 32>(generator);
    };
}

char recordLetter(double unitRandom) {
    const int n = static_cast<int>(unitRandom * 14) + 1;
    if (n <= 3) return 'D';
    if (n <= 6) return 'A';
    if (n <= 10) return 'F';
    return 'C';
}

std::string recordStem(std::int32_t crc) {
    static constexpr char kDigitMarks[] = "_,#(&)$!-+";
    std::string stem = crcHex(crc);
    for (char& c : stem)
        if (c >= '0' && c <= '9') c = kDigitMarks[c - '0'];
    return stem;
}

}  // namespace orvanta
