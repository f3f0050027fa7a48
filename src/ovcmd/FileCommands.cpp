#include "ovcmd/FileCommands.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <filesystem>

#include "platform/CaseFolding.h"
#include "platform/WindowsPath.h"
#include "platform/posix/AtomicFile.h"

namespace orvanta {

namespace {

namespace fs = std::filesystem;

bool isFolder(const std::string& hostPath) {
    std::error_code ignored;
    return !hostPath.empty() && fs::is_directory(hostPath, ignored);
}

bool isFile(const std::string& hostPath) {
    std::error_code ignored;
    return !hostPath.empty() && fs::is_regular_file(hostPath, ignored);
}

bool appendFile(int target, const std::string& hostSource) {
    const int source = ::open(hostSource.c_str(), O_RDONLY | O_CLOEXEC);
    if (source < 0) return false;
    std::array<char, 1 << 16> buffer{};
    bool ok = true;
    while (ok) {
        const ssize_t got = ::read(source, buffer.data(), buffer.size());
        if (got == 0) break;
        ok = got > 0 && writeAll(target, buffer.data(), static_cast<std::size_t>(got));
    }
    ::close(source);
    return ok;
}

// The sources of "a + b + c dest" and the destination ("" when none was given).
bool splitCopyOperands(const std::vector<std::string>& names, std::vector<std::string>& sources,
                       std::string& destination) {
    std::size_t i = 0;
    bool wantsSource = true;
    while (i < names.size() && wantsSource) {
        if (names[i] == "+") return false;
        sources.push_back(names[i++]);
        wantsSource = i < names.size() && names[i] == "+";
        if (wantsSource) ++i;
    }
    if (wantsSource) return false;
    if (i < names.size()) destination = names[i++];
    return i == names.size() && !sources.empty();
}

}  // namespace

int runCopy(CommandContext& context, const std::vector<std::string>& words) {
    std::vector<std::string> sources;
    std::string destination;
    if (!splitCopyOperands(splitArguments(words).names, sources, destination)) {
        context.err << "The syntax of the command is incorrect.\n";
        return kErrorLevelSyntax;
    }
    std::vector<std::string> hostSources;
    for (const auto& source : sources)
        for (const auto& file : expandWildcard(context.host, source)) {
            const std::string hostPath = context.host.toHostPath(file);
            if (!isFile(hostPath)) continue;
            hostSources.push_back(hostPath);
        }
    if (hostSources.empty()) {
        context.err << "The system cannot find the file specified.\n";
        return kErrorLevelSyntax;
    }
    if (destination.empty()) destination = lastComponent(sources.front());
    std::string hostTarget = context.host.toHostPath(destination);
    if (isFolder(hostTarget)) hostTarget += "/" + fs::path(hostSources.front()).filename().string();
    const bool copied = !hostTarget.empty() && replaceFileAtomically(hostTarget, [&](int fd) {
        for (const auto& source : hostSources)
            if (!appendFile(fd, source)) return false;
        return true;
    });
    if (!copied) {
        context.err << "The system cannot find the path specified.\n";
        return kErrorLevelSyntax;
    }
    context.out << "        1 file(s) copied.\n";
    return 0;
}

int runDelete(CommandContext& context, const std::vector<std::string>& words) {
    const CommandArguments arguments = splitArguments(words);
    if (arguments.names.empty()) {
        context.err << "The syntax of the command is incorrect.\n";
        return kErrorLevelSyntax;
    }
    for (const auto& name : arguments.names) {
        const std::string hostPath = context.host.toHostPath(name);
        const std::string pattern = isFolder(hostPath) ? joinPath(name, "*") : name;
        const auto files = expandWildcard(context.host, pattern);
        bool found = false;
        for (const auto& file : files) {
            const auto attributes = context.host.fileAttributes(file);
            if (!attributes || (*attributes & kAttributeDirectory) != 0) continue;
            found = true;
            const bool readOnly = (*attributes & kAttributeReadOnly) != 0;
            if (readOnly && !arguments.has("/f")) {
                context.err << "Access is denied.\n";
                continue;
            }
            if (readOnly) context.host.setFileAttributes(file, *attributes & ~kAttributeReadOnly);
            if (!context.host.deleteFile(file)) context.err << "Could not delete " << file << "\n";
        }
        if (!found && !isFolder(hostPath)) context.err << "Could Not Find " << name << "\n";
    }
    return 0;
}

int runRemoveFolder(CommandContext& context, const std::vector<std::string>& words) {
    const CommandArguments arguments = splitArguments(words);
    if (arguments.names.empty()) {
        context.err << "The syntax of the command is incorrect.\n";
        return kErrorLevelSyntax;
    }
    int level = 0;
    for (const auto& name : arguments.names) {
        const std::string hostPath = context.host.toHostPath(name);
        std::error_code error;
        if (!isFolder(hostPath)) {
            context.err << "The system cannot find the file specified.\n";
            level = kErrorLevelNotFound;
        } else if (arguments.has("/s")) {
            fs::remove_all(hostPath, error);
        } else if (!fs::is_empty(hostPath, error)) {
            context.err << "The directory is not empty.\n";
            level = kErrorLevelSyntax;
        } else {
            fs::remove(hostPath, error);
        }
        if (error) {
            context.err << "Access is denied.\n";
            level = kErrorLevelSyntax;
        }
    }
    return level;
}

int runMakeFolder(CommandContext& context, const std::vector<std::string>& words) {
    const CommandArguments arguments = splitArguments(words);
    int level = arguments.names.empty() ? kErrorLevelSyntax : 0;
    for (const auto& name : arguments.names) {
        const std::string hostPath = context.host.toHostPath(name);
        std::error_code error;
        if (!hostPath.empty() && fs::exists(hostPath, error)) {
            context.err << "A subdirectory or file " << name << " already exists.\n";
            level = kErrorLevelSyntax;
        } else if (hostPath.empty() || !fs::create_directories(hostPath, error)) {
            context.err << "The system cannot find the path specified.\n";
            level = kErrorLevelSyntax;
        }
    }
    return level;
}

namespace {

struct AttributeChange {
    std::uint32_t set = 0;
    std::uint32_t clear = 0;
};

bool parseAttributeChange(const std::string& word, AttributeChange& change) {
    if (word.size() != 2 || (word[0] != '+' && word[0] != '-')) return false;
    static const std::array<std::pair<char, std::uint32_t>, 4> kLetters = {{{'r', kAttributeReadOnly},
                                                                            {'h', kAttributeHidden},
                                                                            {'s', kAttributeSystem},
                                                                            {'a', kAttributeArchive}}};
    for (const auto& [letter, bit] : kLetters)
        if (toLowerCase(word.substr(1)) == std::string(1, letter)) {
            (word[0] == '+' ? change.set : change.clear) |= bit;
            return true;
        }
    return false;
}

}  // namespace

int runAttrib(CommandContext& context, const std::vector<std::string>& words) {
    AttributeChange change;
    std::vector<std::string> names;
    for (const auto& word : splitArguments(words).names)
        if (!parseAttributeChange(word, change)) names.push_back(word);
    int level = 0;
    for (const auto& name : names) {
        const auto files = expandWildcard(context.host, name);
        for (const auto& file : files) {
            const auto attributes = context.host.fileAttributes(file);
            if (!attributes) {
                context.err << "File not found - " << file << "\n";
                level = kErrorLevelSyntax;
                continue;
            }
            context.host.setFileAttributes(file, (*attributes | change.set) & ~change.clear);
        }
    }
    return level;
}

}  // namespace orvanta
