#include "builder/PerEntryPacker.h"

#include <chrono>
#include <thread>

#include "BuildFixture.h"

namespace orvanta {
namespace {

class RecordingTimers : public PackerTimers {
public:
    void setTimer3Enabled(bool enabled) override { timer3 = enabled; }
    void setTimer2Enabled(bool enabled) override { timer2 = enabled; }
    bool timer3 = false;
    bool timer2 = false;
};

using PerEntryPackerTest = BuildFixture;

// Each entry is one archiver call; the loop moves on when the call's batch file has deleted itself.
TEST_F(PerEntryPackerTest, PacksEachEntryInTurnAndEndsWithTimer2) {
    box.writeFile(rel("files\\b.txt"), "bee");
    fields->addListItems(ctrl::files, {"demo.exe", "b.txt"});
    RecordingTimers timers;
    int index = 0;
    std::vector<std::string> captions;
    const auto caption = [&](const std::string& text) { captions.push_back(text); };
    const BuildSetup setup = setupFor("winrar");
    PerEntryPacker packer(box.host(), *fields, timers, index);

    packer.package_the_files(setup, caption);
    EXPECT_TRUE(timers.timer3);
    for (int tick = 0; tick < 400 && timers.timer3; ++tick) {
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
        packer.Timer3_Timer(setup, caption);
    }

    EXPECT_FALSE(timers.timer3);
    EXPECT_TRUE(timers.timer2);
    EXPECT_EQ(index, 2);
    EXPECT_EQ(captions, (std::vector<std::string>{"demo.exe", "b.txt"}));
    EXPECT_EQ(contents(root + "\\package.exe"), "+demo.exe 15\n+b.txt 3\n");
    const auto calls = archiverCalls();
    ASSERT_EQ(calls.size(), 2u);
    EXPECT_EQ(calls[0].substr(0, 37), "[a] [-ep] [-apfiles] [-md4096] [-m3] ");
}

}  // namespace
}  // namespace orvanta
