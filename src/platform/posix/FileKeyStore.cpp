#include "platform/posix/FileKeyStore.h"

#include <fstream>
#include <sstream>

#include "platform/CaseFolding.h"
#include "platform/WindowsPath.h"
#include "platform/posix/AtomicFile.h"

namespace orvanta {

namespace {

constexpr const char* kHeader = "ORVANTA-KEYSTORE 1";

// Hex keeps names and data of any bytes on one line; the "=" makes an empty field visible.
std::string toHex(const std::string& bytes) {
    static const char* digits = "0123456789abcdef";
    std::string hex = "=";
    hex.reserve(bytes.size() * 2 + 1);
    for (char byte : bytes) {
        const auto c = static_cast<unsigned char>(byte);
        hex += digits[c >> 4];
        hex += digits[c & 15];
    }
    return hex;
}

int hexDigit(char c) {
    if (c >= '0' && c <= '9') return c - '0';
    if (c >= 'a' && c <= 'f') return c - 'a' + 10;
    return -1;
}

bool fromHex(const std::string& hex, std::string& bytes) {
    if (hex.empty() || hex[0] != '=' || hex.size() % 2 != 1) return false;
    bytes.clear();
    for (std::size_t i = 1; i < hex.size(); i += 2) {
        const int high = hexDigit(hex[i]), low = hexDigit(hex[i + 1]);
        if (high < 0 || low < 0) return false;
        bytes += static_cast<char>(high * 16 + low);
    }
    return true;
}

bool parseType(const std::string& text, std::uint32_t& type) {
    if (text.empty() || text.size() > 10 || text.find_first_not_of("0123456789") != std::string::npos)
        return false;
    const unsigned long long value = std::stoull(text);
    type = static_cast<std::uint32_t>(value);
    return value <= 0xFFFFFFFFull;
}

// FNV-1a over the body: enough to notice a torn or hand-edited file.
std::uint64_t checksum(const std::string& text) {
    std::uint64_t hash = 1469598103934665603ull;
    for (char c : text) hash = (hash ^ static_cast<unsigned char>(c)) * 1099511628211ull;
    return hash;
}

std::string normalizeKey(const std::string& path) {
    std::string joined;
    for (const auto& part : pathComponents(path)) joined += (joined.empty() ? "" : "\\") + part;
    return joined;
}

bool parseLine(const std::string& line, std::map<std::string, StoredKey>& keys, StoredKey*& current) {
    std::istringstream fields(line);
    std::string kind, first, second, third, extra;
    fields >> kind >> first >> second >> third >> extra;
    if (!extra.empty()) return false;
    if (kind == "K" && second.empty()) {
        std::string path;
        if (!fromHex(first, path) || path.empty()) return false;
        current = &keys[toLowerCase(path)];
        current->path = path;
        return true;
    }
    StoredValue value;
    if (kind != "V" || current == nullptr || !fromHex(first, value.name) || !parseType(second, value.type) ||
        !fromHex(third, value.data))
        return false;
    current->values[toLowerCase(value.name)] = value;
    return true;
}

bool parseBody(const std::string& body, std::map<std::string, StoredKey>& keys) {
    std::istringstream in(body);
    std::string line;
    StoredKey* current = nullptr;
    while (std::getline(in, line))
        if (!parseLine(line, keys, current)) return false;
    return true;
}

}  // namespace

FileKeyStore::Keys FileKeyStore::load() const {
    std::ifstream in(file_, std::ios::binary);
    std::string header, sum;
    if (!std::getline(in, header) || header != kHeader || !std::getline(in, sum)) return {};
    std::ostringstream rest;
    rest << in.rdbuf();
    const std::string body = rest.str();
    Keys keys;
    if (sum != std::to_string(checksum(body)) || !parseBody(body, keys)) return {};
    return keys;
}

bool FileKeyStore::save(const Keys& keys) const {
    std::string body;
    for (const auto& [lower, key] : keys) {
        body += "K " + toHex(key.path) + "\n";
        for (const auto& [name, value] : key.values)
            body +=
                "V " + toHex(value.name) + " " + std::to_string(value.type) + " " + toHex(value.data) + "\n";
    }
    const std::string contents = std::string(kHeader) + "\n" + std::to_string(checksum(body)) + "\n" + body;
    return replaceFileAtomically(file_, contents, 0600);
}

bool FileKeyStore::keyExists(const std::string& path) const {
    return load().count(toLowerCase(normalizeKey(path))) != 0;
}

bool FileKeyStore::createKey(const std::string& path) {
    auto keys = load();
    std::string partial;
    bool changed = false;
    for (const auto& part : pathComponents(path)) {
        partial += (partial.empty() ? "" : "\\") + part;
        auto [entry, inserted] = keys.try_emplace(toLowerCase(partial));
        if (inserted) entry->second.path = partial;
        changed |= inserted;
    }
    return !changed || save(keys);
}

std::optional<StoredValue> FileKeyStore::findValue(const std::string& path, const std::string& name) const {
    const auto keys = load();
    const auto key = keys.find(toLowerCase(normalizeKey(path)));
    if (key == keys.end()) return std::nullopt;
    const auto value = key->second.values.find(toLowerCase(name));
    if (value == key->second.values.end()) return std::nullopt;
    return value->second;
}

bool FileKeyStore::setValue(const std::string& path, const std::string& name, std::uint32_t type,
                            const std::string& data) {
    if (!createKey(path)) return false;
    auto keys = load();
    const auto key = keys.find(toLowerCase(normalizeKey(path)));
    if (key == keys.end()) return false;
    auto [value, inserted] = key->second.values.try_emplace(toLowerCase(name));
    if (inserted) value->second.name = name;
    value->second.type = type;
    value->second.data = data;
    return save(keys);
}

}  // namespace orvanta
