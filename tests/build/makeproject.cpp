// Makes the project that the end-to-end build tests pack: "Demo" in the workspace given as a host
// path, saved the way the editor saves it, with application files in nested folders, a font, an
// optional package, a root any-file, bytes of every value, and an edition.
#include <cstdio>
#include <string>

#include "core/vars.h"
#include "platform/Host.h"
#include "project/EditorControls.h"
#include "project/MemoryProjectFields.h"
#include "project/ProjectIndex.h"
#include "project/ProjectSaver.h"
#include "project/WorkingSetIndex.h"
#include "support/ScriptedDialogs.h"

namespace {

using namespace orvanta;

bool write(Host& host, const std::string& path, const std::string& contents) {
    if (host.writeFileAtomic(path, contents)) return true;
    std::fprintf(stderr, "makeproject: cannot write %s\n", path.c_str());
    return false;
}

std::string everyByte() {
    std::string bytes;
    for (int round = 0; round < 64; ++round)
        for (int value = 0; value < 256; ++value) bytes += static_cast<char>((value * 7 + round) & 0xff);
    return bytes;
}

bool writeContent(Host& host, const std::string& root) {
    host.createFolder(root + "\\files\\bin");
    host.createFolder(root + "\\files\\bin\\deep folder");
    host.createFolder(root + "\\fonts");
    return write(host, root + "\\files\\demo.exe", "the application") &&
           write(host, root + "\\files\\readme.txt", "Read me.\r\n") &&
           write(host, root + "\\files\\bin\\data.bin", everyByte()) &&
           write(host, root + "\\files\\bin\\deep folder\\empty.txt", "") &&
           write(host, root + "\\packages\\extra.txt", "an optional package") &&
           write(host, root + "\\fonts\\demo.ttf", "a font") &&
           write(host, root + "\\cleanup.bat", "@echo cleaning\r\n");
}

void fillEditor(MemoryProjectFields& fields, const std::string& root) {
    fields.setText(ctrl::appName, "Demo");
    fields.setText(ctrl::workingFolder, root);
    fields.setText(ctrl::appAuthor, "Ann Example");
    fields.setText(ctrl::appVersion, "1.0");
    fields.setText(ctrl::finalPackageName, "Demo Setup %version.exe");
    fields.setValue(ctrl::Check23, 1);
    fields.setText(ctrl::mainExecutable, "demo.exe");
    fields.setText(ctrl::installPath, "Program Files\\Demo");
    fields.setText(ctrl::anyFile, "cleanup.bat");
    fields.addListItem(ctrl::fonts, "demo.ttf", false);
    // Each option group written, so that no line of "mainsettings.cfg" is left out.
    fields.setValue(ctrl::Option3, 1);
    fields.setValue(ctrl::Option4, 1);
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fprintf(stderr, "usage: makeproject WORKSPACE_FOLDER\n");
        return 2;
    }
    const auto host = createHost();
    vars::workspaceFolder = host->toWindowsPath(argv[1]);
    if (const auto failed = createProjectTree(*host, vars::workspaceFolder, "Demo")) {
        std::fprintf(stderr, "makeproject: %s\n", folderFailureText(*failed).c_str());
        return 1;
    }
    const std::string root = vars::workspaceFolder + "\\myinstallers\\Demo";
    if (!writeContent(*host, root)) return 1;
    MemoryProjectFields fields(host.get());
    fillEditor(fields, root);
    orvanta::testing::ScriptedDialogs dialogs;
    EditorContext context{*host, dialogs, fields, [] { return 0.0; }};
    if (project_saver(context) != SaveOutcome::Saved) {
        std::fprintf(stderr, "makeproject: the project could not be saved\n");
        return 1;
    }
    // An edition "Pro" with an application of its own.
    createWorkingSet(*host, {root, "Demo", "", "", "cleanup.bat"}, "Pro", "");
    host->createFolder(root + "\\editions\\Pro\\files");
    if (!write(*host, root + "\\editions\\Pro\\files\\demo.exe", "the Pro application")) return 1;
    std::printf("%s\n", host->toHostPath(root).c_str());
    return 0;
}
