#include "project/Placeholders.h"

namespace orvanta {

const Placeholder* placeholderOf(ControlName box) {
    for (const auto& placeholder : kPlaceholders)
        if (placeholder.box == box) return &placeholder;
    return nullptr;
}

std::string storedText(const ProjectFields& fields, ControlName box) {
    std::string text = fields.text(box);
    const Placeholder* placeholder = placeholderOf(box);
    if (placeholder != nullptr && text == placeholder->text) text.clear();
    return text;
}

}  // namespace orvanta
