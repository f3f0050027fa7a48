// The application files' batch file as the build writes it, its first three lines without their
// closing quote, run by the host's command processor: cmd.exe on Windows and under wine, ovcmd
// elsewhere. The recorded archiver calls are the same on every host.
#include <algorithm>

#include "BuildFixture.h"
#include "builder/BatchFiles.h"
#include "core/modShellAndWait.h"

namespace orvanta {
namespace {

class GeneratedBatchRun : public BuildFixture {
protected:
    // A working folder with a blank in its path, as a workspace below "My Documents" has.
    void SetUp() override {
        BuildFixture::SetUp();
        working = box.windowsPath("My Work\\Demo");
        for (const char* folder : {"files", "packages", "settingsset", "fonts", "compiled"})
            box.makeFolder(std::string("My Work\\Demo\\") + folder);
        box.writeFile("My Work\\Demo\\compiled\\package2.exe", "stub");
    }

    std::vector<std::string> run(ArchiverRoute route) {
        BatchValues values;
        values.workingFolder = working;
        values.workspaceFolder = box.windowsPath("My Work");
        values.archiverFolder = tools;
        values.compressionLevel = 3;
        values.hasFonts = true;
        const std::string batch = values.workspaceFolder + "\\packager.bat";
        EXPECT_TRUE(box.host().writeFileAtomic(batch, batchFileText(applicationBatchLines(route, values))));
        shellAndWait(box.host(), batch, kWindowHidden, 30);
        EXPECT_FALSE(box.host().fileLength(batch)) << "the batch file deletes itself";
        // Windows hands the archiver Windows paths, the command processor of POSIX host paths.
        std::vector<std::string> calls = archiverCalls();
        for (std::string& call : calls) std::replace(call.begin(), call.end(), '\\', '/');
        return calls;
    }

    std::string host(const std::string& relative) { return box.host().toHostPath(working + relative); }

    std::string working;
};

// One recorded call: each argument in brackets, a blank between.
std::string call(const std::vector<std::string>& arguments) {
    std::string line;
    for (const std::string& argument : arguments) line += (line.empty() ? "[" : " [") + argument + "]";
    return line;
}

TEST_F(GeneratedBatchRun, UnclosedQuotesReachTheArchiverAsWholePaths) {
    const std::string sevenZip = host("\\compiled\\package.7z");
    std::vector<std::string> calls;
    for (const char* folder : {"\\files", "\\packages", "\\settingsset", "\\fonts"})
        calls.push_back(call({"a", "-t7z", sevenZip, host(folder)}));
    EXPECT_EQ(run(ArchiverRoute::SevenZip), calls);
    EXPECT_EQ(contents(working + "\\compiled\\package.exe"),
              "stub+files/\n+packages/\n+settingsset/\n+fonts/\n")
        << "copy /b joins the stub and the archive";

    box.host().deleteFile(box.windowsPath("tools\\archiver.log"));
    const std::string rar = host("\\compiled\\package.rar");
    calls.clear();
    for (const char* folder : {"\\files", "\\packages", "\\settingsset", "\\fonts"})
        calls.push_back(call({"a", "-ep1", "-md4096", "-m3", rar, host(folder)}));
    calls.push_back(call({"k", rar}));
    EXPECT_EQ(run(ArchiverRoute::WinRar), calls);
}

}  // namespace
}  // namespace orvanta
