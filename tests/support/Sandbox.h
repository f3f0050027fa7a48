#pragma once
// A fresh folder and a host of its own for one test: its own application folder, documents
// folder, simulated system drive and registry store (on Windows a registry key of its own).

#include <filesystem>
#include <memory>
#include <string>

#include "platform/Host.h"

namespace orvanta::testing {

class Sandbox {
public:
    Sandbox();
    ~Sandbox();
    Sandbox(const Sandbox&) = delete;
    Sandbox& operator=(const Sandbox&) = delete;

    // The configuration of the sandbox host; change it before the first call of host().
    HostConfig& config() { return config_; }
    Host& host();
    // Makes the host again from config(), keeping the files; the registry is not kept on every host.
    Host& restartHost();

    const std::filesystem::path& hostRoot() const { return root_; }
    // The Windows path of the sandbox root and of a path below it ("a\b.txt").
    std::string windowsRoot();
    std::string windowsPath(const std::string& relative);
    std::string applicationFolder() { return windowsPath("app"); }
    std::string documentsFolder() { return windowsPath("Documents"); }
    // The Windows path of the folder of the test programs, where helper programs are built.
    std::string programFolder();

    // Plain file helpers below the root, by relative Windows-style path, in the host's own calls.
    void writeFile(const std::string& relative, const std::string& contents);
    std::string readFile(const std::string& relative);
    bool exists(const std::string& relative);
    void makeFolder(const std::string& relative);

private:
    std::filesystem::path nativePath(const std::string& relative) const;

    std::filesystem::path root_;
    HostConfig config_;
    std::string programFolder_;
    std::unique_ptr<Host> host_;
};

}  // namespace orvanta::testing
