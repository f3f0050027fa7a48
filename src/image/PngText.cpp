#include <algorithm>
#include <array>

#include "image/cPNGwriter.h"
#include "platform/CaseFolding.h"

namespace orvanta {

namespace {

struct Keyword {
    const char* word;
    std::int32_t bit;
};

// "Source'" keeps its quote: a caller's "Source" is not this keyword.
constexpr std::array<Keyword, 10> kKeywords = {{{"Title", 1},
                                                {"Author", 2},
                                                {"Description", 4},
                                                {"Copyright", 8},
                                                {"Creation Time", 16},
                                                {"Software", 32},
                                                {"Disclaimer", 64},
                                                {"Warning", 128},
                                                {"Source'", 256},
                                                {"Comment", 512}}};

}  // namespace

std::int32_t cPNGwriter::keywordBit(const std::string& keyword) {
    for (const Keyword& k : kKeywords)
        if (equalsIgnoringCase(keyword, k.word)) return k.bit;
    return -1;
}

std::string preparePngKeyword(const std::string& keyword) {
    std::string word = keyword.substr(0, 79);
    std::replace(word.begin(), word.end(), '\xA0', ' ');
    const auto first = word.find_first_not_of(' ');
    if (first == std::string::npos) return {};
    word = word.substr(first, word.find_last_not_of(' ') - first + 1);
    for (auto at = word.find("  "); at != std::string::npos; at = word.find("  ")) word.erase(at, 1);
    for (const char c : word) {
        const auto code = static_cast<unsigned char>(c);
        if (code < 32 || (code >= 127 && code <= 160)) return {};
    }
    return word;
}

std::string preparePngText(const std::string& text) {
    std::string out;
    const std::string cut = text.substr(0, 32700);
    for (std::size_t i = 0; i < cut.size(); ++i) {
        if (cut[i] == '\r') {
            out.push_back('\n');
            if (i + 1 < cut.size() && cut[i + 1] == '\n') ++i;
            continue;
        }
        const auto code = static_cast<unsigned char>(cut[i]);
        if (code < 32 && code != '\t' && code != '\n') return {};
        out.push_back(cut[i]);
    }
    return out;
}

bool cPNGwriter::AddText(const std::string& keyword, const std::string& text, bool beforeData) {
    const std::string word = preparePngKeyword(keyword);
    if (word.empty()) return false;
    texts_.push_back({word, preparePngText(text), beforeData});
    return true;
}

}  // namespace orvanta
