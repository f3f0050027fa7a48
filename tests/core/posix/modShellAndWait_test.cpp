#include "core/modShellAndWait.h"

#include <gtest/gtest.h>

#include "support/Sandbox.h"

namespace orvanta {
namespace {

TEST(ShellAndWait, WaitsForTheProcessAndPumpsMessages) {
    testing::Sandbox box;
    int pumps = 0;
    box.host().setMessagePump([&] { ++pumps; });
    shellAndWait(box.host(), "Z:\\bin\\sh -c \"sleep 0.6; touch " + box.hostRoot().string() + "/done\"",
                 kWindowHidden, 0);
    EXPECT_TRUE(box.exists("done"));
    EXPECT_GE(pumps, 2);
}

TEST(ShellAndWait, GivesUpAfterMaxSecondsAndLeavesTheProcessRunning) {
    testing::Sandbox box;
    Host& host = box.host();
    shellAndWait(host, "Z:\\bin\\sh -c \"sleep 3; touch " + box.hostRoot().string() + "/late 2>/dev/null\"",
                 kWindowHidden, 1);
    EXPECT_FALSE(box.exists("late")) << "returned before the process ended";
    shellAndWait(host, box.windowsPath("no-such-program.exe"), kWindowHidden, 0);  // ends silently
}

}  // namespace
}  // namespace orvanta
