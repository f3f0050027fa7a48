#pragma once
// What the main executable field keeps of a picked file: its path relative to the folder of the
// application's files.

#include <string>

namespace orvanta {

// The part of `picked` behind `filesFolder` and its backslash, the folder found in any case, as
// Windows paths are. A file outside the folder keeps only its name: the field names a file below
// "\files", and the pre-build check will say that it is not there.
std::string mainExecutableName(const std::string& picked, const std::string& filesFolder);

}  // namespace orvanta
