// An archiver for build tests, answering to the names "7z.exe" and "rar.exe". Each call is logged
// as one line in "archiver.log" beside the program. "a" appends a line per added path to the
// archive ("+name" and the size, or "+name/" for a folder); "k" appends "locked". A missing path
// fails the call, as the real archivers do, without touching the archive.
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

namespace fs = std::filesystem;

int main(int argc, char** argv) {
    const fs::path self = fs::absolute(argv[0]);
    std::ofstream log(self.parent_path() / "archiver.log", std::ios::binary | std::ios::app);
    std::vector<std::string> args(argv + 1, argv + argc);
    for (std::size_t i = 0; i < args.size(); ++i) log << (i ? " " : "") << "[" << args[i] << "]";
    log << "\n";
    std::vector<std::string> operands;
    for (std::size_t i = 1; i < args.size(); ++i)
        if (args[i].empty() || args[i][0] != '-') operands.push_back(args[i]);
    if (args.empty() || operands.empty()) return 2;
    std::ofstream archive(operands[0], std::ios::binary | std::ios::app);
    if (args[0] == "k") return archive << "locked\n" ? 0 : 1;
    for (std::size_t i = 1; i < operands.size(); ++i) {
        const fs::path added(operands[i]);
        std::error_code error;
        if (fs::is_directory(added, error))
            archive << "+" << added.filename().string() << "/\n";
        else if (fs::is_regular_file(added, error))
            archive << "+" << added.filename().string() << " " << fs::file_size(added, error) << "\n";
        else
            return 1;
    }
    return archive ? 0 : 1;
}
