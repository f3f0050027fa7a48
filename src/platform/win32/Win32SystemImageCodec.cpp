// The system codec of Windows: GDI+ through its flat interface. It reads JPEG, TIFF and the other
// formats GDI+ knows; pixels come back as 32-bit ARGB, which in memory is blue, green, red, alpha.

// windows.h first: the GDI+ headers rely on its types.
#include <windows.h>
// clang-format off
#include <objidl.h>
#include <gdiplus.h>
// clang-format on

#include <cstring>

#include "platform/SystemImageCodec.h"

namespace orvanta {

namespace {

using namespace Gdiplus;

// A memory stream over a copy of the bytes; GDI+ may read the stream after the call that opened it.
IStream* streamOver(std::span<const std::uint8_t> bytes) {
    HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, bytes.size());
    if (memory == nullptr) return nullptr;
    void* target = GlobalLock(memory);
    if (target == nullptr) {
        GlobalFree(memory);
        return nullptr;
    }
    std::memcpy(target, bytes.data(), bytes.size());
    GlobalUnlock(memory);
    IStream* stream = nullptr;
    if (CreateStreamOnHGlobal(memory, TRUE, &stream) != S_OK) {
        GlobalFree(memory);
        return nullptr;
    }
    return stream;
}

// Copies the locked rows, which run top-down, into the bottom-up layout.
void copyRows(const BitmapData& data, SystemImage& image) {
    const std::size_t rowBytes = static_cast<std::size_t>(image.width) * 4;
    const auto* source = static_cast<const std::uint8_t*>(data.Scan0);
    for (std::size_t y = 0; y < static_cast<std::size_t>(image.height); ++y) {
        const std::uint8_t* row = source + static_cast<std::ptrdiff_t>(y) * data.Stride;
        std::memcpy(image.pixels.data() + (static_cast<std::size_t>(image.height) - 1 - y) * rowBytes, row,
                    rowBytes);
    }
}

bool readBitmap(GpBitmap* bitmap, SystemImage& image) {
    UINT width = 0, height = 0;
    if (DllExports::GdipGetImageWidth(bitmap, &width) != Ok ||
        DllExports::GdipGetImageHeight(bitmap, &height) != Ok || !systemImageFits(width, height))
        return false;
    image.width = static_cast<std::int32_t>(width);
    image.height = static_cast<std::int32_t>(height);
    image.pixels.assign(std::size_t{width} * height * 4, 0);
    const GpRect area(0, 0, static_cast<INT>(width), static_cast<INT>(height));
    BitmapData data{};
    if (DllExports::GdipBitmapLockBits(bitmap, &area, ImageLockModeRead, PixelFormat32bppARGB, &data) != Ok)
        return false;
    copyRows(data, image);
    DllExports::GdipBitmapUnlockBits(bitmap, &data);
    return true;
}

class GdiPlusCodec final : public SystemImageCodec {
public:
    GdiPlusCodec() {
        GdiplusStartupInput input;
        if (GdiplusStartup(&token_, &input, nullptr) != Ok) token_ = 0;
    }
    ~GdiPlusCodec() override {
        if (token_ != 0) GdiplusShutdown(token_);
    }
    GdiPlusCodec(const GdiPlusCodec&) = delete;
    GdiPlusCodec& operator=(const GdiPlusCodec&) = delete;

    std::string name() const override { return token_ != 0 ? "GDI+" : ""; }

    bool decode(std::span<const std::uint8_t> bytes, SystemImage& image) override {
        image = SystemImage{};
        if (token_ == 0 || bytes.empty()) return false;
        IStream* stream = streamOver(bytes);
        if (stream == nullptr) return false;
        GpBitmap* bitmap = nullptr;
        bool loaded = DllExports::GdipCreateBitmapFromStream(stream, &bitmap) == Ok && bitmap != nullptr;
        if (loaded) loaded = readBitmap(bitmap, image);
        if (bitmap != nullptr) DllExports::GdipDisposeImage(bitmap);
        stream->Release();
        if (!loaded) image = SystemImage{};
        return loaded;
    }

private:
    ULONG_PTR token_ = 0;
};

}  // namespace

std::unique_ptr<SystemImageCodec> createSystemImageCodec() {
    return std::make_unique<GdiPlusCodec>();
}

}  // namespace orvanta
