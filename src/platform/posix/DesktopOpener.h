#pragma once
// Opening a file, folder or address with the desktop's own program (xdg-open), with its failure
// told in the shell's error codes.

#include <chrono>
#include <optional>
#include <string>

namespace orvanta {

// How long the opener is given to say that it failed. Most openers hand the target to a running
// program and end at once; one that keeps running has found a program and counts as a success.
inline constexpr std::chrono::milliseconds kOpenerVerdictTime{2000};

// Runs xdg-open on a host path or address: 42 when it opened it (or still runs), 2 when it says
// the target is missing, 31 for any other failure, and when there is no xdg-open on the path.
int openWithDesktop(const std::string& hostTarget,
                    std::chrono::milliseconds verdictTime = kOpenerVerdictTime);

}  // namespace orvanta
