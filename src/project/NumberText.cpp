#include "project/NumberText.h"

#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>

namespace orvanta {

namespace {

bool isBlank(char c) {
    return c == ' ' || c == '\t';
}

std::string_view trimBlanks(std::string_view text) {
    while (!text.empty() && isBlank(text.front())) text.remove_prefix(1);
    while (!text.empty() && isBlank(text.back())) text.remove_suffix(1);
    return text;
}

bool startsLikeANumber(std::string_view text) {
    return !text.empty() && ((text.front() >= '0' && text.front() <= '9') || text.front() == '.');
}

std::optional<int> toSmallInteger(std::optional<double> value) {
    if (!value) return std::nullopt;
    if (*value < std::numeric_limits<std::int16_t>::min() ||
        *value > std::numeric_limits<std::int16_t>::max())
        return std::nullopt;
    return static_cast<int>(*value);
}

}  // namespace

std::string numberLine(int value) {
    const std::string digits = std::to_string(value);
    return value < 0 ? digits + " " : " " + digits + " ";
}

std::optional<double> parseNumber(std::string_view text) {
    text = trimBlanks(text);
    bool negative = false;
    if (!text.empty() && (text.front() == '+' || text.front() == '-')) {
        negative = text.front() == '-';
        text.remove_prefix(1);
    }
    // from_chars would also take "inf" and "nan", which no number line holds.
    if (!startsLikeANumber(text)) return std::nullopt;
    double value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size() || !std::isfinite(value))
        return std::nullopt;
    return negative ? -value : value;
}

std::optional<int> integerPartOf(std::string_view text) {
    const auto value = parseNumber(text);
    return toSmallInteger(value ? std::optional<double>(std::floor(*value)) : std::nullopt);
}

std::optional<int> convertedNumber(std::string_view text) {
    const auto value = parseNumber(text);
    return toSmallInteger(value ? std::optional<double>(std::nearbyint(*value)) : std::nullopt);
}

std::optional<int> parseFlag(std::string_view text) {
    return convertedNumber(text);
}

}  // namespace orvanta
