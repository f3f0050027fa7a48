#include "platform/CaseFolding.h"

#include <array>
#include <utility>

namespace orvanta {

namespace {

// The upper-case letters of Windows-1252 whose lower-case partner is not 0x20 above them.
constexpr std::array<std::pair<unsigned char, unsigned char>, 4> kFarPairs = {
    {{0x8A, 0x9A}, {0x8C, 0x9C}, {0x8E, 0x9E}, {0x9F, 0xFF}}};

constexpr bool isNearUpper(unsigned c) {
    return (c >= 'A' && c <= 'Z') || (c >= 0xC0 && c <= 0xDE && c != 0xD7);
}

constexpr std::array<unsigned char, 256> lowerTable() {
    std::array<unsigned char, 256> table{};
    for (unsigned c = 0; c < 256; ++c) table[c] = static_cast<unsigned char>(isNearUpper(c) ? c + 0x20 : c);
    for (const auto& [upper, lower] : kFarPairs) table[upper] = lower;
    return table;
}

constexpr std::array<unsigned char, 256> upperTable() {
    std::array<unsigned char, 256> table{};
    for (unsigned c = 0; c < 256; ++c) table[c] = static_cast<unsigned char>(c);
    for (unsigned c = 0; c < 256; ++c)
        if (isNearUpper(c)) table[c + 0x20] = static_cast<unsigned char>(c);
    for (const auto& [upper, lower] : kFarPairs) table[lower] = upper;
    return table;
}

constexpr std::array<unsigned char, 256> kLower = lowerTable();
constexpr std::array<unsigned char, 256> kUpper = upperTable();

unsigned char lowerByte(char c) {
    return kLower[static_cast<unsigned char>(c)];
}

}  // namespace

char lowerCase(char c) {
    return static_cast<char>(lowerByte(c));
}

char upperCase(char c) {
    return static_cast<char>(kUpper[static_cast<unsigned char>(c)]);
}

std::string toLowerCase(std::string_view text) {
    std::string result(text);
    for (char& c : result) c = lowerCase(c);
    return result;
}

std::string toUpperCase(std::string_view text) {
    std::string result(text);
    for (char& c : result) c = upperCase(c);
    return result;
}

bool equalsIgnoringCase(std::string_view a, std::string_view b) {
    return a.size() == b.size() && compareIgnoringCase(a, b) == 0;
}

int compareIgnoringCase(std::string_view a, std::string_view b) {
    const std::size_t common = a.size() < b.size() ? a.size() : b.size();
    for (std::size_t i = 0; i < common; ++i) {
        const unsigned char x = lowerByte(a[i]), y = lowerByte(b[i]);
        if (x != y) return x < y ? -1 : 1;
    }
    return a.size() == b.size() ? 0 : (a.size() < b.size() ? -1 : 1);
}

std::size_t findIgnoringCase(std::string_view text, std::string_view part) {
    if (part.size() > text.size()) return std::string_view::npos;
    for (std::size_t at = 0; at + part.size() <= text.size(); ++at)
        if (equalsIgnoringCase(text.substr(at, part.size()), part)) return at;
    return std::string_view::npos;
}

bool containsIgnoringCase(std::string_view text, std::string_view part) {
    return findIgnoringCase(text, part) != std::string_view::npos;
}

bool startsWithIgnoringCase(std::string_view text, std::string_view start) {
    return text.size() >= start.size() && equalsIgnoringCase(text.substr(0, start.size()), start);
}

bool endsWithIgnoringCase(std::string_view text, std::string_view end) {
    return text.size() >= end.size() && equalsIgnoringCase(text.substr(text.size() - end.size()), end);
}

}  // namespace orvanta
