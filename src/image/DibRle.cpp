#include "image/DibRle.h"

namespace orvanta {

namespace {

constexpr std::uint8_t kEscape = 0;
constexpr std::uint8_t kEndOfLine = 0;
constexpr std::uint8_t kEndOfBitmap = 1;
constexpr std::uint8_t kDelta = 2;

class RleCanvas {
public:
    RleCanvas(const DibHeader& header, c32bppDIB& surface)
        : header_(header),
          pixels_(surface.BitsPointer()),
          width_(static_cast<std::uint64_t>(surface.Width())),
          height_(static_cast<std::uint64_t>(surface.Height())) {}

    void fillBlack() {
        for (std::uint64_t i = 0; i < width_ * height_; ++i) pixels_[i * 4 + 3] = 255;
    }

    void put(std::uint32_t index) {
        if (x_ < width_ && y_ < height_) {
            const std::uint32_t word = header_.palette[index];
            std::uint8_t* out = pixels_ + (y_ * width_ + x_) * 4;
            out[0] = static_cast<std::uint8_t>(word);
            out[1] = static_cast<std::uint8_t>(word >> 8);
            out[2] = static_cast<std::uint8_t>(word >> 16);
        }
        ++x_;
    }

    void nextLine() {
        x_ = 0;
        ++y_;
    }
    void move(std::uint32_t dx, std::uint32_t dy) {
        x_ += dx;
        y_ += dy;
    }
    bool finished() const { return y_ >= height_; }

private:
    const DibHeader& header_;
    std::uint8_t* pixels_;
    std::uint64_t width_;
    std::uint64_t height_;
    std::uint64_t x_ = 0;
    std::uint64_t y_ = 0;  // rows counted from the bottom, as the data run
};

// The n-th pixel of a byte: RLE4 packs two, the high half first.
std::uint32_t pixelOf(std::uint8_t value, std::uint32_t n, bool four) {
    if (!four) return value;
    return (n % 2 == 0) ? static_cast<std::uint32_t>(value >> 4) : static_cast<std::uint32_t>(value & 15);
}

// An absolute run of `count` pixels; its bytes are padded to a 16-bit boundary.
bool absoluteRun(std::span<const std::uint8_t> data, std::size_t& at, std::uint32_t count, bool four,
                 RleCanvas& canvas) {
    const std::size_t bytes = four ? (count + 1) / 2 : count;
    if (bytes > data.size() - at) return false;
    for (std::uint32_t n = 0; n < count; ++n) canvas.put(pixelOf(data[at + (four ? n / 2 : n)], n, four));
    at += bytes;
    if ((bytes & 1) != 0 && at < data.size()) ++at;
    return true;
}

}  // namespace

bool decodeDibRle(const DibHeader& header, std::span<const std::uint8_t> data, c32bppDIB& surface) {
    if (header.compression != kBiRle8 && header.compression != kBiRle4) return false;
    const bool four = header.compression == kBiRle4;
    RleCanvas canvas(header, surface);
    canvas.fillBlack();
    std::size_t at = 0;
    while (!canvas.finished() && data.size() - at >= 2) {
        const std::uint8_t count = data[at], value = data[at + 1];
        at += 2;
        if (count != kEscape) {
            for (std::uint32_t n = 0; n < count; ++n) canvas.put(pixelOf(value, n, four));
        } else if (value == kEndOfLine) {
            canvas.nextLine();
        } else if (value == kEndOfBitmap) {
            break;
        } else if (value == kDelta) {
            if (data.size() - at < 2) break;
            canvas.move(data[at], data[at + 1]);
            at += 2;
        } else if (!absoluteRun(data, at, value, four, canvas)) {
            break;
        }
    }
    return true;
}

}  // namespace orvanta
