#pragma once
// The host on Windows: the real file, registry, shell and process calls, in their ANSI forms.
// Paths need no drive mapping here: the host's own form is the same path in UTF-8.

#include <map>
#include <string>

#include "platform/Host.h"
#include "platform/win32/RegistryRoots.h"

namespace orvanta {

class Win32Host : public Host {
public:
    explicit Win32Host(const HostConfig& config);

    std::vector<DirectoryEntry> listDirectory(const std::string& pattern, bool includeFolders) override;
    std::optional<std::uint64_t> fileLength(const std::string& path) override;
    std::optional<std::uint32_t> fileAttributes(const std::string& path) override;
    bool setFileAttributes(const std::string& path, std::uint32_t attributes) override;
    std::unique_ptr<FileReader> openForReading(const std::string& path) override;
    bool writeFileAtomic(const std::string& path, std::string_view contents) override;
    bool copyFile(const std::string& from, const std::string& to) override;
    bool renameFile(const std::string& from, const std::string& to) override;
    bool deleteFile(const std::string& path) override;
    bool createFolder(const std::string& path) override;
    std::string lastFolderError() override { return lastFolderError_; }
    bool removeFolder(const std::string& path) override;
    std::optional<DiskSpace> diskSpace(const std::string& root) override;

    std::string specialFolder(int csidl) override;
    std::string applicationFolder() override;
    std::string commandLine() override;
    std::string toHostPath(const std::string& windowsPath) override;
    std::string toWindowsPath(const std::string& hostPath) override;

    long regCreateKey(RegistryKey root, const std::string& subKey, RegistryKey& result) override;
    long regOpenKey(RegistryKey root, const std::string& subKey, std::uint32_t access,
                    RegistryKey& result) override;
    long regQueryValue(RegistryKey key, const std::string& name, std::uint32_t& type,
                       std::string& data) override;
    long regSetValue(RegistryKey key, const std::string& name, std::uint32_t type,
                     std::string_view data) override;
    long regCloseKey(RegistryKey key) override;

    std::optional<std::uint32_t> startProcess(const std::string& commandLine, int windowStyle) override;
    ProcessHandle openProcess(std::uint32_t processId) override;
    WaitResult waitForProcess(ProcessHandle process, std::uint32_t milliseconds) override;
    void closeProcess(ProcessHandle process) override;
    std::vector<std::string> processNames() override;
    int shellExecute(const std::string& file, const std::string& parameters, int showCommand) override;

    VersionWords versionWords() override;
    unsigned ansiCodePage() override;
    std::optional<NativeTaskDialogAnswer> showTaskDialog(const NativeTaskDialog& plan) override;
    std::uint64_t tickMilliseconds() override;

private:
    HostConfig config_;
    RegistryRoots registryRoots_;
    std::string lastFolderError_;
};

}  // namespace orvanta
