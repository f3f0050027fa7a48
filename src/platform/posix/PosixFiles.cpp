// Files and folders of the POSIX host, with the results of the Windows calls they stand for.
#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <limits>

#include "platform/AnsiText.h"
#include "platform/CaseFolding.h"
#include "platform/WindowsPath.h"
#include "platform/posix/AtomicFile.h"
#include "platform/posix/DosAttributes.h"
#include "platform/posix/PosixHost.h"

namespace orvanta {

namespace {

std::optional<struct stat> statOf(const std::string& hostPath) {
    struct stat info {};
    if (hostPath.empty() || ::stat(hostPath.c_str(), &info) != 0) return std::nullopt;
    return info;
}

bool isReadOnly(const struct stat& info) {
    return !S_ISDIR(info.st_mode) && (info.st_mode & S_IWUSR) == 0;
}

std::uint32_t attributesOf(const std::string& hostPath, const struct stat& info) {
    std::uint32_t attributes = S_ISDIR(info.st_mode) ? kAttributeDirectory : kAttributeArchive;
    if (isReadOnly(info)) attributes |= kAttributeReadOnly;
    return attributes | readDosAttributes(hostPath);
}

DirectoryEntry entryOf(std::string name, const std::string& hostPath, const struct stat& info,
                       bool dosAttributes) {
    const bool folder = S_ISDIR(info.st_mode);
    const std::uint32_t attributes =
        dosAttributes ? attributesOf(hostPath, info) : (folder ? kAttributeDirectory : 0);
    return {std::move(name), attributes, folder ? 0 : static_cast<std::uint64_t>(info.st_size)};
}

bool isDots(const std::string& name) {
    return name == "." || name == "..";
}

// NTFS lists "." and ".." first and the rest in name order, ignoring case.
bool listingOrder(const DirectoryEntry& a, const DirectoryEntry& b) {
    if (isDots(a.name) != isDots(b.name)) return isDots(a.name);
    const int order = compareIgnoringCase(a.name, b.name);
    return order != 0 ? order < 0 : a.name < b.name;
}

// "C:\", "Z:\" and "\" have no "." and ".." entries on Windows.
bool isDriveRoot(std::string folder) {
    while (!folder.empty() && folder.back() == '\\') folder.pop_back();
    return folder.empty() || (folder.size() == 2 && folder[1] == ':');
}

class PosixFileReader : public FileReader {
public:
    explicit PosixFileReader(int fd) : fd_(fd) {}
    ~PosixFileReader() override { ::close(fd_); }
    PosixFileReader(const PosixFileReader&) = delete;
    PosixFileReader& operator=(const PosixFileReader&) = delete;

    std::size_t read(void* buffer, std::size_t size) override {
        while (!failed_) {
            const ssize_t got = ::read(fd_, buffer, size);
            if (got >= 0) return static_cast<std::size_t>(got);
            failed_ = errno != EINTR;
        }
        return 0;
    }
    bool failed() const override { return failed_; }

private:
    int fd_;
    bool failed_ = false;
};

// Windows refuses to overwrite a read-only file or a folder.
bool mayReplace(const std::string& hostPath) {
    const auto existing = statOf(hostPath);
    return !existing || (!S_ISDIR(existing->st_mode) && !isReadOnly(*existing));
}

// CopyFile gives the copy the source's attributes and time of last write.
void copyMetadata(const std::string& from, const struct stat& source, const std::string& to) {
    ::chmod(to.c_str(), source.st_mode & 07777);
    const struct timespec times[2] = {source.st_atim, source.st_mtim};
    ::utimensat(AT_FDCWD, to.c_str(), times, 0);
    writeDosAttributes(to, readDosAttributes(from));
}

}  // namespace

std::vector<DirectoryEntry> PosixHost::listDirectory(const std::string& pattern, bool includeFolders) {
    return listEntries(pattern, includeFolders, true);
}

std::vector<DirectoryEntry> PosixHost::listDirectoryLengths(const std::string& pattern, bool includeFolders) {
    return listEntries(pattern, includeFolders, false);
}

std::vector<DirectoryEntry> PosixHost::listEntries(const std::string& pattern, bool includeFolders,
                                                   bool dosAttributes) {
    const std::string windowsPattern = withBackslashes(pattern);
    const std::string last = lastComponent(windowsPattern);
    if (last.empty()) return {};
    if (!hasWildcard(last)) return listNamed(windowsPattern, includeFolders, dosAttributes);
    const std::string folder = windowsPattern.substr(0, windowsPattern.size() - last.size());
    return listMatching(folder, last, includeFolders, dosAttributes);
}

// Without wildcards the pattern names one entry, given back under its name on disk.
std::vector<DirectoryEntry> PosixHost::listNamed(const std::string& path, bool includeFolders,
                                                 bool dosAttributes) {
    const std::string hostPath = toHostPath(path);
    const auto info = statOf(hostPath);
    if (!info || (S_ISDIR(info->st_mode) && !includeFolders)) return {};
    return {entryOf(lastComponent(toWindowsPath(hostPath)), hostPath, *info, dosAttributes)};
}

std::vector<DirectoryEntry> PosixHost::listMatching(const std::string& folder, const std::string& wildcard,
                                                    bool includeFolders, bool dosAttributes) {
    std::vector<DirectoryEntry> entries;
    const std::string hostFolder = folder.empty() ? "." : toHostPath(folder);
    DIR* directory = hostFolder.empty() ? nullptr : ::opendir(hostFolder.c_str());
    if (directory == nullptr) return entries;
    const bool root = !folder.empty() && isDriveRoot(folder);
    std::vector<std::string> names, hostNames;
    while (const dirent* item = ::readdir(directory)) {
        std::string name = utf8ToWindows1252(item->d_name);
        if ((root && isDots(name)) || !matchesWildcard(name, wildcard)) continue;
        names.push_back(std::move(name));
        hostNames.emplace_back(item->d_name);
    }
    // Relative to the open folder, which spares the kernel a walk of the whole path.
    const std::vector<EntryStat> stats = folderStats_.statAll(::dirfd(directory), hostNames);
    entries.reserve(names.size());
    for (std::size_t index = 0; index < names.size(); ++index) {
        const struct stat& info = stats[index].info;
        if (!stats[index].found || (S_ISDIR(info.st_mode) && !includeFolders)) continue;
        const std::string hostPath = dosAttributes ? hostFolder + "/" + hostNames[index] : std::string();
        entries.push_back(entryOf(std::move(names[index]), hostPath, info, dosAttributes));
    }
    ::closedir(directory);
    std::sort(entries.begin(), entries.end(), listingOrder);
    return entries;
}

std::optional<std::uint64_t> PosixHost::fileLength(const std::string& path) {
    const auto info = statOf(toHostPath(path));
    if (!info || S_ISDIR(info->st_mode)) return std::nullopt;
    return static_cast<std::uint64_t>(info->st_size);
}

std::optional<std::uint32_t> PosixHost::fileAttributes(const std::string& path) {
    const std::string hostPath = toHostPath(path);
    const auto info = statOf(hostPath);
    if (!info) return std::nullopt;
    return attributesOf(hostPath, *info);
}

bool PosixHost::setFileAttributes(const std::string& path, std::uint32_t attributes) {
    const std::string hostPath = toHostPath(path);
    const auto info = statOf(hostPath);
    if (!info) return false;
    writeDosAttributes(hostPath, attributes);
    // A folder's read-only bit means nothing to Windows programs, and here it would lock the folder.
    if (S_ISDIR(info->st_mode)) return true;
    mode_t mode = info->st_mode & 07777;
    mode = (attributes & kAttributeReadOnly) ? (mode & ~mode_t{0222}) : (mode | S_IWUSR);
    return ::chmod(hostPath.c_str(), mode) == 0;
}

std::unique_ptr<FileReader> PosixHost::openForReading(const std::string& path) {
    const std::string hostPath = toHostPath(path);
    const auto info = statOf(hostPath);
    if (!info || S_ISDIR(info->st_mode)) return nullptr;
    const int fd = ::open(hostPath.c_str(), O_RDONLY | O_CLOEXEC);
    if (fd < 0) return nullptr;
    return std::make_unique<PosixFileReader>(fd);
}

bool PosixHost::writeFileAtomic(const std::string& path, std::string_view contents) {
    const std::string hostPath = toHostPath(path);
    if (hostPath.empty() || !mayReplace(hostPath)) return false;
    const std::uint32_t kept = readDosAttributes(hostPath);
    if (!replaceFileAtomically(hostPath, contents)) return false;
    writeDosAttributes(hostPath, kept);
    return true;
}

bool PosixHost::copyFile(const std::string& from, const std::string& to) {
    const std::string source = toHostPath(from), target = toHostPath(to);
    const auto info = statOf(source);
    auto reader = openForReading(from);
    if (!info || !reader || target.empty() || !mayReplace(target)) return false;
    const bool copied = replaceFileAtomically(target, [&](int fd) {
        std::vector<char> buffer(1 << 16);
        while (const std::size_t got = reader->read(buffer.data(), buffer.size()))
            if (!writeAll(fd, buffer.data(), got)) return false;
        return !reader->failed();
    });
    if (copied) copyMetadata(source, *info, target);
    return copied;
}

bool PosixHost::renameFile(const std::string& from, const std::string& to) {
    const std::string source = toHostPath(from);
    std::string target = toHostPath(to);
    const auto sourceInfo = statOf(source);
    const auto targetInfo = statOf(target);
    if (!sourceInfo || target.empty()) return false;
    if (targetInfo) {
        // The target found ignoring case is the source itself: Windows renames to the new spelling.
        const bool sameEntry =
            targetInfo->st_dev == sourceInfo->st_dev && targetInfo->st_ino == sourceInfo->st_ino;
        if (!sameEntry) return false;
        target =
            target.substr(0, target.rfind('/') + 1) + windows1252ToUtf8(lastComponent(withBackslashes(to)));
    }
    if (std::rename(source.c_str(), target.c_str()) == 0) return true;
    // Across file systems MoveFile copies a file and deletes the original.
    return errno == EXDEV && S_ISREG(sourceInfo->st_mode) && copyFile(from, to) && deleteFile(from);
}

bool PosixHost::deleteFile(const std::string& path) {
    const std::string hostPath = toHostPath(path);
    const auto info = statOf(hostPath);
    if (!info || S_ISDIR(info->st_mode) || isReadOnly(*info)) return false;
    return ::unlink(hostPath.c_str()) == 0;
}

bool PosixHost::createFolder(const std::string& path) {
    const std::string hostPath = toHostPath(path);
    if (hostPath.empty()) {
        lastFolderError_ = "The path lies on no drive of this system.";
        return false;
    }
    if (::mkdir(hostPath.c_str(), 0777) == 0) return true;
    lastFolderError_ = utf8ToAnsi(std::strerror(errno));
    return false;
}

bool PosixHost::removeFolder(const std::string& path) {
    const std::string hostPath = toHostPath(path);
    const auto info = statOf(hostPath);
    return info && S_ISDIR(info->st_mode) && ::rmdir(hostPath.c_str()) == 0;
}

// Sectors of 512 bytes; the cluster grows until the counts fit in 32 bits, so that the product
// of the four fields stays the true size even on disks beyond what the old call could describe.
std::optional<DiskSpace> PosixHost::diskSpace(const std::string& root) {
    const std::string hostPath = toHostPath(root);
    struct statvfs info {};
    if (hostPath.empty() || ::statvfs(hostPath.c_str(), &info) != 0) return std::nullopt;
    constexpr std::uint64_t kSector = 512;
    constexpr std::uint64_t kMaxCount = std::numeric_limits<std::uint32_t>::max();
    const std::uint64_t blockBytes = std::max<std::uint64_t>(info.f_frsize, 1);
    const std::uint64_t totalBytes = static_cast<std::uint64_t>(info.f_blocks) * blockBytes;
    const std::uint64_t freeBytes = static_cast<std::uint64_t>(info.f_bavail) * blockBytes;
    std::uint64_t clusterBytes = std::max(blockBytes, kSector) / kSector * kSector;
    while (totalBytes / clusterBytes > kMaxCount && clusterBytes < (kMaxCount + 1) * kSector / 2)
        clusterBytes *= 2;
    DiskSpace space;
    space.bytesPerSector = static_cast<std::uint32_t>(kSector);
    space.sectorsPerCluster = static_cast<std::uint32_t>(clusterBytes / kSector);
    space.freeClusters = static_cast<std::uint32_t>(std::min(freeBytes / clusterBytes, kMaxCount));
    space.totalClusters = static_cast<std::uint32_t>(std::min(totalBytes / clusterBytes, kMaxCount));
    return space;
}

}  // namespace orvanta
