#include "project/IntegrityRecord.h"

#include <gtest/gtest.h>
#include <zlib.h>

#include "project/LineFile.h"
#include "support/FailingHost.h"
#include "support/Sandbox.h"

namespace orvanta {
namespace {

// The value an entry must hold, from zlib's CRC-32 rather than the engine under test.
std::string expectedValue(const std::string& bytes) {
    if (bytes.empty()) return "0";
    const auto crc = crc32(0L, reinterpret_cast<const Bytef*>(bytes.data()), static_cast<uInt>(bytes.size()));
    return crcHex(static_cast<std::int32_t>(static_cast<std::uint32_t>(crc)));
}

class IntegrityRecordTest : public ::testing::Test {
protected:
    void SetUp() override {
        for (const char* name : {"uninstallIntro.cfg", "uninstallEnd.cfg", "appdatalocations.cfg",
                                 "mainsettings.cfg", "intro.cfg", "registrylocations.cfg", "packages.cfg",
                                 "files.cfg", "dependencies.cfg", "tips.cfg", "readme.txt", "1.jpg"})
            put(name, std::string("content of ") + name);
        put("fonts.cfg", "");  // empty: "0"
        // folders.cfg is missing: empty entry
        put("settingsset\\0.cfg", "keys.reg\r\n");
        put("settingsset\\keys.reg", "REGEDIT4");
        put("settingsset\\1.cfg", "other.reg\r\n");
        put("settingsset\\other.reg", "x");
        put("v2.0\\demo.exe", "MZ version");
        box.writeFile("app\\data\\install", "install stub");
        box.writeFile("app\\data\\uninstall", "uninstall stub");
        inputs.workingFolder = box.windowsPath("proj");
        inputs.applicationFolder = box.applicationFolder();
        inputs.anyFile = "readme.txt";
        inputs.mainExecutable = "demo.exe";
        inputs.mainExecutableChecked = true;
        inputs.appVersion = "2.0";
        inputs.settingsSetTypes = {"REG", "", "", "", ""};
    }
    void put(const std::string& name, const std::string& bytes) {
        box.writeFile("proj\\" + name, bytes);
        files[name] = bytes;
    }
    std::vector<std::string> recordNames() {
        std::vector<std::string> names;
        for (const auto& entry : box.host().listDirectory(inFolderOfProject("*.hsh"), false))
            names.push_back(entry.name);
        return names;
    }
    std::string inFolderOfProject(const std::string& name) { return box.windowsPath("proj\\" + name); }

    testing::Sandbox box;
    std::map<std::string, std::string> files;
    IntegrityInputs inputs;
};

// The saver's test checks every entry of a full project; these are the conditions it does not reach.
TEST_F(IntegrityRecordTest, EntriesFollowTheirConditions) {
    clsCRC crc(box.host());
    const auto entries = integrityEntries(box.host(), crc, inputs);
    EXPECT_EQ(entries[1], "0") << "an empty file";
    EXPECT_EQ(entries[6], "") << "a missing file";
    EXPECT_EQ(entries[18], expectedValue("REGEDIT4"));
    EXPECT_EQ(entries[19], "") << "set 1 has no recorded type";
    EXPECT_EQ(entries[32], expectedValue(files["settingsset\\1.cfg"])) << "its file is recorded all the same";
    EXPECT_EQ(entries[23], expectedValue("MZ version")) << "from the version folder";

    put("files\\demo.exe", "MZ files");
    EXPECT_EQ(integrityEntries(box.host(), crc, inputs)[23], expectedValue("MZ files"))
        << "\\files comes first";
    inputs.mainExecutableChecked = false;
    EXPECT_EQ(integrityEntries(box.host(), crc, inputs)[23], "");
}

TEST_F(IntegrityRecordTest, IsNamedAfterItsOwnCrcWithMappedDigitsAndALetter) {
    const auto name = writeIntegrityRecord(box.host(), inputs, [] { return 0.0; });
    ASSERT_TRUE(name);
    const std::string record = box.readFile("proj\\" + *name);
    const auto lines = readLines(box.host(), inFolderOfProject(*name), 100).value();
    ASSERT_EQ(lines.size(), kRecordEntries);
    EXPECT_TRUE(record.ends_with("\r\n"));
    EXPECT_EQ(lines[4], "");
    EXPECT_EQ(lines[2], lines[13]);
    const auto crc = static_cast<std::int32_t>(
        crc32(0L, reinterpret_cast<const Bytef*>(record.data()), static_cast<uInt>(record.size())));
    EXPECT_EQ(*name, recordStem(crc) + "D.hsh");
    EXPECT_EQ(name->find_first_of("0123456789"), std::string::npos);
}

TEST_F(IntegrityRecordTest, TwoSavesLeaveOneRecordWhoseNamesDifferOnlyInTheLetter) {
    put("stale.HSH", "old");
    put("nodothsh", "old");
    int pumped = 0;
    box.host().setMessagePump([&pumped] { ++pumped; });
    const auto first = writeIntegrityRecord(box.host(), inputs, [] { return 0.0; });
    EXPECT_GT(pumped, 10) << "messages run after each entry of the folder";
    const auto second = writeIntegrityRecord(box.host(), inputs, [] { return 0.99; });
    ASSERT_TRUE(first && second);
    EXPECT_EQ(recordNames(), std::vector<std::string>{*second});
    EXPECT_FALSE(box.exists("proj\\nodothsh"));
    EXPECT_EQ(first->substr(0, first->size() - 5), second->substr(0, second->size() - 5));
    EXPECT_TRUE(second->ends_with("C.hsh"));
}

// The old record takes the new text and then the new name, so a failure at either step still
// leaves exactly one record.
TEST_F(IntegrityRecordTest, AFailedWriteLeavesTheOldRecordWhole) {
    const auto old = writeIntegrityRecord(box.host(), inputs, [] { return 0.0; });
    ASSERT_TRUE(old);
    const std::string oldText = box.readFile("proj\\" + *old);
    put("intro.cfg", "changed");
    testing::FailingHost failing(box.host());
    failing.failWrite(1);
    EXPECT_FALSE(writeIntegrityRecord(failing, inputs, [] { return 0.0; }));
    EXPECT_EQ(recordNames(), std::vector<std::string>{*old});
    EXPECT_EQ(box.readFile("proj\\" + *old), oldText);
}

TEST(RecordName, MapsDigitsAndPicksLettersByRange) {
    EXPECT_EQ(recordStem(0x01234567), ",#(&)$!");
    EXPECT_EQ(recordStem(static_cast<std::int32_t>(0x89ABCDEFu)), "-+ABCDEF");
    EXPECT_EQ(recordStem(0), "_");
    struct Row {
        double random;
        char letter;
    };
    for (const auto row : {Row{0.0, 'D'}, Row{0.2, 'D'}, Row{0.22, 'A'}, Row{0.42, 'A'}, Row{0.43, 'F'},
                           Row{0.71, 'F'}, Row{0.72, 'C'}, Row{0.9999, 'C'}, Row{1.0, 'C'}})
        EXPECT_EQ(recordLetter(row.random), row.letter) << row.random;
    testing::Sandbox box;
    const auto random = timerSeededRandom(box.host());
    for (int i = 0; i < 100; ++i) {
        const double value = random();
        EXPECT_TRUE(value >= 0.0 && value <= 1.0);
    }
}

}  // namespace
}  // namespace orvanta
