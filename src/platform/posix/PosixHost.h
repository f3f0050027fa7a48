#pragma once
// The host on Linux and other POSIX systems: Windows paths through a wine-style drive map, the
// registry in a file-backed store, batch files run by our own command processor.

#include <map>
#include <optional>

#include "platform/Host.h"
#include "platform/posix/ArchiverLinks.h"
#include "platform/posix/DriveMap.h"
#include "platform/posix/FileKeyStore.h"
#include "platform/posix/FolderStats.h"

namespace orvanta {

// The environment variable through which a host hands its data folder (simulated C: drive, registry
// store, archiver links) to the command processor, so that batch lines see the same machine.
inline constexpr const char* kDataFolderEnvironmentVariable = "ORVANTA_DATA_FOLDER";

class PosixHost : public Host {
public:
    explicit PosixHost(const HostConfig& config);

    std::vector<DirectoryEntry> listDirectory(const std::string& pattern, bool includeFolders) override;
    std::vector<DirectoryEntry> listDirectoryLengths(const std::string& pattern,
                                                     bool includeFolders) override;
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
    unsigned ansiCodePage() override { return 1252; }
    std::uint64_t tickMilliseconds() override;

private:
    // With `dosAttributes` off, the attributes hold the folder bit only and no extended
    // attribute is read.
    std::vector<DirectoryEntry> listEntries(const std::string& pattern, bool includeFolders,
                                            bool dosAttributes);
    std::vector<DirectoryEntry> listNamed(const std::string& path, bool includeFolders, bool dosAttributes);
    std::vector<DirectoryEntry> listMatching(const std::string& folder, const std::string& wildcard,
                                             bool includeFolders, bool dosAttributes);

    long resolveKey(RegistryKey key, const std::string& subKey, std::string& path) const;
    bool keyExists(const std::string& path) const;
    std::optional<std::string> openKeyPath(RegistryKey key) const;
    RegistryKey newHandle(const std::string& path);
    std::optional<StoredValue> registrationValue(const std::string& keyPath, const std::string& name);

    std::optional<std::vector<std::string>> hostArguments(const std::string& commandLine);
    void joinUnquotedProgramPath(const std::string& commandLine, std::vector<std::string>& words);

    std::string lastFolderError_;
    std::optional<std::vector<std::string>> programArguments(const std::vector<std::string>& words);
    std::optional<std::uint32_t> spawn(const std::vector<std::string>& arguments, bool hidden);
    std::string commandProcessor() const;

    HostConfig config_;
    std::string dataFolder_;
    DriveMap drives_;
    FileKeyStore store_;
    ArchiverLinks archivers_;
    FolderStats folderStats_;
    std::map<RegistryKey, std::string> openKeys_;  // handle -> key path
    RegistryKey nextHandle_ = 0x1000;
    std::map<int, bool> children_;  // process id -> ended (reaped)
};

}  // namespace orvanta
