#include <algorithm>

#include "image/ZlibLibrary.h"
#include "image/c32bppDIB.h"
#include "image/cBMPparser.h"
#include "image/cGIFparser.h"
#include "image/cICOparser.h"
#include "image/cPNGparser.h"
#include "platform/SystemImageCodec.h"

namespace orvanta {

namespace {

// Anything this short is no picture the engine reads; no parser sees it.
constexpr std::size_t kShortestRun = 57;

// A damaged PNG ends the load: once the signature matched no other reader is asked.
bool isPng(std::span<const std::uint8_t> bytes, c32bppDIB& surface, std::string& error) {
    cPNGparser parser;
    const bool png = parser.LoadStream(bytes, surface);
    error = parser.Failure();
    return png;
}

// JPEG and what else the host's codec reads; its pixels come straight and go through the alpha check.
bool loadWithSystemCodec(std::span<const std::uint8_t> bytes, c32bppDIB& surface) {
    const std::unique_ptr<SystemImageCodec> codec = createSystemImageCodec();
    SystemImage image;
    if (!codec || !codec->decode(bytes, image)) return false;
    const std::size_t size =
        static_cast<std::size_t>(image.width) * static_cast<std::size_t>(image.height) * 4;
    if (image.pixels.size() != size || !surface.InitializeDIB(image.width, image.height)) return false;
    std::copy(image.pixels.begin(), image.pixels.end(), surface.BitsPointer());
    std::int32_t type = kImageBitmap;
    surface.setAlpha(validateAlpha({surface.BitsPointer(), size}, true, type));
    surface.setImageType(type);
    return true;
}

}  // namespace

bool c32bppDIB::LoadPicture_File(Host& host, const std::string& fileName, std::int32_t iconCx,
                                 std::int32_t iconCy, bool saveFormat, std::int32_t iconBitDepth) {
    DestroyDIB();
    loadError_.clear();
    const std::optional<std::uint64_t> length = host.fileLength(fileName);
    if (!length || *length < kShortestRun || *length > 0x7FFFFFFF) return false;
    const std::unique_ptr<FileReader> reader = host.openForReading(fileName);
    if (!reader) return false;
    std::vector<std::uint8_t> bytes(static_cast<std::size_t>(*length));
    std::size_t filled = 0;
    while (filled < bytes.size()) {
        const std::size_t got = reader->read(bytes.data() + filled, bytes.size() - filled);
        if (got == 0) break;
        filled += got;
    }
    if (reader->failed() || filled != bytes.size()) return false;
    return loadBytes(bytes, iconCx, iconCy, saveFormat, iconBitDepth);
}

bool c32bppDIB::LoadPicture_Stream(std::span<const std::uint8_t> inStream, std::int32_t iconCx,
                                   std::int32_t iconCy, std::int64_t streamStart, std::int64_t streamLength,
                                   bool saveFormat, std::int32_t iconBitDepth) {
    DestroyDIB();
    loadError_.clear();
    const auto size = static_cast<std::int64_t>(inStream.size());
    const std::int64_t start = std::max<std::int64_t>(streamStart, 0);
    if (start >= size) return false;
    const std::int64_t length =
        (streamLength <= 0 || streamLength > size - start) ? size - start : streamLength;
    return loadBytes(inStream.subspan(static_cast<std::size_t>(start), static_cast<std::size_t>(length)),
                     iconCx, iconCy, saveFormat, iconBitDepth);
}

bool c32bppDIB::LoadPicture_FromOrignalFormat(std::int32_t iconCx, std::int32_t iconCy,
                                              std::int32_t iconBitDepth) {
    if (originalBytes_.empty()) return false;
    const std::vector<std::uint8_t> copy = originalBytes_;
    return LoadPicture_Stream(copy, iconCx, iconCy, 0, 0, true, iconBitDepth);
}

bool c32bppDIB::isZlibEnabled() const {
    return ZlibLibrary::available();
}

bool c32bppDIB::GetOrginalFormat(std::vector<std::uint8_t>& receiver) const {
    receiver = originalBytes_;
    return !originalBytes_.empty();
}

// The readers in their order: PNG, GIF, icon and cursor, bitmap, then the host's codec. Each
// declines at once what is not its format.
bool c32bppDIB::loadBytes(std::span<const std::uint8_t> bytes, std::int32_t iconCx, std::int32_t iconCy,
                          bool saveFormat, std::int32_t iconBitDepth) {
    DestroyDIB();
    if (bytes.size() < kShortestRun) return false;
    iconCx = std::max(iconCx, 0);
    iconCy = std::max(iconCy, 0);
    if (iconBitDepth < 0 || iconBitDepth > 32) iconBitDepth = 32;
    if (isPng(bytes, *this, loadError_)) {
        if (Handle() == 0) return false;
        if (saveFormat) originalBytes_.assign(bytes.begin(), bytes.end());
        return true;
    }
    bool loaded = cGIFparser().LoadStream(bytes, *this) ||
                  cICOparser().LoadStream(bytes, iconCx, iconCy, *this, iconBitDepth) ||
                  cBMPparser().LoadStream(bytes, *this);
    bool fromSystemCodec = false;
    if (!loaded && Handle() == 0 && isGDIplusEnabled())
        loaded = fromSystemCodec = loadWithSystemCodec(bytes, *this);
    if (!loaded || Handle() == 0) {
        DestroyDIB();
        return false;
    }
    if (saveFormat) {
        // A picture of the host's codec is kept as PNG bytes, not as the file's own.
        std::vector<std::uint8_t> png;
        if (!fromSystemCodec)
            originalBytes_.assign(bytes.begin(), bytes.end());
        else if (SaveToStream_PNG(png))
            originalBytes_ = std::move(png);
    }
    return true;
}

}  // namespace orvanta
