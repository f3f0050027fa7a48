#include "editor/mainfrmTipTexts.h"

namespace orvanta {

const std::vector<std::pair<std::string_view, std::string_view>>& mainfrmTipTexts() {
    static const std::vector<std::pair<std::string_view, std::string_view>> tips = {
        {"aicAlphaImage1", "Add a preview shown during installation right next to tips."},
        {"aicAlphaImage3",
         "Select your preferred background or add your own to documents\\Orvanta\\backgrounds folder. Use "
         "the provided psd files to create your own."},
        {"Check1", "Shows a short license or notes on a step of its own. The text is kept in slicense.txt."},
        {"Check2", "Creates a shortcut to the main executable on the desktop."},
        {"Check3", "Creates a shortcut to the main executable in the start menu."},
        {"Check4", "Offers the user to run the application each time Windows starts."},
        {"Check5", "The startup option is ticked when the installer shows it."},
        {"Check6", "Rolls the installer's steps in with an animation."},
        {"Check9", "Creates a QuickLaunch shortcut, or pins the application to the taskbar."},
        {"Check10", "The QuickLaunch/taskbar option is ticked when the installer shows it."},
        {"Check19", "Puts the application's icon on its installation folder."},
        {"Check20", "Installs into a folder named after the author, with the application's folder inside."},
        {"Check21", "Installs at once, without the steps of the wizard."},
        {"Check22",
         "When this setting is checked, the installer won't create an uninstall entry neither copy the "
         "required "
         "files for uninstallation. Select this if you're creating a installer for a plug-in."},
        {"Check24",
         "If this option is checked all the files included on the app folder will be wiped including the "
         "folder. "
         "This option availability is to protect user's system from installations outside of program files "
         "folder."},
        {"Check27", "The user can't choose another installation folder."},
        {"Check33",
         "Forces 'run application at startup' to be applied. The user won't be able to change it."},
        {"Check35", "Shows the edition's name beside the application's name in the installer."},
        {"Check39",
         "Just-run mode is perfect for making your small application portable and ready to run without "
         "installing it on the system. The application runs immdiately after the user opened the package."},
        {"Check41", "Creates a system restore point before the installation starts."},
        {"Combo2", "The registry root of the location to remove at uninstallation."},
        {"Combo3", "The application data folder of the location to remove at uninstallation."},
        {"Combo4", "The oldest Windows version the installer accepts."},
        {"Combo5",
         "Where the application is installed. <> is the Program Files folder; the other roots can be "
         "followed "
         "by a folder of your own."},
        {"Command1",
         "Select your preferred background or add your own to documents\\Orvanta\\backgrounds folder. Use "
         "the provided psd files to create your own."},
        {"Command14",
         "You can run an executable or any file type at uninstallation to delete any remains of the "
         "application "
         "or open a text document."},
        {"Command15", "Add the application logo to the start screen."},
        {"Command16", "Add a full license file from any source. It will be copied to the working area."},
        {"Command26", "Add a preview shown during installation right next to tips."},
        {"Command30", "Opens the font files folder."},
        {"Command32", "Seek for files on the folder and adds them automatically."},
        {"Command35", "Optional packages the user can choose to install beside the application."},
        {"Command36", "Opens the first scheme background in the default psd file application."},
        {"Command37", "Opens the second scheme background in the default psd file application."},
        {"Command39", "Removes the added preview image file"},
        {"Command40", "Removes the logo image file"},
        {"Command41", "Removes the added license file"},
        {"Command44",
         "Settings set are chosen at the end of the installation. You can use it to add registry entries for "
         "filetype associations for example, to run a .reg file with default app settings or to run any kind "
         "of "
         "document or executable."},
        {"Command8", "Opens license file."},
        {"Frame5", "A file run at uninstallation, taken from the working folder."},
        {"Frame17",
         "This defines the behavior when opening this single package and find that the application is "
         "already "
         "installed on the system and the version of the package is greater than the installed version."},
        {"List1",
         "ocx or other dependencies that needs to be registered (regsvr32.exe). place them in your "
         "application "
         "root folder or other and add them manually to this list. Selected entries = copy to system32 and "
         "register."},
        {"List3", "Registry keys removed at uninstallation, in this order."},
        {"List4", "Application data folders removed at uninstallation, in this order."},
        {"Option1", "At uninstallation the listed application data folders and registry keys are deleted."},
        {"Option2", "At uninstallation only the listed registry keys are deleted."},
        {"Option3", "At uninstallation no settings are deleted."},
        {"logo", "Add the application logo to the start screen."},
        {"Text1", "Can't be changed through Orvanta. If you need to change it you must do it manually."},
        {"Text3", "The registry key to add to the list, below the chosen root."},
        {"Text11", "The text of the installer's first step."},
        {"Text12", "Tips shown while the files are being installed."},
        {"Text13",
         "The publisher shown in the list of installed programs: the Author/Company of the General page, "
         "which it "
         "follows."},
        {"Text14", "A support address shown in the list of installed programs."},
        {"Text15",
         "The name shown in the list of installed programs: the application name, which it follows."},
        {"Text16",
         "Application version uninstallation string and required for update options. This is a required "
         "field."},
        {"Text17", "The text of the uninstaller's first step."},
        {"Text18", "The text of the uninstaller's last step."},
        {"Text19", "The short license or notes text."},
        {"Text20",
         "Click here to automatically determine the size of your application. Still you can edit at your "
         "will."},
        {"Text21",
         "This is a required field. This field is required for the creation of the shortcuts, startup "
         "options "
         "and run now options."},
        {"Text22", "The title of the license step."},
        {"Text26", "Arguments given to the application when it runs at startup."},
        {"Text27",
         "You can run an executable or any file type at uninstallation to delete any remains of the "
         "application "
         "or open a text document."},
        {"Text28", "A help address shown in the list of installed programs."},
        {"Text29", "An address with news of updates, shown in the list of installed programs."},
        {"Text5",
         "Add a full license. You can add any type of document or web address. If this field remains empty "
         "the "
         "button will be grayed out."},
    };
    return tips;
}

}  // namespace orvanta
