#include "platform/posix/AtomicFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <vector>

namespace orvanta {

namespace {

std::string folderOf(const std::string& path) {
    const auto cut = path.rfind('/');
    if (cut == std::string::npos) return ".";
    return cut == 0 ? "/" : path.substr(0, cut);
}

// A fresh, unused name beside the target; the descriptor is open for writing.
int createTemporary(const std::string& target, std::string& name) {
    std::vector<char> pattern(target.begin(), target.end());
    for (char c : std::string_view(".~ovtmp-XXXXXX")) pattern.push_back(c);
    pattern.push_back('\0');
    const int fd = ::mkostemp(pattern.data(), O_CLOEXEC);
    if (fd >= 0) name.assign(pattern.data());
    return fd;
}

// The rename itself is only durable once the folder's entry is on disk.
void syncFolder(const std::string& folder) {
    const int fd = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (fd < 0) return;
    ::fsync(fd);
    ::close(fd);
}

}  // namespace

bool writeAll(int fd, const char* data, std::size_t size) {
    while (size > 0) {
        const ssize_t done = ::write(fd, data, size);
        if (done < 0) {
            if (errno == EINTR) continue;
            return false;
        }
        data += done;
        size -= static_cast<std::size_t>(done);
    }
    return true;
}

bool replaceFileAtomically(const std::string& target, const FileFiller& fill, unsigned mode) {
    std::string temporary;
    const int fd = createTemporary(target, temporary);
    if (fd < 0) return false;
    struct stat old {};
    mode_t wanted = static_cast<mode_t>(mode);
    if (::stat(target.c_str(), &old) == 0) {
        wanted = old.st_mode & 07777;
    } else {
        const mode_t mask = ::umask(0);
        ::umask(mask);
        wanted &= ~mask;
    }
    const bool written = fill(fd) && ::fchmod(fd, wanted) == 0 && ::fsync(fd) == 0;
    const bool closed = ::close(fd) == 0;
    if (!written || !closed || std::rename(temporary.c_str(), target.c_str()) != 0) {
        ::unlink(temporary.c_str());
        return false;
    }
    syncFolder(folderOf(target));
    return true;
}

bool replaceFileAtomically(const std::string& target, std::string_view contents, unsigned mode) {
    return replaceFileAtomically(
        target, [contents](int fd) { return writeAll(fd, contents.data(), contents.size()); }, mode);
}

}  // namespace orvanta
