#include "BuildFixture.h"

#include <sstream>

#include "core/commonFunctions.h"

namespace orvanta {

void BuildFixture::SetUp() {
    EditorFixture::SetUp();
    deliver();
    installArchiver();
    fields->setText(ctrl::appAuthor, "Ann");
    fields->setText(ctrl::appVersion, "1.0");
    fields->setText(ctrl::finalPackageName, "Demo Setup %version.exe");
    box.writeFile(rel("files\\demo.exe"), "the application");
}

void BuildFixture::deliver() {
    for (const char* name : {"data\\install", "data\\uninstall", "data\\package", "data\\package2",
                             "data\\install.exe.manifest", "i\\check.png", "i\\ok.png"})
        box.writeFile(std::string("app\\") + name, name);
}

void BuildFixture::installArchiver() {
    Host& host = box.host();
    std::string program = box.programFolder() + "\\fakearchiver";
    if (fileExists(host, program) == kFalse) program += ".exe";
    box.makeFolder("tools");
    tools = box.windowsPath("tools") + "\\";
    ASSERT_TRUE(host.copyFile(program, tools + "7z.exe"));
    ASSERT_TRUE(host.copyFile(program, tools + "rar.exe"));
}

BuildSetup BuildFixture::setupFor(const std::string& compressor) {
    BuildSetup setup;
    setup.compressorChoice = compressor;
    setup.compressionLevel = 3;
    setup.rarFolder = tools;
    setup.sevenZipFolder = tools;
    setup.workspaceFolder = vars::workspaceFolder;
    setup.applicationFolder = box.applicationFolder();
    setup.settingsKey = "HKCU\\Software\\Orvanta\\Settings";
    return setup;
}

std::string BuildFixture::contents(const std::string& path) {
    auto reader = box.host().openForReading(path);
    std::string text;
    char buffer[4096];
    while (reader) {
        const std::size_t got = reader->read(buffer, sizeof buffer);
        if (got == 0) break;
        text.append(buffer, got);
    }
    return text;
}

std::vector<std::string> BuildFixture::archiverCalls() {
    std::istringstream log(box.exists("tools\\archiver.log") ? box.readFile("tools\\archiver.log") : "");
    std::vector<std::string> calls;
    for (std::string line; std::getline(log, line);) calls.push_back(line);
    return calls;
}

}  // namespace orvanta
