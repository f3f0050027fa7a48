#pragma once

#include <string>

#include "platform/Host.h"

namespace orvanta {

// Starts a command line and waits for it in 250 ms steps, letting pending window messages run
// between steps. maxSeconds 0 waits for ever; when the time runs out the process goes on.
// A command that cannot be started or opened ends the routine silently.
void shellAndWait(Host& host, const std::string& command, int windowStyle, int maxSeconds);

}  // namespace orvanta
