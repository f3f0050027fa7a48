#include "support/Sandbox.h"

#include <atomic>
#include <chrono>
#include <fstream>
#include <random>
#include <sstream>
#include <stdexcept>

namespace orvanta::testing {

namespace {

// Hosts take their own paths in UTF-8, whatever the narrow code page of the C++ library.
std::string utf8Of(const std::filesystem::path& path) {
    const std::u8string text = path.u8string();
    return std::string(text.begin(), text.end());
}

std::string uniqueName() {
    static std::atomic<unsigned> counter{0};
    std::random_device device;
    std::ostringstream name;
    name << "orvanta-test-" << device() << '-' << counter++;
    return name.str();
}

}  // namespace

Sandbox::Sandbox() : root_(std::filesystem::temp_directory_path() / uniqueName()) {
    std::filesystem::create_directories(root_ / "app");
    std::filesystem::create_directories(root_ / "Documents");
    std::filesystem::create_directories(root_ / "data");
    config_.dataFolder = (root_ / "data").string();
    config_.commandLineSet = true;
    config_.programSearchPath = (root_ / "bin").string();
    config_.commandProcessor = ORVANTA_COMMAND_PROCESSOR;
    config_.registrySandboxKey = "Software\\OrvantaTests\\" + root_.filename().string();
    // Filled in host() once the host can name its own paths.
    config_.applicationFolder.clear();
}

Sandbox::~Sandbox() {
    host_.reset();
    std::error_code ignored;
    std::filesystem::remove_all(root_, ignored);
}

Host& Sandbox::host() {
    if (!host_) {
        if (config_.applicationFolder.empty()) {
            // A first host gives the Windows form of the sandbox paths.
            auto namer = createHost(config_);
            programFolder_ = namer->applicationFolder();
            const std::string root = namer->toWindowsPath(utf8Of(root_));
            config_.applicationFolder = root + "\\app";
            config_.specialFolders.emplace_back(5, root + "\\Documents");
        }
        host_ = createHost(config_);
    }
    return *host_;
}

Host& Sandbox::restartHost() {
    host_.reset();
    return host();
}

std::string Sandbox::programFolder() {
    host();
    return programFolder_;
}

std::string Sandbox::windowsRoot() {
    return host().toWindowsPath(utf8Of(root_));
}

std::string Sandbox::windowsPath(const std::string& relative) {
    return windowsRoot() + "\\" + relative;
}

std::filesystem::path Sandbox::nativePath(const std::string& relative) const {
    std::string portable = relative;
    for (char& c : portable)
        if (c == '\\') c = '/';
    return root_ / portable;
}

void Sandbox::writeFile(const std::string& relative, const std::string& contents) {
    const auto path = nativePath(relative);
    std::filesystem::create_directories(path.parent_path());
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    out << contents;
    if (!out) throw std::runtime_error("cannot write " + path.string());
}

std::string Sandbox::readFile(const std::string& relative) {
    std::ifstream in(nativePath(relative), std::ios::binary);
    std::ostringstream contents;
    contents << in.rdbuf();
    return contents.str();
}

bool Sandbox::exists(const std::string& relative) {
    return std::filesystem::exists(nativePath(relative));
}

void Sandbox::makeFolder(const std::string& relative) {
    std::filesystem::create_directories(nativePath(relative));
}

}  // namespace orvanta::testing
