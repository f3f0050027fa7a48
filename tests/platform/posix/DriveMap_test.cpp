#include "platform/posix/DriveMap.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "support/Sandbox.h"

namespace orvanta {
namespace {

class DriveMapping : public ::testing::Test {
protected:
    void SetUp() override {
        std::filesystem::create_directories(root / "drive_c" / "Program Files");
        std::filesystem::create_directories(root / "Backgrounds");
        std::ofstream(root / "Backgrounds" / "Default.jpg") << "x";
        std::ofstream(root / "Backgrounds" / "Caf\xC3\xA9.png") << "x";  // UTF-8 on disk
    }
    std::string host(const std::string& relative) { return root.string() + relative; }
    std::string windows(const std::string& relative) {
        std::string path = map.toWindowsPath(root.string()) + relative;
        return path;
    }

    testing::Sandbox box;
    std::filesystem::path root = box.hostRoot();
    DriveMap map{(root / "drive_c").string()};
};

TEST_F(DriveMapping, DrivesCAndZMapBothWaysWithComponentsFoundIgnoringCaseAndNamesInUtf8OnDisk) {
    EXPECT_EQ(map.toHostPath("C:\\Program Files"), host("/drive_c/Program Files"));
    EXPECT_EQ(map.toHostPath("c:\\"), host("/drive_c"));
    EXPECT_EQ(map.toHostPath("Z:\\"), "/");
    EXPECT_EQ(map.toHostPath("D:\\anything"), "") << "no other drives";
    EXPECT_EQ(map.toWindowsPath(host("/drive_c/Program Files")), "C:\\Program Files");
    EXPECT_EQ(map.toWindowsPath(host("/drive_c")), "C:\\");
    EXPECT_EQ(map.toWindowsPath(host("/drive_cx")).substr(0, 3), "Z:\\") << "only whole folder names count";
    EXPECT_EQ(map.toWindowsPath("/usr/bin"), "Z:\\usr\\bin");
    EXPECT_EQ(map.toHostPath(map.toWindowsPath(host("/Backgrounds/Default.jpg"))),
              host("/Backgrounds/Default.jpg"));

    EXPECT_EQ(map.toHostPath(windows("\\backgrounds\\default.jpg")), host("/Backgrounds/Default.jpg"));
    EXPECT_EQ(map.toHostPath(windows("/BACKGROUNDS/DEFAULT.JPG")), host("/Backgrounds/Default.jpg"))
        << "forward slashes separate too";
    EXPECT_EQ(map.toHostPath(windows("\\backgrounds\\New\\one.png")), host("/Backgrounds/New/one.png"))
        << "what does not exist is kept as written";

    EXPECT_EQ(map.toHostPath(windows("\\Backgrounds\\caf\xC9.png")), host("/Backgrounds/Caf\xC3\xA9.png"))
        << "accented letters have a case too";
    EXPECT_EQ(map.toHostPath(windows("\\Backgrounds\\Caf\xE9.png")), host("/Backgrounds/Caf\xC3\xA9.png"));
    EXPECT_EQ(map.toWindowsPath(host("/Backgrounds/Caf\xC3\xA9.png")), windows("\\Backgrounds\\Caf\xE9.png"));
}

}  // namespace
}  // namespace orvanta
