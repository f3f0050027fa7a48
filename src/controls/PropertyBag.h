#pragma once
// The keyed store a control writes its settings to and reads them back from, and which keeps the
// order of both, as a form file would show it.

#include <string>
#include <utility>
#include <vector>

namespace orvanta {

class PropertyBag {
public:
    void WriteProperty(const std::string& name, int value);
    // The stored value, or `defaultValue` for a name never written.
    int ReadProperty(const std::string& name, int defaultValue);

    const std::vector<std::pair<std::string, int>>& written() const { return entries_; }
    const std::vector<std::string>& readOrder() const { return reads_; }

private:
    std::vector<std::pair<std::string, int>> entries_;
    std::vector<std::string> reads_;
};

}  // namespace orvanta
