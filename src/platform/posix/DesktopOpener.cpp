#include "platform/posix/DesktopOpener.h"

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <vector>

#include "platform/posix/ProgramSearch.h"

extern char** environ;

namespace orvanta {

namespace {

inline constexpr int kOpened = 42;
inline constexpr int kFileNotFound = 2;
inline constexpr int kNoApplication = 31;

// xdg-open's exit status 2 means "file not found"; 1, 3 and 4 mean it found nothing to open with.
int shellCodeOf(int exitStatus) {
    if (exitStatus == 0) return kOpened;
    return exitStatus == 2 ? kFileNotFound : kNoApplication;
}

// Starts a shell that leaves the opener running on its own and ends at once, so the opener is
// never a child of ours to reap; the opener's exit status comes back through `statusFd`.
bool startDetachedOpener(const std::string& target, int statusFd) {
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, statusFd, STDOUT_FILENO);
    std::string shell = "/bin/sh", option = "-c", name = "sh", argument = target;
    std::string script = "(xdg-open \"$1\" >/dev/null 2>&1; echo $?) &";
    std::vector<char*> argv{shell.data(), option.data(),   script.data(),
                            name.data(),  argument.data(), nullptr};
    pid_t pid = 0;
    const bool started = ::posix_spawn(&pid, argv[0], &actions, nullptr, argv.data(), environ) == 0;
    posix_spawn_file_actions_destroy(&actions);
    if (started)
        while (::waitpid(pid, nullptr, 0) < 0 && errno == EINTR) {
        }
    return started;
}

// The exit status the opener wrote, or nothing when it is still running after `verdictTime`.
std::optional<int> readStatus(int fd, std::chrono::milliseconds verdictTime) {
    pollfd ready{fd, POLLIN, 0};
    std::string text;
    const auto deadline = std::chrono::steady_clock::now() + verdictTime;
    while (true) {
        const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(
            deadline - std::chrono::steady_clock::now());
        if (left.count() <= 0) return std::nullopt;
        const int polled = ::poll(&ready, 1, static_cast<int>(left.count()));
        if (polled < 0 && errno == EINTR) continue;
        if (polled <= 0) return std::nullopt;
        char buffer[16];
        const ssize_t got = ::read(fd, buffer, sizeof buffer);
        if (got < 0 && errno == EINTR) continue;
        if (got <= 0) break;
        text.append(buffer, static_cast<std::size_t>(got));
    }
    if (text.empty()) return std::nullopt;
    return std::atoi(text.c_str());
}

}  // namespace

int openWithDesktop(const std::string& hostTarget, std::chrono::milliseconds verdictTime) {
    if (findProgramOnPath("xdg-open", environmentSearchPath()).empty()) return kNoApplication;
    int fds[2];
    if (::pipe2(fds, O_CLOEXEC) != 0) return kNoApplication;
    const bool started = startDetachedOpener(hostTarget, fds[1]);
    ::close(fds[1]);
    const std::optional<int> status = started ? readStatus(fds[0], verdictTime) : std::optional<int>(127);
    ::close(fds[0]);
    return status ? shellCodeOf(*status) : kOpened;
}

}  // namespace orvanta
