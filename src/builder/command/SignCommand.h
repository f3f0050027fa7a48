#pragma once
// The user's signing command, run on one file at a time.

#include <string>

namespace orvanta {

// A host path quoted for the shell that runs the command: single quotes for a POSIX shell (a
// path beginning with "/"), double quotes for cmd.exe.
std::string quotedForShell(const std::string& hostPath);

// `command` with every "{}" replaced by the quoted path.
std::string signCommandFor(const std::string& command, const std::string& hostPath);

// Runs the command on the file through the shell; an error text naming the file, empty on success.
std::string runSignCommand(const std::string& command, const std::string& hostPath);

}  // namespace orvanta
