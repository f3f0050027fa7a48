#pragma once
// The one interface between the system and the machine it runs on. Every path that crosses it is a
// Windows path ("X:\dir\file") in the ANSI code page; the POSIX implementation maps drives the way
// wine does. Results follow the Windows calls they stand for, so the code above reads the same on
// every host.

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/NativeTaskDialog.h"

namespace orvanta {

// File attribute bits, with the values Windows gives them.
inline constexpr std::uint32_t kAttributeReadOnly = 0x01;
inline constexpr std::uint32_t kAttributeHidden = 0x02;
inline constexpr std::uint32_t kAttributeSystem = 0x04;
inline constexpr std::uint32_t kAttributeDirectory = 0x10;
inline constexpr std::uint32_t kAttributeArchive = 0x20;
inline constexpr std::uint32_t kAttributeNormal = 0x80;

struct DirectoryEntry {
    std::string name;  // bare name, no folder
    std::uint32_t attributes = 0;
    std::uint64_t length = 0;
    bool isFolder() const { return (attributes & kAttributeDirectory) != 0; }
};

// A file opened for sequential reading. read() returns the number of bytes placed in the buffer,
// 0 at the end of the file or after an error; failed() tells the two apart.
class FileReader {
public:
    virtual ~FileReader() = default;
    virtual std::size_t read(void* buffer, std::size_t size) = 0;
    virtual bool failed() const = 0;
};

struct VersionWords {
    std::uint32_t major = 0;
    std::uint32_t minor = 0;
};

// What GetDiskFreeSpaceA reports for a root.
struct DiskSpace {
    std::uint32_t sectorsPerCluster = 0;
    std::uint32_t bytesPerSector = 0;
    std::uint32_t freeClusters = 0;
    std::uint32_t totalClusters = 0;
};

// Registry handles and codes, with the values of the Windows API.
using RegistryKey = std::uintptr_t;
inline constexpr RegistryKey kHkeyClassesRoot = 0x80000000u;
inline constexpr RegistryKey kHkeyCurrentUser = 0x80000001u;
inline constexpr RegistryKey kHkeyLocalMachine = 0x80000002u;
inline constexpr RegistryKey kHkeyUsers = 0x80000003u;
inline constexpr RegistryKey kHkeyPerformanceData = 0x80000004u;
inline constexpr RegistryKey kHkeyCurrentConfig = 0x80000005u;
inline constexpr RegistryKey kHkeyDynData = 0x80000006u;

inline constexpr std::uint32_t kRegNone = 0;
inline constexpr std::uint32_t kRegSz = 1;
inline constexpr std::uint32_t kRegBinary = 3;
inline constexpr std::uint32_t kRegDword = 4;

inline constexpr std::uint32_t kKeyAllAccess = 0xF003F;
inline constexpr std::uint32_t kKeyRead = 0x20019;
inline constexpr std::uint32_t kKeyWrite = 0x20006;

inline constexpr long kErrorSuccess = 0;
inline constexpr long kErrorFileNotFound = 2;
inline constexpr long kErrorAccessDenied = 5;
inline constexpr long kErrorInvalidHandle = 6;
inline constexpr long kErrorInvalidParameter = 87;
inline constexpr long kErrorMoreData = 234;

using ProcessHandle = std::uintptr_t;
enum class WaitResult { Signalled, TimedOut, Failed };

// Window styles of a started program, as the shell numbers them.
inline constexpr int kWindowHidden = 0;
inline constexpr int kWindowNormalFocus = 1;

class Host {
public:
    virtual ~Host() = default;

    // ---- Files and folders
    // Lists what `pattern` matches: a folder path whose last component may hold "*" and "?".
    // A pattern that names a folder without wildcards lists that folder's entry itself, as Dir$
    // does. Folders (with "." and "..", where the pattern matches them) come only with
    // includeFolders. Order is the file system's own. Errors give an empty list.
    virtual std::vector<DirectoryEntry> listDirectory(const std::string& pattern, bool includeFolders) = 0;
    // The same listing for walks, which need names, lengths and the folder bit only: every other
    // attribute reads as 0, which spares a host that keeps them apart from the file a call per entry.
    virtual std::vector<DirectoryEntry> listDirectoryLengths(const std::string& pattern,
                                                             bool includeFolders) {
        auto entries = listDirectory(pattern, includeFolders);
        for (auto& entry : entries) entry.attributes &= kAttributeDirectory;
        return entries;
    }
    virtual std::optional<std::uint64_t> fileLength(const std::string& path) = 0;
    virtual std::optional<std::uint32_t> fileAttributes(const std::string& path) = 0;
    virtual bool setFileAttributes(const std::string& path, std::uint32_t attributes) = 0;
    virtual std::unique_ptr<FileReader> openForReading(const std::string& path) = 0;
    // Writes the whole file beside its place and renames it over the old one, so a crash leaves
    // either the old or the new file.
    virtual bool writeFileAtomic(const std::string& path, std::string_view contents) = 0;
    virtual bool copyFile(const std::string& from, const std::string& to) = 0;    // overwrites
    virtual bool renameFile(const std::string& from, const std::string& to) = 0;  // fails if `to` exists
    virtual bool deleteFile(const std::string& path) = 0;
    virtual bool createFolder(const std::string& path) = 0;  // one level; false if it exists
    // The system's words for why the last createFolder of this host failed, in the ANSI code page;
    // empty when the host cannot tell.
    virtual std::string lastFolderError() { return {}; }
    virtual bool removeFolder(const std::string& path) = 0;  // only an empty folder
    virtual std::optional<DiskSpace> diskSpace(const std::string& root) = 0;

    // ---- Places
    // CSIDL numbers 5, 26, 28, 35, 38, 41, 43 and 56; the folder without a trailing backslash, empty if
    // unknown.
    virtual std::string specialFolder(int csidl) = 0;
    // The folder of the running program, without a trailing backslash.
    virtual std::string applicationFolder() = 0;
    // The process's command line after the program name, as one string; host paths in it are
    // already in their Windows form.
    virtual std::string commandLine() = 0;
    // Between the system's Windows paths (ANSI) and the host's own, in UTF-8 on every host (what file
    // dialogs, Qt and terminals use).
    virtual std::string toHostPath(const std::string& windowsPath) = 0;
    virtual std::string toWindowsPath(const std::string& hostPath) = 0;

    // ---- Registry, with the semantics of the Reg*A calls
    virtual long regCreateKey(RegistryKey root, const std::string& subKey, RegistryKey& result) = 0;
    virtual long regOpenKey(RegistryKey root, const std::string& subKey, std::uint32_t access,
                            RegistryKey& result) = 0;
    // `data` comes in with the size of the caller's buffer; on success it holds the bytes stored
    // (a string's terminating NUL included when the store has one); kErrorMoreData when the buffer
    // is too small.
    virtual long regQueryValue(RegistryKey key, const std::string& name, std::uint32_t& type,
                               std::string& data) = 0;
    virtual long regSetValue(RegistryKey key, const std::string& name, std::uint32_t type,
                             std::string_view data) = 0;
    virtual long regCloseKey(RegistryKey key) = 0;

    // ---- Processes and the shell
    // Starts a command line; the process id, or nothing if it could not start. A batch file runs
    // under the host's command processor.
    virtual std::optional<std::uint32_t> startProcess(const std::string& commandLine, int windowStyle) = 0;
    virtual ProcessHandle openProcess(std::uint32_t processId) = 0;  // 0 on failure
    virtual WaitResult waitForProcess(ProcessHandle process, std::uint32_t milliseconds) = 0;
    virtual void closeProcess(ProcessHandle process) = 0;
    // Executable names of the running processes ("notepad.exe").
    virtual std::vector<std::string> processNames() = 0;
    // ShellExecuteA with an empty verb and folder: above 32 on success, else its error code.
    virtual int shellExecute(const std::string& file, const std::string& parameters, int showCommand) = 0;

    // The platform's own task dialog, where it has one; nothing where it has none or it failed.
    virtual std::optional<NativeTaskDialogAnswer> showTaskDialog(const NativeTaskDialog&) {
        return std::nullopt;
    }

    // ---- The system
    virtual VersionWords versionWords() = 0;
    virtual unsigned ansiCodePage() = 0;
    virtual std::uint64_t tickMilliseconds() = 0;  // monotonic

    // The message pump: long work calls this at its named points so that windows stay alive.
    void setMessagePump(std::function<void()> pump) { messagePump_ = std::move(pump); }
    void processPendingMessages() {
        if (messagePump_) messagePump_();
    }

private:
    std::function<void()> messagePump_;
};

// Settings a host is made with. Empty values take the machine's own; tests fill them to get a
// sandbox of their own.
struct HostConfig {
    std::string applicationFolder;  // Windows path; empty: the executable's folder
    std::string commandLine;        // used instead of the process's, when set
    bool commandLineSet = false;
    // Folder (in the host's own path form) where the POSIX host keeps its simulated C: drive,
    // the registry store and the links of the archivers. Empty: under $XDG_DATA_HOME/Orvanta.
    std::string dataFolder;
    // CSIDL number and Windows path, overriding the host's answer.
    std::vector<std::pair<int, std::string>> specialFolders;
    std::optional<VersionWords> versionWords;
    // POSIX: the search path for `rar` and `7z`; empty: $PATH.
    std::optional<std::string> programSearchPath;
    // Windows: a key below HKEY_CURRENT_USER under which every root is kept, so that tests run
    // against the real registry without touching the machine's keys. Empty: the real roots.
    std::string registrySandboxKey;
    // POSIX: the command processor that runs batch files; empty: "ovcmd" beside the program.
    std::string commandProcessor;
};

std::unique_ptr<Host> createHost(const HostConfig& config = {});

}  // namespace orvanta
