#include "builder/BuildSteps.h"

#include "core/commonFunctions.h"

namespace orvanta {

bool BuildSteps::exists(const std::string& path) {
    return host_.fileLength(path).has_value();
}

void BuildSteps::copy(const std::string& step, const std::string& from, const std::string& to) {
    if (host_.copyFile(from, to)) return;
    if (!exists(from)) throw BuildStopped{step, "The file " + from + " is missing. Reinstall Orvanta."};
    throw BuildStopped{step, "The file " + from + " could not be copied to " + to +
                                 ". Is that file open in another program?"};
}

void BuildSteps::ensureFolder(const std::string& step, const std::string& folder) {
    if (folderExists(host_, folder) == kTrue || host_.createFolder(folder)) return;
    const std::string why = host_.lastFolderError();
    throw BuildStopped{step,
                       "The folder " + folder + " could not be created" + (why.empty() ? "." : ": " + why)};
}

void BuildSteps::write(const std::string& step, const std::string& path, const std::string& text) {
    if (!host_.writeFileAtomic(path, text))
        throw BuildStopped{step, "The file " + path + " could not be written."};
}

void BuildSteps::rename(const std::string& step, const std::string& from, const std::string& to) {
    if (host_.renameFile(from, to)) return;
    if (!exists(from)) throw BuildStopped{step, "The archiver did not make " + from + "."};
    if (exists(to))
        throw BuildStopped{step, "The file " + to +
                                     " is left from an earlier build and stands in the way. Delete it "
                                     "and package again."};
    throw BuildStopped{step, "The file " + from + " could not be renamed to " + to + "."};
}

void BuildSteps::remove(const std::string& step, const std::string& path) {
    if (!host_.deleteFile(path))
        throw BuildStopped{step,
                           "The file " + path + " could not be replaced. Is the package still running?"};
}

void BuildSteps::requireOutput(const std::string& step, const std::string& path) {
    if (!exists(path)) throw BuildStopped{step, "The archiver did not make " + path + "."};
}

void BuildSteps::requireGrowth(const std::string& step, const std::string& archive,
                               std::optional<std::uint64_t> before) {
    requireOutput(step, archive);
    if (before && *host_.fileLength(archive) <= *before)
        throw BuildStopped{step, "The archiver added nothing to " + archive + "."};
}

}  // namespace orvanta
