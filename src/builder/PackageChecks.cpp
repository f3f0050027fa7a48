#include "builder/PackageChecks.h"

#include "core/commonFunctions.h"
#include "platform/CaseFolding.h"
#include "project/EditorControls.h"

namespace orvanta {

namespace {

using Caret = CheckedForm::Caret;

struct Message {
    const char* instruction;
    std::string content;
    MessageIcon taskIcon;
    std::string plainText;  // the message box shows only this
};

class Checks {
public:
    Checks(Host& host, Dialogs& dialogs, ProjectFields& fields, CheckedForm& form)
        : host_(host), dialogs_(dialogs), fields_(fields), form_(form) {}

    PackageCheckResult run() {
        const int failed = firstFailure();
        return {failed, repairs_};
    }

private:
    int firstFailure() {
        if (!author()) return 1;
        if (!packageName()) return 2;
        if (!mainExecutable()) return 3;
        if (!version()) return 4;
        anyFile();
        if (!packageNameDiffers()) return 6;
        if (!installPath()) return 7;
        return 0;
    }

    std::string text(ControlName control) const { return fields_.text(control); }
    std::string working() const { return text(ctrl::workingFolder); }

    // The task dialog on the systems that have it, a plain box with the exclamation icon elsewhere.
    void tell(const Message& message) {
        if (prefersTaskDialog(host_))
            dialogs_.taskDialog(
                {message.instruction, message.content, "Orvanta", MessageButtons::Ok, message.taskIcon});
        else
            dialogs_.messageBox({message.plainText, MessageButtons::Ok, MessageIcon::Exclamation, "Orvanta"});
    }

    bool refuse(const Message& message, int page, ControlName control, Caret caret) {
        tell(message);
        if (page > 0) form_.showPage(page);
        form_.focus(control, caret);
        return false;
    }

    bool author() {
        if (!text(ctrl::appAuthor).empty()) return true;
        const char* says = "You must name an author/publisher!";
        return refuse({"Missing publisher name", says, MessageIcon::None, says}, 1, ctrl::appAuthor,
                      Caret::End);
    }

    bool packageName() {
        const std::string name = toLowerCase(text(ctrl::finalPackageName));
        if (name != ".exe" && name.ends_with(".exe")) return true;
        const char* says = "You must (correctly) name the package!";
        return refuse({"Incorrect final package name", says, MessageIcon::None, says}, 1,
                      ctrl::finalPackageName, Caret::End);
    }

    bool mainExecutable() {
        const std::string name = text(ctrl::mainExecutable);
        if (name.empty()) fields_.setValue(ctrl::Check23, 0);
        if (fields_.value(ctrl::Check23) == 1 && name == ".exe") {
            const char* says = "You must specify the file name of your application executable!";
            return refuse({"Missing executable name", says, MessageIcon::None, says}, 1, ctrl::mainExecutable,
                          Caret::Start);
        }
        if (fields_.value(ctrl::Check23) == 0) {
            withoutMainExecutable();
            return true;
        }
        const std::string inFiles = working() + "\\files\\" + name;
        const std::string inVersion = working() + "\\v" + text(ctrl::appVersion) + "\\" + name;
        if (fileExists(host_, inFiles) == kTrue || fileExists(host_, inVersion) == kTrue) return true;
        const std::string said = "The specified " + name + " was not found on " + inFiles;
        tell({"Main executable not found!", said + " or " + inVersion, MessageIcon::None, said + "."});
        return false;
    }

    // A project without a main executable has nothing to make shortcuts to or start with Windows.
    void withoutMainExecutable() {
        for (ControlName box : {ctrl::desktopShortcut, ctrl::startMenuShortcut, ctrl::quickLaunchShortcut})
            fields_.setValue(box, 0);
        fields_.setText(ctrl::licenseButtonCaption, "");
        fields_.setText(ctrl::shortcutTooltip, "");
        fields_.setEnabled(ctrl::mainExecutable, false);
        fields_.setText(ctrl::mainExecutable, "");
        fields_.setText(ctrl::startupArguments, "");
        fields_.setValue(ctrl::startupOption, 0);
        repairs_.push_back("No main executable: its shortcuts and the start with Windows are switched off.");
    }

    bool version() {
        if (!text(ctrl::appVersion).empty()) return true;
        const char* says = "The application version is a required field!";
        tell({"Missing version field", says, MessageIcon::None, says});
        form_.focus(ctrl::appVersion, Caret::End);
        return false;
    }

    void anyFile() {
        const std::string name = text(ctrl::anyFile);
        if (name.empty() || fileExists(host_, working() + "\\" + name) == kTrue) return;
        tell({"Uninstaller executable not found!", "The field content was removed.", MessageIcon::Exclamation,
              "No uninstall executable was found. The field content was removed."});
        fields_.setText(ctrl::anyFile, "");
        repairs_.push_back("The any-file " + name + " was not found in " + working() +
                           ": the field was cleared.");
    }

    bool packageNameDiffers() {
        if (text(ctrl::mainExecutable) != text(ctrl::finalPackageName)) return true;
        const char* says = "Final package can't have the same name as the application main executable.";
        return refuse({"Final package name has the same name as the application main executable", says,
                       MessageIcon::Exclamation, says},
                      1, ctrl::finalPackageName, Caret::End);
    }

    bool installPath() {
        if (!text(ctrl::installPath).empty()) return true;
        const std::string says = "You must define a default install path for " + text(ctrl::appName) + ".";
        return refuse({"Default install path not defined!", says, MessageIcon::Exclamation,
                       "Default install path not defined! " + says},
                      2, ctrl::installPath, Caret::FirstListEntry);
    }

    Host& host_;
    Dialogs& dialogs_;
    ProjectFields& fields_;
    CheckedForm& form_;
    std::vector<std::string> repairs_;
};

}  // namespace

PackageCheckResult runPackageChecks(Host& host, Dialogs& dialogs, ProjectFields& fields, CheckedForm& form) {
    return Checks(host, dialogs, fields, form).run();
}

}  // namespace orvanta
