#include "builder/command/BuildOptions.h"

namespace orvanta {

namespace {

ParsedOptions refuse(const std::string& error) {
    return {std::nullopt, error};
}

// "--name VALUE" and "--name=VALUE" are both taken.
bool takeValue(const std::vector<std::string>& arguments, std::size_t& at, const std::string& name,
               std::string& value) {
    const std::string& argument = arguments[at];
    if (argument == name) {
        if (at + 1 >= arguments.size()) return false;
        value = arguments[++at];
        return true;
    }
    value = argument.substr(name.size() + 1);
    return true;
}

std::string optionName(const std::string& argument) {
    return argument.substr(0, argument.find('='));
}

}  // namespace

ParsedOptions parseBuildOptions(const std::vector<std::string>& arguments) {
    BuildOptions options;
    bool editionGiven = false;
    bool versionGiven = false;
    for (std::size_t at = 0; at < arguments.size(); ++at) {
        const std::string& argument = arguments[at];
        const std::string name = optionName(argument);
        std::string value;
        if (argument == "--help" || argument == "-h") {
            options.help = true;
        } else if (argument == "--verbose") {
            options.verbose = true;
        } else if (argument == "--reproducible") {
            options.reproducible = true;
        } else if (name == "--edition" || name == "--version" || name == "--compressor" ||
                   name == "--level" || name == "--sign-command" || name == "--screens") {
            if (!takeValue(arguments, at, name, value)) return refuse(name + " needs a value.");
            if (name == "--edition") {
                options.edition = value;
                editionGiven = true;
            } else if (name == "--version") {
                options.version = value;
                versionGiven = true;
            } else if (name == "--compressor") {
                if (value != "7zip" && value != "winrar")
                    return refuse("--compressor takes 7zip or winrar, not \"" + value + "\".");
                options.compressor = value;
            } else if (name == "--level") {
                if (value.size() != 1 || value[0] < '0' || value[0] > '5')
                    return refuse("--level takes a number from 0 to 5, not \"" + value + "\".");
                options.level = value[0] - '0';
            } else if (name == "--screens") {
                if (value.empty()) return refuse("--screens needs a folder.");
                options.screensFolder = value;
            } else {
                if (value.empty()) return refuse("--sign-command needs a command.");
                options.signCommand = value;
            }
        } else if (argument.starts_with("-") && argument != "-") {
            return refuse("Unknown option \"" + argument + "\".");
        } else if (options.projectFolder.empty()) {
            options.projectFolder = argument;
        } else {
            return refuse("Only one project folder can be built at a time; \"" + argument +
                          "\" is one too many.");
        }
    }
    if (options.help) return {options, {}};
    if (options.projectFolder.empty()) return refuse("Name the project folder to build.");
    // A version's working sets lie below an edition: a version alone addresses none.
    if (versionGiven && !editionGiven) return refuse("--version needs --edition.");
    return {options, {}};
}

std::string buildHelpText() {
    return R"(Usage: orvanta-build PROJECT_FOLDER [options]

Builds the final package of a saved Orvanta project without opening a window: loads the
project, runs the checks of the "Package it!" button, saves, stages the installer's files,
runs the archiver and names the package as the project says, in its "compiled" folder.
The path of the final package is printed on standard output.

Options:
  --edition NAME        build the working set of this edition (default: the project root)
  --version NAME        with --edition: that edition's working set of this version
  --compressor 7zip|winrar
                        the archiver (default 7zip: the private copy beside the program, else
                        7z on PATH); winrar takes rar from PATH (on Windows, from WinRAR's
                        registration)
  --level 0-5           compression level of the application files, WinRAR only (default 5)
  --verbose             let the archiver's output through to standard error (its warnings and
                        errors always are); on Windows the pass over the application files also
                        runs in a console window of its own, as "Use verbose mode" does
  --reproducible        give every staged and archived file the time SOURCE_DATE_EPOCH (or,
                        without it, the time of the project's last save) and the integrity
                        record a fixed name, so two builds of one project give the same bytes
  --sign-command CMD    run CMD through the shell on the staged install.exe and uninstall.exe
                        before packing, and on the final package at the end; "{}" in CMD is
                        replaced by the file's path, quoted. Its failure fails the build.
                        Example: --sign-command 'osslsigncode sign -certs c.pem -key k.pem
                          -in {} -out {}.signed && mv {}.signed {}'
  --screens FOLDER      build nothing: play the installer's wizard over the project offscreen and
                        write one PNG a step the end user sees (start, package chooser, licence,
                        installing, finished) into FOLDER, with screens.json naming every
                        visible control with its rectangle and text
  -h, --help            print this text

Messages go to standard error; questions get the answer that changes nothing (Cancel, No).
A progress bar is drawn when standard error is a terminal, plain lines are written otherwise.

Exit status:
  0     the final package was built
  1     the build stopped at a step (the message names the step and the file)
  2     the command line (or SOURCE_DATE_EPOCH) was refused
  3     the program's files, the archiver, the project or its working set was not found
  11-17 a check failed: 11 publisher, 12 package name, 13 main executable, 14 version,
        15 (never: the uninstaller check repairs), 16 package named as the main executable,
        17 install path
)";
}

}  // namespace orvanta
