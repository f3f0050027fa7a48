#pragma once
// A host that forwards every call to a real one but fails chosen writes and renames, so a test
// can prove what a failed save leaves behind. Failures are counted from 1 and happen once.
// It can also stop the program at its nth change to the disk, as a kill would: a file write is
// left as its temporary beside the target, any other change is made, and then Killed is thrown,
// which no routine of the program catches. And it can answer for the shell, keeping what it was
// asked to open instead of opening it.

#include <optional>
#include <string>
#include <vector>

#include "platform/Host.h"

namespace orvanta::testing {

struct Killed {};

class FailingHost : public Host {
public:
    explicit FailingHost(Host& inner) : inner_(inner) {}

    // Fail the nth writeFileAtomic / renameFile from now on (0: never).
    void failWrite(int nth) { writesLeft_ = nth; }
    void failRename(int nth) { renamesLeft_ = nth; }
    void killAtChange(int nth) { changesLeft_ = nth; }
    void answerShell(int result) { shellAnswer_ = result; }
    std::vector<std::string> opened;  // by the shell, once it is answered for
    // Writes, copies, renames, deletions, new folders and attribute changes so far.
    int changes() const { return changes_; }

    std::vector<DirectoryEntry> listDirectory(const std::string& pattern, bool includeFolders) override {
        return inner_.listDirectory(pattern, includeFolders);
    }
    std::optional<std::uint64_t> fileLength(const std::string& path) override {
        return inner_.fileLength(path);
    }
    std::optional<std::uint32_t> fileAttributes(const std::string& path) override {
        return inner_.fileAttributes(path);
    }
    bool setFileAttributes(const std::string& path, std::uint32_t attributes) override {
        return change(inner_.setFileAttributes(path, attributes));
    }
    std::unique_ptr<FileReader> openForReading(const std::string& path) override {
        return inner_.openForReading(path);
    }
    bool writeFileAtomic(const std::string& path, std::string_view contents) override {
        killDuringWrite(path, contents);
        return change(!countDown(writesLeft_) && inner_.writeFileAtomic(path, contents));
    }
    bool copyFile(const std::string& from, const std::string& to) override {
        killDuringWrite(to, "half a copy");
        return change(inner_.copyFile(from, to));
    }
    bool renameFile(const std::string& from, const std::string& to) override {
        return change(!countDown(renamesLeft_) && inner_.renameFile(from, to));
    }
    bool deleteFile(const std::string& path) override { return change(inner_.deleteFile(path)); }
    bool createFolder(const std::string& path) override { return change(inner_.createFolder(path)); }
    std::string lastFolderError() override { return inner_.lastFolderError(); }
    bool removeFolder(const std::string& path) override { return change(inner_.removeFolder(path)); }
    std::optional<DiskSpace> diskSpace(const std::string& root) override { return inner_.diskSpace(root); }

    std::string specialFolder(int csidl) override { return inner_.specialFolder(csidl); }
    std::string applicationFolder() override { return inner_.applicationFolder(); }
    std::string commandLine() override { return inner_.commandLine(); }
    std::string toHostPath(const std::string& windowsPath) override { return inner_.toHostPath(windowsPath); }
    std::string toWindowsPath(const std::string& hostPath) override { return inner_.toWindowsPath(hostPath); }

    long regCreateKey(RegistryKey root, const std::string& subKey, RegistryKey& result) override {
        return inner_.regCreateKey(root, subKey, result);
    }
    long regOpenKey(RegistryKey root, const std::string& subKey, std::uint32_t access,
                    RegistryKey& result) override {
        return inner_.regOpenKey(root, subKey, access, result);
    }
    long regQueryValue(RegistryKey key, const std::string& name, std::uint32_t& type,
                       std::string& data) override {
        return inner_.regQueryValue(key, name, type, data);
    }
    long regSetValue(RegistryKey key, const std::string& name, std::uint32_t type,
                     std::string_view data) override {
        return inner_.regSetValue(key, name, type, data);
    }
    long regCloseKey(RegistryKey key) override { return inner_.regCloseKey(key); }

    std::optional<std::uint32_t> startProcess(const std::string& commandLine, int windowStyle) override {
        return inner_.startProcess(commandLine, windowStyle);
    }
    ProcessHandle openProcess(std::uint32_t processId) override { return inner_.openProcess(processId); }
    WaitResult waitForProcess(ProcessHandle process, std::uint32_t milliseconds) override {
        return inner_.waitForProcess(process, milliseconds);
    }
    void closeProcess(ProcessHandle process) override { inner_.closeProcess(process); }
    std::vector<std::string> processNames() override { return inner_.processNames(); }
    int shellExecute(const std::string& file, const std::string& parameters, int showCommand) override {
        if (!shellAnswer_) return inner_.shellExecute(file, parameters, showCommand);
        opened.push_back(file);
        return *shellAnswer_;
    }
    std::optional<NativeTaskDialogAnswer> showTaskDialog(const NativeTaskDialog& plan) override {
        return inner_.showTaskDialog(plan);
    }

    VersionWords versionWords() override { return inner_.versionWords(); }
    unsigned ansiCodePage() override { return inner_.ansiCodePage(); }
    std::uint64_t tickMilliseconds() override { return inner_.tickMilliseconds(); }

private:
    bool killedNow() {
        ++changes_;
        return countDown(changesLeft_);
    }
    // The write stops halfway: its temporary stays and the target keeps what it held.
    void killDuringWrite(const std::string& path, std::string_view contents) {
        if (changesLeft_ != 1) return;
        inner_.writeFileAtomic(path + ".~ovtmp-KILLED", contents.substr(0, contents.size() / 2));
        killedNow();
        throw Killed{};
    }
    bool change(bool result) {
        if (killedNow()) throw Killed{};
        return result;
    }

    // True when this call is the one chosen to fail.
    static bool countDown(int& left) {
        if (left <= 0) return false;
        return --left == 0;
    }

    Host& inner_;
    int writesLeft_ = 0;
    int renamesLeft_ = 0;
    int changesLeft_ = 0;
    int changes_ = 0;
    std::optional<int> shellAnswer_;
};

}  // namespace orvanta::testing
