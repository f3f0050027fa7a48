// ovimage: a developer's window onto the image engine.
//   ovimage decode FILE OUT.pam [--no-zlib]   the surface as PAM (RGB_ALPHA, 8 bits, top-down,
//                                             premultiplied values as the surface holds them)
//   ovimage info FILE                         type, size and alpha kind
#include <cstdio>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>
#include <vector>

#include "image/ZlibLibrary.h"
#include "image/c32bppDIB.h"

namespace {

using orvanta::c32bppDIB;

constexpr std::size_t kShortestPicture = 57;

int usage() {
    std::cerr << "usage: ovimage decode FILE OUT.pam [--no-zlib]\n       ovimage info FILE\n";
    return 2;
}

// Loads the file into the surface, or says on standard error why not.
bool load(const std::string& path, c32bppDIB& surface) {
    std::ifstream in(path, std::ios::binary);
    if (!in) {
        std::cerr << "ovimage: " << path << ": cannot be opened\n";
        return false;
    }
    const std::vector<std::uint8_t> bytes{std::istreambuf_iterator<char>(in),
                                          std::istreambuf_iterator<char>()};
    if (bytes.size() < kShortestPicture) {
        std::cerr << "ovimage: " << path << ": shorter than 57 bytes, no reader looks at it\n";
        return false;
    }
    if (!surface.LoadPicture_Stream(bytes)) {
        std::cerr << "ovimage: " << path
                  << ": no reader could load it (damaged, or not a format the engine reads)\n";
        return false;
    }
    return true;
}

const char* typeName(std::int32_t type) {
    switch (type) {
        case orvanta::kImageBitmap:
            return "bitmap";
        case orvanta::kImageIcon:
            return "icon";
        case orvanta::kImageCursor:
            return "cursor";
        case orvanta::kImageAlphaStraight:
            return "alpha bitmap, straight";
        case orvanta::kImageAlphaPremultiplied:
            return "alpha bitmap, premultiplied";
        case orvanta::kImageIcon32:
            return "32-bit icon";
        case orvanta::kImageGif:
            return "GIF";
        case orvanta::kImagePng:
            return "PNG";
        case orvanta::kImagePngInIcon:
            return "PNG in an icon";
        case orvanta::kImageCursor32:
            return "32-bit cursor";
        default:
            return "other";
    }
}

bool writePam(const c32bppDIB& surface, const std::string& path) {
    std::ofstream out(path, std::ios::binary);
    out << "P7\nWIDTH " << surface.Width() << "\nHEIGHT " << surface.Height()
        << "\nDEPTH 4\nMAXVAL 255\nTUPLTYPE RGB_ALPHA\nENDHDR\n";
    const auto width = static_cast<std::size_t>(surface.Width());
    std::vector<char> row(width * 4);
    for (std::int32_t y = surface.Height() - 1; y >= 0; --y) {
        const std::uint8_t* p = surface.BitsPointer() + static_cast<std::size_t>(y) * width * 4;
        for (std::size_t x = 0; x < width; ++x, p += 4) {
            row[x * 4] = static_cast<char>(p[2]);
            row[x * 4 + 1] = static_cast<char>(p[1]);
            row[x * 4 + 2] = static_cast<char>(p[0]);
            row[x * 4 + 3] = static_cast<char>(p[3]);
        }
        out.write(row.data(), static_cast<std::streamsize>(row.size()));
    }
    return static_cast<bool>(out);
}

}  // namespace

int main(int argc, char** argv) {
    const std::vector<std::string> args(argv + 1, argv + argc);
    if (args.size() >= 3 && args[0] == "decode" &&
        (args.size() == 3 || (args.size() == 4 && args[3] == "--no-zlib"))) {
        orvanta::ZlibLibrary::setDisabled(args.size() == 4);
        c32bppDIB surface;
        if (!load(args[1], surface)) return 1;
        if (!writePam(surface, args[2])) {
            std::cerr << "ovimage: " << args[2] << ": cannot be written\n";
            return 1;
        }
        return 0;
    }
    if (args.size() == 2 && args[0] == "info") {
        c32bppDIB surface;
        if (!load(args[1], surface)) return 1;
        std::cout << "type " << surface.ImageType() << " (" << typeName(surface.ImageType()) << ")\n"
                  << "size " << surface.Width() << "x" << surface.Height() << "\n"
                  << "alpha " << (surface.Alpha() ? "yes" : "no") << "\n";
        return 0;
    }
    return usage();
}
