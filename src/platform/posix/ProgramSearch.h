#pragma once
// Finding programs the way a POSIX shell does.

#include <string>

namespace orvanta {

// The first executable file `name` in the folders of `searchPath` ("a:b:c", an empty folder
// meaning the current one); empty when there is none.
std::string findProgramOnPath(const std::string& name, const std::string& searchPath);
// The value of $PATH, empty when unset.
std::string environmentSearchPath();
bool isExecutableFile(const std::string& hostPath);
// The folder of the running executable, from /proc/self/exe; "." when it cannot be read.
std::string runningProgramFolder();

}  // namespace orvanta
