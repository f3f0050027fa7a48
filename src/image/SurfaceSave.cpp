#include <cstring>

#include "image/c32bppDIB.h"
#include "image/cPNGwriter.h"

namespace orvanta {

namespace {

void putLe16(std::vector<std::uint8_t>& out, std::size_t at, std::uint32_t value) {
    out[at] = static_cast<std::uint8_t>(value);
    out[at + 1] = static_cast<std::uint8_t>(value >> 8);
}

void putLe32(std::vector<std::uint8_t>& out, std::size_t at, std::uint32_t value) {
    putLe16(out, at, value & 0xFFFF);
    putLe16(out, at + 2, value >> 16);
}

constexpr std::size_t kBitmapHeaderSize = 54;

}  // namespace

// A bitmap file: 32 bits holding the premultiplied pixels as they stand when the picture has alpha,
// else 24 bits with rows padded to 4 bytes.
bool c32bppDIB::SaveToStream(std::vector<std::uint8_t>& receiver) const {
    receiver.clear();
    std::vector<std::uint8_t> pixels;
    if (pixels_.empty()) return false;
    if (alpha_)
        pixels = pixels_;
    else if (!GetDIBbits(pixels, false, true, true, true))
        return false;
    const std::size_t fileSize = kBitmapHeaderSize + pixels.size();
    if (fileSize > 0xFFFFFFFFu) return false;
    receiver.assign(kBitmapHeaderSize, 0);
    receiver[0] = 'B';
    receiver[1] = 'M';
    putLe32(receiver, 2, static_cast<std::uint32_t>(fileSize));
    putLe32(receiver, 10, kBitmapHeaderSize);
    putLe32(receiver, 14, 40);
    putLe32(receiver, 18, static_cast<std::uint32_t>(width_));
    putLe32(receiver, 22, static_cast<std::uint32_t>(height_));
    putLe16(receiver, 26, 1);
    putLe16(receiver, 28, alpha_ ? 32 : 24);
    putLe32(receiver, 34, static_cast<std::uint32_t>(pixels.size()));
    receiver.insert(receiver.end(), pixels.begin(), pixels.end());
    return true;
}

// The host's codec only decodes, so the writer is the one way to PNG bytes here: the owner's writer
// when one is set, else a fresh one.
bool c32bppDIB::SaveToStream_PNG(std::vector<std::uint8_t>& receiver) {
    receiver.clear();
    if (pixels_.empty()) return false;
    // The host's codec writes no PNG here, so the owner's writer, or a fresh one, is the only engine.
    if (pngWriter_ != nullptr) return pngWriter_->SaveToStream(*this, receiver) && !receiver.empty();
    cPNGwriter writer;
    return writer.SaveToStream(*this, receiver) && !receiver.empty();
}

}  // namespace orvanta
