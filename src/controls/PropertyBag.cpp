#include "controls/PropertyBag.h"

#include <algorithm>

namespace orvanta {

void PropertyBag::WriteProperty(const std::string& name, int value) {
    const auto found = std::find_if(entries_.begin(), entries_.end(),
                                    [&](const auto& entry) { return entry.first == name; });
    if (found != entries_.end())
        found->second = value;
    else
        entries_.emplace_back(name, value);
}

int PropertyBag::ReadProperty(const std::string& name, int defaultValue) {
    reads_.push_back(name);
    for (const auto& [key, value] : entries_)
        if (key == name) return value;
    return defaultValue;
}

}  // namespace orvanta
