#pragma once
// The file operations of a build, each of which stops the build with the step and the file
// concerned when it fails.

#include <cstdint>
#include <optional>
#include <string>

#include "platform/Host.h"

namespace orvanta {

struct BuildStopped {
    std::string step;    // the caption of the step
    std::string reason;  // names the file or value concerned
};

class BuildSteps {
public:
    explicit BuildSteps(Host& host) : host_(host) {}

    // Copies over whatever is there; the copy appears whole or not at all.
    void copy(const std::string& step, const std::string& from, const std::string& to);
    void ensureFolder(const std::string& step, const std::string& folder);
    void write(const std::string& step, const std::string& path, const std::string& text);
    void rename(const std::string& step, const std::string& from, const std::string& to);
    void remove(const std::string& step, const std::string& path);
    // A file the archiver was to make.
    void requireOutput(const std::string& step, const std::string& path);
    // An archive the archiver was to make or add to: it exists and is longer than `before`.
    void requireGrowth(const std::string& step, const std::string& archive,
                       std::optional<std::uint64_t> before);

private:
    bool exists(const std::string& path);

    Host& host_;
};

}  // namespace orvanta
