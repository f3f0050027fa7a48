#include "ovcmd/TreeCommands.h"

#include <filesystem>

#include "platform/WindowsPath.h"

namespace orvanta {

namespace {

namespace fs = std::filesystem;

struct XcopyJob {
    CommandContext& context;
    const CommandArguments& arguments;
    std::string pattern;  // wildcard for file names
    int copied = 0;
    bool failed = false;
};

bool wanted(XcopyJob& job, const std::string& source, const DirectoryEntry& entry,
            const std::string& target) {
    if (!job.arguments.has("/h") && (entry.attributes & (kAttributeHidden | kAttributeSystem)) != 0)
        return false;
    if (!job.arguments.has("/d")) return true;
    const std::string hostSource = job.context.host.toHostPath(source);
    const std::string hostTarget = job.context.host.toHostPath(target);
    std::error_code error;
    const auto targetTime = fs::last_write_time(hostTarget, error);
    return error || fs::last_write_time(hostSource, error) > targetTime;
}

void ensureFolder(Host& host, const std::string& folder) {
    std::error_code ignored;
    fs::create_directories(host.toHostPath(folder), ignored);
}

// Copies the matching files of one folder, then walks its subfolders.
void copyFolder(XcopyJob& job, const std::string& from, const std::string& to) {
    Host& host = job.context.host;
    const bool makeEmpty = job.arguments.has("/e");
    if (makeEmpty) ensureFolder(host, to);
    for (const auto& entry : host.listDirectory(joinPath(from, job.pattern), false)) {
        const std::string source = joinPath(from, entry.name);
        const std::string target = joinPath(to, entry.name);
        if (!wanted(job, source, entry, target)) continue;
        ensureFolder(host, to);
        if (!host.copyFile(source, target)) {
            job.context.err << "File creation error - " << target << "\n";
            job.failed = true;
            continue;
        }
        job.context.out << source << "\n";
        ++job.copied;
    }
    if (!job.arguments.has("/s") && !makeEmpty) return;
    for (const auto& entry : host.listDirectory(joinPath(from, "*"), true)) {
        if (!entry.isFolder() || entry.name == "." || entry.name == "..") continue;
        copyFolder(job, joinPath(from, entry.name), joinPath(to, entry.name));
    }
}

}  // namespace

int runXcopy(CommandContext& context, const std::vector<std::string>& words) {
    const CommandArguments arguments = splitArguments(words);
    if (arguments.names.empty() || arguments.names.size() > 2) {
        context.err << "Invalid number of parameters\n";
        return 4;
    }
    std::string source = arguments.names[0];
    while (source.size() > 3 && source.back() == '\\') source.pop_back();
    XcopyJob job{context, arguments, "*"};
    const auto attributes = context.host.fileAttributes(source);
    if (!attributes || (*attributes & kAttributeDirectory) == 0) {
        job.pattern = lastComponent(source);
        source = parentFolder(source);
    }
    if (!context.host.fileAttributes(source)) {
        context.err << "File not found - " << arguments.names[0] << "\n";
        return 4;
    }
    const std::string destination = arguments.names.size() > 1 ? arguments.names[1] : ".";
    copyFolder(job, source, destination);
    context.out << job.copied << " File(s) copied\n";
    return job.failed ? 4 : 0;
}

namespace {

void listTree(CommandContext& context, const std::string& folder, const std::string& pattern) {
    Host& host = context.host;
    for (const auto& entry : host.listDirectory(joinPath(folder, pattern), true))
        if (entry.name != "." && entry.name != "..") context.out << joinPath(folder, entry.name) << "\n";
    for (const auto& entry : host.listDirectory(joinPath(folder, "*"), true))
        if (entry.isFolder() && entry.name != "." && entry.name != "..")
            listTree(context, joinPath(folder, entry.name), pattern);
}

}  // namespace

int runDir(CommandContext& context, const std::vector<std::string>& words) {
    const CommandArguments arguments = splitArguments(words);
    if (!arguments.has("/b") || arguments.names.size() > 1) {
        context.err << "dir: only \"dir /b [/s] [path]\" is supported\n";
        return kErrorLevelSyntax;
    }
    std::string path = arguments.names.empty() ? context.host.toWindowsPath(fs::current_path().string())
                                               : arguments.names[0];
    std::string pattern = "*";
    const auto attributes = context.host.fileAttributes(path);
    if (!attributes || (*attributes & kAttributeDirectory) == 0) {
        pattern = lastComponent(path);
        path = parentFolder(path);
    }
    if (arguments.has("/s")) {
        listTree(context, path, pattern);
        return 0;
    }
    const auto entries = context.host.listDirectory(joinPath(path, pattern), true);
    for (const auto& entry : entries)
        if (entry.name != "." && entry.name != "..") context.out << entry.name << "\n";
    if (entries.empty()) {
        context.err << "File Not Found\n";
        return kErrorLevelSyntax;
    }
    return 0;
}

}  // namespace orvanta
