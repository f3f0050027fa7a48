#include "core/clsCRC.h"

#include <gtest/gtest.h>
#include <zlib.h>

#include <random>
#include <vector>

#include "core/Crc32Folding.h"
#include "core/Crc32Kernel.h"
#include "core/RuntimeError.h"
#include "support/Sandbox.h"

namespace orvanta {
namespace {

std::span<const std::uint8_t> bytes(const std::string& text) {
    return {reinterpret_cast<const std::uint8_t*>(text.data()), text.size()};
}

std::vector<std::uint8_t> randomBytes(std::size_t size, unsigned seed) {
    std::mt19937 generator(seed);
    std::vector<std::uint8_t> data(size);
    for (auto& byte : data) byte = static_cast<std::uint8_t>(generator());
    return data;
}

std::uint32_t zlibCrc(const std::uint8_t* data, std::size_t size) {
    return static_cast<std::uint32_t>(::crc32(0, data, static_cast<uInt>(size)));
}

class CrcTest : public ::testing::Test {
protected:
    testing::Sandbox box;
    clsCRC crc{box.host()};
};

TEST_F(CrcTest, CheckValuesOfBothAlgorithms) {
    EXPECT_EQ(crc.CalculateString("123456789"), static_cast<std::int32_t>(0xCBF43926u));
    EXPECT_LT(crc.CalculateString("123456789"), 0) << "the top bit set reads as a negative number";
    crc.setAlgorithm(0);
    EXPECT_EQ(crc.CalculateString("123456789"), 0x31C3);
    EXPECT_EQ(crc.CalculateBytes({}), 0);
    crc.setAlgorithm(1);
    EXPECT_EQ(crc.CalculateBytes({}), 0);
    // A byte above 127 must not be sign-extended on its way into the register.
    EXPECT_EQ(static_cast<std::uint32_t>(crc.CalculateString("caf\xE9")),
              zlibCrc(bytes("caf\xE9").data(), 4));
}

TEST_F(CrcTest, TheLopsidedPropertiesAndTheSharedClear) {
    EXPECT_EQ(crc.Algorithm(), -1) << "a new instance has CRC-32";
    crc.setAlgorithm(7);
    EXPECT_EQ(crc.Algorithm(), -1);
    crc.setValue(0x1234);
    EXPECT_EQ(crc.Value(), ~0x1234) << "the setter writes the raw register";

    crc.AddString("abc");
    crc.setAlgorithm(0);  // selecting clears both registers
    EXPECT_EQ(crc.Algorithm(), 0);
    EXPECT_EQ(crc.Value(), 0);
    crc.setValue(0x12345);
    EXPECT_EQ(crc.Value(), 0x2345) << "CRC-16 reads the low 16 bits";
    const std::int32_t fromHighBits = crc.AddString("x");
    crc.setValue(0x2345);
    EXPECT_EQ(crc.AddString("x"), fromHighBits) << "the update ignores bits above 15 of the register";
    crc.setAlgorithm(1);
    EXPECT_EQ(crc.Value(), 0) << "CRC-32 of nothing";
    crc.AddString("abc");
    crc.setAlgorithm(1);
    EXPECT_EQ(crc.Value(), 0) << "selecting the selected algorithm clears too";
}

TEST_F(CrcTest, RunsOfBytesAddUpToTheWhole) {
    for (const std::int32_t algorithm : {0, 1}) {
        crc.setAlgorithm(algorithm);
        const auto data = randomBytes(1000, 7);
        const std::int32_t whole = crc.CalculateBytes(data);
        crc.Clear();
        crc.AddBytes({data.data(), 333});
        EXPECT_EQ(crc.AddBytes({data.data() + 333, data.size() - 333}), whole) << algorithm;
        EXPECT_EQ(crc.AddBytes({}), whole) << "an empty run changes nothing";
    }
}

TEST_F(CrcTest, HexFormHasNoLeadingZerosAndEightDigitsWhenNegative) {
    EXPECT_EQ(crcHex(static_cast<std::int32_t>(0xCBF43926u)), "CBF43926");
    EXPECT_EQ(crcHex(0x0000ABCD), "ABCD");
    EXPECT_EQ(crcHex(0), "0");
    EXPECT_EQ(crcHex(-1), "FFFFFFFF");
}

TEST_F(CrcTest, AFileIsHashedWholeButAnEmptyOneHasNoValueAndAMissingOneThrows) {
    box.writeFile("empty.cfg", "");
    crc.AddString("running");
    const std::int32_t before = crc.Value();
    EXPECT_FALSE(crc.CalculateFile(box.windowsPath("empty.cfg")).has_value()) << "not the CRC of nothing";
    EXPECT_EQ(crc.Value(), before) << "an empty file leaves the register alone";
    try {
        crc.CalculateFile(box.windowsPath("missing.cfg"));
        ADD_FAILURE() << "a missing file must throw";
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.number(), kErrorNumberFileNotFound);
    }
    EXPECT_EQ(crc.Value(), before) << "a failed file leaves the register alone";

    box.writeFile("check.cfg", "123456789");
    crc.AddString("running");
    EXPECT_EQ(crc.CalculateFile(box.windowsPath("check.cfg")), static_cast<std::int32_t>(0xCBF43926u));
    crc.setAlgorithm(0);
    crc.AddString("running");
    EXPECT_EQ(crc.CalculateFile(box.windowsPath("check.cfg")), 0x31C3);

    crc.setAlgorithm(1);
    const auto data = randomBytes((3 << 20) + 77, 11);  // spans several read pieces
    box.writeFile("big.bin", std::string(data.begin(), data.end()));
    const auto value = crc.CalculateFile(box.windowsPath("big.bin"));
    ASSERT_TRUE(value.has_value());
    EXPECT_EQ(static_cast<std::uint32_t>(*value), zlibCrc(data.data(), data.size()));
    EXPECT_EQ(crc.Value(), *value) << "the file's CRC is the running value afterwards";
}

// Every path of the kernel against zlib, at every short length and at odd alignments.
TEST(Crc32Kernel, AllPathsAgreeWithZlib) {
    const auto data = randomBytes(5000, 3);
    using Update = std::uint32_t (*)(std::uint32_t, const std::uint8_t*, std::size_t);
    std::vector<std::pair<const char*, Update>> paths = {
        {"bytewise", crc32::updateBytewise}, {"sliced", crc32::updateSliced}, {"dispatched", crc32::update}};
    if (crc32::folding::available()) paths.emplace_back("folding", crc32::folding::update);
    if (crc32::folding::available256()) paths.emplace_back("folding 256", crc32::folding::update256);
    if (crc32::folding::available512()) paths.emplace_back("folding 512", crc32::folding::update512);
    for (const auto& [name, update] : paths) {
        for (std::size_t offset = 0; offset < 4; ++offset) {
            for (std::size_t size = 0; size + offset <= 1100; size += (size < 600 ? 1 : 37)) {
                const std::uint32_t ours = ~update(0xFFFFFFFFu, data.data() + offset, size);
                ASSERT_EQ(ours, zlibCrc(data.data() + offset, size))
                    << name << " size " << size << " offset " << offset;
            }
        }
        for (const std::size_t size : {std::size_t{65536 + 7}, std::size_t{(1 << 20) + 3}}) {
            const auto large = randomBytes(size, static_cast<unsigned>(size));
            EXPECT_EQ(~update(0xFFFFFFFFu, large.data() + 1, size - 1), zlibCrc(large.data() + 1, size - 1))
                << name << " size " << size - 1;
        }
        // A running register carried across calls of odd sizes.
        std::uint32_t reg = 0xFFFFFFFFu;
        reg = update(reg, data.data(), 1777);
        reg = update(reg, data.data() + 1777, data.size() - 1777);
        EXPECT_EQ(~reg, zlibCrc(data.data(), data.size())) << name;
    }
}

}  // namespace
}  // namespace orvanta
