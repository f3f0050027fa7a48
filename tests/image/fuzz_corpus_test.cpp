#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>

#include "fuzz/FuzzTargets.h"
#include "image/cHuffman.h"
#include "image/png_test_support.h"

namespace orvanta::testing {
namespace {

namespace fs = std::filesystem;

void writeFile(const fs::path& path, const Bytes& bytes) {
    fs::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary)
        .write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
}

// A GIF89a of 2x2 pixels with a global table of 2 colours and a transparent index.
Bytes smallGif() {
    return {'G', 'I', 'F', '8', '9', 'a',  2, 0, 2, 0, 0x80, 0, 0, 0xFF, 0, 0, 0, 0,    0xFF, 0x21, 0xF9, 4,
            1,   0,   0,   1,   0,   0x2C, 0, 0, 0, 0, 2,    0, 2, 0,    0, 2, 2, 0x44, 0x01, 0,    0x3B};
}

// An icon file whose one entry holds `entry` (a PNG or a bitmap).
Bytes iconOf(const Bytes& entry) {
    Bytes icon = {0, 0, 1, 0, 1, 0, 16, 16, 0, 0, 1, 0, 32, 0};
    for (int shift = 0; shift < 32; shift += 8)
        icon.push_back(static_cast<std::uint8_t>(entry.size() >> shift));
    icon.insert(icon.end(), {22, 0, 0, 0});
    icon.insert(icon.end(), entry.begin(), entry.end());
    return icon;
}

std::map<std::string, std::vector<Bytes>> seeds() {
    std::map<std::string, std::vector<Bytes>> out;
    std::vector<Bytes> pngs;
    const PngHeader headers[] = {
        {16, 16, 8, 6, 0}, {13, 9, 8, 2, 1}, {9, 7, 1, 0, 0}, {9, 7, 4, 3, 1}, {5, 5, 16, 4, 0}};
    for (const PngHeader& header : headers) {
        PngRecipe recipe;
        recipe.header = header;
        if (header.colorType == 3) recipe.palette = randomPalette(16, 3), recipe.transparency = {0, 0x80};
        pngs.push_back(makePng(recipe));
    }
    out["png_with_zlib"] = out["png_without_zlib"] = pngs;
    for (const Bytes& png : pngs) {
        for (const std::uint8_t option : {std::uint8_t{0}, std::uint8_t{1}}) {
            Bytes withOption = png;
            withOption.push_back(option);
            out["png"].push_back(withOption);
        }
        const Bytes stream = pngIdat(pngRawData(PngHeader{16, 16, 8, 6, 0}, 1));
        Bytes inflateInput = {0x04, 0x10};
        inflateInput.insert(inflateInput.end(), stream.begin(), stream.end());
        out["inflate"].push_back(inflateInput);
    }
    out["gif"] = {smallGif()};
    c32bppDIB surface;
    surface.InitializeDIB(5, 3);
    for (int i = 0; i < 60; ++i) surface.BitsPointer()[i] = static_cast<std::uint8_t>(i % 4 == 3 ? 200 : i);
    Bytes bmp;
    surface.SaveToStream(bmp);
    out["bmp"] = {bmp};
    for (const Bytes& entry : {pngs[0], Bytes(bmp.begin() + 14, bmp.end())}) {
        Bytes withOptions = {32, 32};
        const Bytes icon = iconOf(entry);
        withOptions.insert(withOptions.end(), icon.begin(), icon.end());
        out["ico"].push_back(withOptions);
    }
    Bytes container;
    cHuffman::EncodeByteArray(&surface, {}, container);
    container.insert(container.begin(), 1);
    out["huffman"].push_back(container);
    const std::string text = "abracadabra, a static coder for bytes";
    cHuffman::EncodeByteArray(nullptr, Bytes(text.begin(), text.end()), container);
    container.insert(container.begin(), 0);
    out["huffman"].push_back(container);
    return out;
}

// Writes the seed corpus of every fuzz target below $ORVANTA_FUZZ_SEEDS (scripts/fuzz sets it).
TEST(FuzzCorpus, SeedsAreWrittenWhenAsked) {
    const auto all = seeds();
    for (const auto& [target, inputs] : all) EXPECT_FALSE(inputs.empty()) << target;
    const char* folder = std::getenv("ORVANTA_FUZZ_SEEDS");
    if (folder == nullptr) GTEST_SKIP() << "ORVANTA_FUZZ_SEEDS not set";
    for (const auto& [target, inputs] : all)
        for (std::size_t i = 0; i < inputs.size(); ++i)
            writeFile(fs::path(folder) / target / ("seed-" + std::to_string(i)), inputs[i]);
}

// Every input a fuzzer once found stays here, named after its target ("png_without_zlib-...").
TEST(FuzzCorpus, KeptFindingsStillPass) {
    const std::map<std::string, void (*)(fuzz::Input)> targets = {{"png", fuzz::png},
                                                                  {"png_with_zlib", fuzz::pngWithZlib},
                                                                  {"png_without_zlib", fuzz::pngWithoutZlib},
                                                                  {"gif", fuzz::gif},
                                                                  {"bmp", fuzz::bmp},
                                                                  {"ico", fuzz::ico},
                                                                  {"huffman", fuzz::huffman},
                                                                  {"inflate", fuzz::inflate}};
    const fs::path folder(ORVANTA_CRASHERS_DIR);
    if (!fs::is_directory(folder)) GTEST_SKIP() << "no folder " << folder;
    for (const auto& entry : fs::directory_iterator(folder)) {
        const std::string name = entry.path().filename().string();
        const auto target = targets.find(name.substr(0, name.find('-')));
        if (target == targets.end()) continue;
        std::ifstream in(entry.path(), std::ios::binary);
        const Bytes bytes{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
        target->second(bytes);
        SUCCEED() << name;
    }
}

}  // namespace
}  // namespace orvanta::testing
