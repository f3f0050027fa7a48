// The system codec of this host: JPEG through libjpeg-turbo. TIFF is not read here.

#include <csetjmp>
#include <cstddef>
#include <cstdio>

#include <jpeglib.h>

#include "platform/SystemImageCodec.h"

namespace orvanta {

namespace {

struct JpegErrors {
    jpeg_error_mgr manager;  // first, so the library's pointer to it is a pointer to the whole
    std::jmp_buf jump;
};

// The library's own handler ends the process; ours returns to the call that began the work.
[[noreturn]] void leaveOnError(j_common_ptr info) {
    std::longjmp(reinterpret_cast<JpegErrors*>(info->err)->jump, 1);
}

void keepQuiet(j_common_ptr) {}

// The steps that may fail run in functions of their own that hold no objects with destructors, so
// that a jump out of the library skips nothing.
class JpegReader {
public:
    JpegReader() {
        info_.err = jpeg_std_error(&errors_.manager);
        errors_.manager.error_exit = leaveOnError;
        errors_.manager.output_message = keepQuiet;
    }
    ~JpegReader() {
        if (created_) jpeg_destroy_decompress(&info_);
    }
    JpegReader(const JpegReader&) = delete;
    JpegReader& operator=(const JpegReader&) = delete;

    bool readHeader(const std::uint8_t* data, std::size_t size) {
        if (setjmp(errors_.jump) != 0) return false;
        jpeg_create_decompress(&info_);
        created_ = true;
        jpeg_mem_src(&info_, data, static_cast<unsigned long>(size));
        if (jpeg_read_header(&info_, TRUE) != JPEG_HEADER_OK) return false;
        cmyk_ = info_.jpeg_color_space == JCS_CMYK || info_.jpeg_color_space == JCS_YCCK;
        info_.out_color_space = cmyk_ ? JCS_CMYK : JCS_EXT_BGRA;
        return true;
    }

    std::uint32_t width() const { return info_.image_width; }
    std::uint32_t height() const { return info_.image_height; }

    // Fills `pixels` (width * height * 4 bytes) bottom-up.
    bool readRows(std::uint8_t* pixels) {
        if (setjmp(errors_.jump) != 0) return false;
        jpeg_start_decompress(&info_);
        if (info_.output_width != info_.image_width || info_.output_height != info_.image_height ||
            info_.output_components != 4)
            return false;
        const std::size_t rowBytes = std::size_t{info_.output_width} * 4;
        while (info_.output_scanline < info_.output_height) {
            JSAMPROW row = pixels + (std::size_t{info_.output_height} - 1 - info_.output_scanline) * rowBytes;
            if (jpeg_read_scanlines(&info_, &row, 1) != 1) return false;
            if (cmyk_) cmykToBgra(row, info_.output_width, info_.saw_Adobe_marker != 0);
        }
        jpeg_finish_decompress(&info_);
        return true;
    }

private:
    // Adobe's files store the inks inverted, which most CMYK JPEGs are.
    static void cmykToBgra(std::uint8_t* row, std::size_t width, bool inverted) {
        for (std::size_t x = 0; x < width; ++x, row += 4) {
            unsigned c = row[0], m = row[1], y = row[2], k = row[3];
            if (!inverted) {
                c = 255 - c;
                m = 255 - m;
                y = 255 - y;
                k = 255 - k;
            }
            row[0] = static_cast<std::uint8_t>(y * k / 255);
            row[1] = static_cast<std::uint8_t>(m * k / 255);
            row[2] = static_cast<std::uint8_t>(c * k / 255);
            row[3] = 255;
        }
    }

    jpeg_decompress_struct info_{};
    JpegErrors errors_{};
    bool created_ = false;
    bool cmyk_ = false;
};

class JpegTurboCodec final : public SystemImageCodec {
public:
    std::string name() const override { return "libjpeg-turbo"; }

    bool decode(std::span<const std::uint8_t> bytes, SystemImage& image) override {
        image = SystemImage{};
        // Only a JPEG's start-of-image marker goes to the library.
        if (bytes.size() < 4 || bytes[0] != 0xFF || bytes[1] != 0xD8 || bytes[2] != 0xFF) return false;
        JpegReader reader;
        if (!reader.readHeader(bytes.data(), bytes.size())) return false;
        if (!systemImageFits(reader.width(), reader.height())) return false;
        std::vector<std::uint8_t> pixels(std::size_t{reader.width()} * reader.height() * 4);
        if (!reader.readRows(pixels.data())) return false;
        image.width = static_cast<std::int32_t>(reader.width());
        image.height = static_cast<std::int32_t>(reader.height());
        image.pixels = std::move(pixels);
        return true;
    }
};

}  // namespace

std::unique_ptr<SystemImageCodec> createSystemImageCodec() {
    return std::make_unique<JpegTurboCodec>();
}

}  // namespace orvanta
