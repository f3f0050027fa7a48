#include "controls/PropertyBag.h"

namespace orvanta {

void PropertyBag::WriteProperty(const std::string& name, PropertyValue value) {
    for (auto& [key, stored] : entries_) {
        if (key != name) continue;
        stored = std::move(value);
        return;
    }
    entries_.emplace_back(name, std::move(value));
}

const PropertyValue* PropertyBag::find(const std::string& name) const {
    for (const auto& [key, stored] : entries_)
        if (key == name) return &stored;
    return nullptr;
}

}  // namespace orvanta
