#include "core/modShellAndWait.h"

namespace orvanta {

void shellAndWait(Host& host, const std::string& command, int windowStyle, int maxSeconds) {
    const auto processId = host.startProcess(command, windowStyle);
    if (!processId) return;
    host.processPendingMessages();
    const ProcessHandle process = host.openProcess(*processId);
    if (process == 0) return;
    const std::uint64_t start = host.tickMilliseconds();
    while (host.waitForProcess(process, 250) == WaitResult::TimedOut) {
        host.processPendingMessages();
        const std::uint64_t elapsed = host.tickMilliseconds() - start;
        if (maxSeconds > 0 && elapsed > static_cast<std::uint64_t>(maxSeconds) * 1000) break;
    }
    host.closeProcess(process);
}

}  // namespace orvanta
