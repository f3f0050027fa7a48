#pragma once
// The keyed store a control writes its settings to and reads them back from, and which keeps the
// order of both, as a form file would show it. A value read back with another type than it was
// written with counts as absent.

#include <cstdint>
#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace orvanta {

using PropertyValue = std::variant<int, bool, float, std::vector<std::uint8_t>>;

class PropertyBag {
public:
    void WriteProperty(const std::string& name, PropertyValue value);
    // The stored value, or `defaultValue` for a name never written.
    int ReadProperty(const std::string& name, int defaultValue) { return read(name, defaultValue); }
    bool ReadProperty(const std::string& name, bool defaultValue) { return read(name, defaultValue); }
    float ReadProperty(const std::string& name, float defaultValue) { return read(name, defaultValue); }
    std::vector<std::uint8_t> ReadProperty(const std::string& name,
                                           const std::vector<std::uint8_t>& defaultValue) {
        return read(name, defaultValue);
    }

    const std::vector<std::pair<std::string, PropertyValue>>& written() const { return entries_; }
    const std::vector<std::string>& readOrder() const { return reads_; }
    bool contains(const std::string& name) const { return find(name) != nullptr; }

private:
    const PropertyValue* find(const std::string& name) const;

    template <typename T>
    T read(const std::string& name, const T& defaultValue) {
        reads_.push_back(name);
        const PropertyValue* value = find(name);
        const T* typed = value != nullptr ? std::get_if<T>(value) : nullptr;
        return typed != nullptr ? *typed : defaultValue;
    }

    std::vector<std::pair<std::string, PropertyValue>> entries_;
    std::vector<std::string> reads_;
};

}  // namespace orvanta
