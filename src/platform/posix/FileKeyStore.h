#pragma once
// The registry of a POSIX host: keys and values kept in one file, read at each call and written
// atomically at each change. Key paths and value names compare without case, as in the registry.
// The file carries a header and a checksum; a file that fails either, or does not parse, reads as
// an empty store, and the next write replaces it whole.

#include <cstdint>
#include <map>
#include <optional>
#include <string>

namespace orvanta {

struct StoredValue {
    std::string name;  // as first written
    std::uint32_t type = 0;
    std::string data;
};

struct StoredKey {
    std::string path;                           // as first written: "HKCU\Software\Orvanta"
    std::map<std::string, StoredValue> values;  // by lower-case name
};

class FileKeyStore {
public:
    explicit FileKeyStore(std::string file) : file_(std::move(file)) {}

    bool keyExists(const std::string& path) const;
    // Creates the key and every key above it; true on success.
    bool createKey(const std::string& path);
    std::optional<StoredValue> findValue(const std::string& path, const std::string& name) const;
    // Creates the key when it is missing (a damaged file lost it after it was opened).
    bool setValue(const std::string& path, const std::string& name, std::uint32_t type,
                  const std::string& data);

private:
    using Keys = std::map<std::string, StoredKey>;  // by lower-case path
    Keys load() const;
    bool save(const Keys& keys) const;

    std::string file_;
};

}  // namespace orvanta
