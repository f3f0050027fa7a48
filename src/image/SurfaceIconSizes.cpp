#include "image/c32bppDIB.h"
#include "image/cICOparser.h"

namespace orvanta {

namespace {

bool isIconType(std::int32_t type) {
    return type == kImageIcon || type == kImageCursor || type == kImageIcon32 || type == kImagePngInIcon ||
           type == kImageCursor32;
}

// Colour counts as the icon listing shows them; the marks above 8 bits name the colour kind.
std::int32_t colourCountFor(std::int32_t bitDepth) {
    switch (bitDepth) {
        case 1:
            return 2;
        case 2:
            return 4;
        case 4:
            return 16;
        case 8:
            return 256;
        default:
            break;
    }
    if (bitDepth < 24) return 0xFFFF00;
    if (bitDepth == 24) return static_cast<std::int32_t>(0xFF000000u);
    return -1;
}

}  // namespace

std::vector<IconSizeRow> c32bppDIB::SourceIconSizes() const {
    std::vector<IconSizeRow> rows;
    if (pixels_.empty() || !isIconType(imageType_)) return rows;
    if (originalBytes_.empty()) {
        rows.push_back({width_, height_, 32, -1});
        return rows;
    }
    cICOparser parser;
    if (!parser.ReadDirectory(originalBytes_)) return rows;
    for (std::int32_t i = 0; i < parser.IconCount(); ++i)
        rows.push_back(
            {parser.Width(i), parser.Height(i), parser.bitDepth(i), colourCountFor(parser.bitDepth(i))});
    return rows;
}

}  // namespace orvanta
