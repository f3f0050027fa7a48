#pragma once
// Small shell scripts that stand in for real programs in the sandbox.

#include <filesystem>
#include <fstream>
#include <string>

namespace orvanta::testing {

inline std::filesystem::path writeFakeProgram(const std::filesystem::path& path, const std::string& body) {
    std::filesystem::create_directories(path.parent_path());
    std::ofstream(path) << "#!/bin/sh\n" << body << "\n";
    std::filesystem::permissions(path, std::filesystem::perms::owner_all, std::filesystem::perm_options::add);
    return path;
}

}  // namespace orvanta::testing
