#pragma once
// The one picture type of the system: Width x Height pixels of 32 bits, rows bottom-up, bytes in
// the order blue, green, red, alpha, colours premultiplied (each at most its alpha, and a pixel of
// alpha 0 is four zero bytes). Every format comes in through a parser, every drawing goes out
// through Render, every saved picture through SaveToStream or SaveToStream_PNG.

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include "image/ImageRegion.h"
#include "platform/Host.h"

namespace orvanta {

class cPNGwriter;

// Kinds of source, the values of ImageType.
inline constexpr std::int32_t kImageNone = -1;
inline constexpr std::int32_t kImageBuilt = 0;
inline constexpr std::int32_t kImageBitmap = 1;  // bitmap or JPEG, no alpha
inline constexpr std::int32_t kImageMetafile = 2;
inline constexpr std::int32_t kImageIcon = 3;  // with colour table or 24 bits
inline constexpr std::int32_t kImageEnhancedMetafile = 4;
inline constexpr std::int32_t kImageCursor = 5;  // with colour table or 24 bits
inline constexpr std::int32_t kImageAlphaStraight = 6;
inline constexpr std::int32_t kImageAlphaPremultiplied = 7;
inline constexpr std::int32_t kImageIcon32 = 8;
inline constexpr std::int32_t kImageGif = 9;
inline constexpr std::int32_t kImagePng = 10;
inline constexpr std::int32_t kImagePngInIcon = 11;
inline constexpr std::int32_t kImageCursor32 = 12;
inline constexpr std::int32_t kImageCheckerBoard = 64;

// Capability flags.
inline constexpr std::uint32_t kCanAlphaBlendFriendly = 1;
inline constexpr std::uint32_t kSystemCodecInUse =
    2;  // the slot of GDI+: GDI+ on Windows, libjpeg-turbo here
inline constexpr std::uint32_t kCanAlphaBlend = 8;
inline constexpr std::uint32_t kOlderConsumerSystem = 16;
inline constexpr std::uint32_t kTooOldForSystemCodec = 32;

// A drawing target that is not a surface: it reads and writes a pixel area. Pixels cross it in
// the surface's layout (BGRA, rows bottom-up, width * 4 bytes a row); alpha read is 255, alpha
// written is ignored.
class DrawingContext {
public:
    virtual ~DrawingContext() = default;
    virtual std::int32_t contextWidth() const = 0;
    virtual std::int32_t contextHeight() const = 0;
    virtual bool readArea(std::int32_t x, std::int32_t y, std::int32_t width, std::int32_t height,
                          std::vector<std::uint8_t>& pixels) = 0;
    virtual bool writeArea(std::int32_t x, std::int32_t y, std::int32_t width, std::int32_t height,
                           const std::vector<std::uint8_t>& pixels) = 0;
};

struct IconSizeRow {
    std::int32_t width = 0;
    std::int32_t height = 0;
    std::int32_t bitDepth = 0;
    std::int32_t colorCount = 0;
};

class c32bppDIB {
public:
    // The capability flags follow from the system's version words (NT family).
    explicit c32bppDIB(VersionWords system = {6, 1});
    ~c32bppDIB();
    c32bppDIB(const c32bppDIB&) = delete;
    c32bppDIB& operator=(const c32bppDIB&) = delete;

    // ---- Loading: true if an image now stands in the surface.
    // The PNG reader's words for the last load of a damaged PNG; empty after any other load.
    const std::string& LoadError() const { return loadError_; }
    bool LoadPicture_File(Host& host, const std::string& fileName, std::int32_t iconCx = 0,
                          std::int32_t iconCy = 0, bool saveFormat = false, std::int32_t iconBitDepth = 32);
    // streamStart and streamLength as offsets into `inStream`; length 0 means to its end.
    bool LoadPicture_Stream(std::span<const std::uint8_t> inStream, std::int32_t iconCx = 0,
                            std::int32_t iconCy = 0, std::int64_t streamStart = 0,
                            std::int64_t streamLength = 0, bool saveFormat = false,
                            std::int32_t iconBitDepth = 32);
    bool LoadPicture_FromOrignalFormat(std::int32_t iconCx = 0, std::int32_t iconCy = 0,
                                       std::int32_t iconBitDepth = 32);

    // ---- Pixels
    // Colour as 0x00BBGGRR, or -1 (and alpha 0) outside the image; y counts from the top.
    std::int32_t GetPixel(std::int32_t x, std::int32_t y, std::uint8_t* alphaValue = nullptr,
                          bool premultiplied = true) const;
    bool GetDIBbits(std::vector<std::uint8_t>& outStream, bool as32bpp = true, bool asWordAligned = true,
                    bool asBottomUp = true, bool asPreMultiplied = true, std::int32_t dstX = 0,
                    std::int32_t dstY = 0, std::int32_t dstWidth = 0, std::int32_t dstHeight = 0) const;
    bool SetDIBbits(std::span<const std::uint8_t> inStream, bool is32bpp = true, bool isWordAligned = true,
                    bool isBottomUp = true, bool asPreMultiplied = true);
    // Styles 0, 1 and 2; an empty region (no rectangles) stands for the handle 0.
    ImageRegion CreateRegion(std::int32_t style, std::int32_t xOffset = 0, std::int32_t yOffset = 0) const;
    void CopyImageTo(c32bppDIB& target, std::int32_t newWidth = 0, std::int32_t newHeight = 0,
                     bool copyOriginalFormat = false) const;
    bool GetOrginalFormat(std::vector<std::uint8_t>& receiver) const;

    bool Alpha() const { return alpha_; }
    bool HighQualityInterpolation() const { return highQualityInterpolation_; }
    void setHighQualityInterpolation(bool value) { highQualityInterpolation_ = value; }
    std::int32_t ImageType() const { return imageType_; }
    std::int32_t Width() const { return width_; }
    std::int32_t Height() const { return height_; }
    std::int32_t scanWidth() const { return width_ * 4; }
    std::uint8_t* BitsPointer() { return pixels_.empty() ? nullptr : pixels_.data(); }
    const std::uint8_t* BitsPointer() const { return pixels_.empty() ? nullptr : pixels_.data(); }
    // Not 0 exactly while an image stands in the surface.
    std::uintptr_t Handle() const {
        return pixels_.empty() ? 0 : reinterpret_cast<std::uintptr_t>(pixels_.data());
    }

    bool ManageOwnDC() const { return manageOwnDC_; }
    void setManageOwnDC(bool manage) { manageOwnDC_ = manage; }
    bool isAlphaBlendFriendly() const { return (capabilities_ & kCanAlphaBlendFriendly) != 0; }
    void setAlphaBlendFriendly(bool value);
    bool isGDIplusEnabled() const { return (capabilities_ & kSystemCodecInUse) != 0; }
    void setGDIplusEnabled(bool value);
    bool isZlibEnabled() const;
    std::uint32_t capabilityFlags() const { return capabilities_; }
    std::uintptr_t gdiToken() const { return gdiToken_; }
    void setGdiToken(std::uintptr_t token) { gdiToken_ = token; }

    bool InitializeDIB(std::int32_t width, std::int32_t height);
    void DestroyDIB();
    void EraseDIB();

    // ---- Drawing (into a context, or into destHostDIB when given)
    bool Render(DrawingContext* destinationDC, std::int32_t destX = 0, std::int32_t destY = 0,
                std::int32_t destWidth = 0, std::int32_t destHeight = 0, std::int32_t srcX = 0,
                std::int32_t srcY = 0, std::int32_t srcWidth = 0, std::int32_t srcHeight = 0,
                std::int32_t blend = 100, bool reserved = true, bool setHalfTone = true,
                c32bppDIB* destHostDIB = nullptr, std::int32_t grayScale = -1, float lightAdjustment = 0,
                float angle = 0, bool centerOnDestXY = false) const;
    std::unique_ptr<c32bppDIB> CreateDropShadow(std::int32_t blurDepth, std::uint32_t color) const;
    bool RenderDropShadow_JIT(DrawingContext* destinationDC, std::int32_t destX, std::int32_t destY,
                              std::int32_t blurDepth, std::uint32_t color, std::int32_t opacity,
                              c32bppDIB* destHostDIB = nullptr) const;

    // ---- Saving
    bool SaveToStream(std::vector<std::uint8_t>& receiver) const;
    bool SaveToStream_PNG(std::vector<std::uint8_t>& receiver);
    void setPngWriter(cPNGwriter* writer) { pngWriter_ = writer; }
    std::vector<IconSizeRow> SourceIconSizes() const;

    // ---- Operations in place
    bool CreateCheckerBoard(std::int32_t checkerSize, std::uint32_t firstColor, std::uint32_t secondColor);
    bool MakeImageInverse();
    bool MakeTransparent(std::uint32_t transparentColor, bool revert);
    bool MirrorImage(bool mirrorAxisX, bool mirrorAxisY);

    // ---- For the parsers and CopyImageTo only
    void setAlpha(bool value) { alpha_ = value; }
    void setImageType(std::int32_t type) { imageType_ = type; }
    void setOriginalBytes(std::vector<std::uint8_t> bytes) { originalBytes_ = std::move(bytes); }
    const std::vector<std::uint8_t>& originalBytes() const { return originalBytes_; }

private:
    // The common load order over a byte run; every LoadPicture_ ends here.
    bool loadBytes(std::span<const std::uint8_t> bytes, std::int32_t iconCx, std::int32_t iconCy,
                   bool saveFormat, std::int32_t iconBitDepth);

    cPNGwriter* pngWriter_ = nullptr;
    bool highQualityInterpolation_ = false;
    std::vector<std::uint8_t> pixels_;
    std::int32_t width_ = 0;
    std::int32_t height_ = 0;
    std::uint32_t capabilities_ = 0;
    std::int32_t imageType_ = kImageNone;
    bool manageOwnDC_ = false;
    bool alpha_ = false;
    std::uintptr_t gdiToken_ = 0;
    std::vector<std::uint8_t> originalBytes_;
    std::string loadError_;
};

// Checks 32-bit pixels for alpha: returns whether alpha is in use, sets `imageType` to 1, 6 or 7,
// and with `premultiply` makes the pixels premultiplied (or opaque when there is no alpha). A type
// of -1 skips the scan and counts as no alpha.
bool validateAlpha(std::span<std::uint8_t> pixels, bool premultiply, std::int32_t& imageType);

}  // namespace orvanta
