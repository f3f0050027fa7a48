#pragma once
// The controls of the editor window that the loader and the saver reach, under the names the
// window gives them. The control behind each field name stands beside it.

#include "project/ProjectFields.h"

namespace orvanta::ctrl {

inline constexpr ControlName mainfrm{"mainfrm"};  // the window itself: title, shown, enabled

// Fields stored in "mainsettings.cfg", in line order.
inline constexpr ControlName appName{"appName"};                            // Text1
inline constexpr ControlName appAuthor{"appAuthor"};                        // Text9
inline constexpr ControlName startMenuShortcut{"startMenuShortcut"};        // Check3
inline constexpr ControlName desktopShortcut{"desktopShortcut"};            // Check2
inline constexpr ControlName shortcutTooltip{"shortcutTooltip"};            // Text7
inline constexpr ControlName startupOption{"startupOption"};                // Check4
inline constexpr ControlName startupChecked{"startupChecked"};              // Check5
inline constexpr ControlName website{"website"};                            // Text6
inline constexpr ControlName appSize{"appSize"};                            // Text20
inline constexpr ControlName quickLaunchShortcut{"quickLaunchShortcut"};    // Check9
inline constexpr ControlName quickLaunchChecked{"quickLaunchChecked"};      // Check10
inline constexpr ControlName mainExecutable{"mainExecutable"};              // Text21
inline constexpr ControlName noRepair{"noRepair"};                          // Check13
inline constexpr ControlName noModify{"noModify"};                          // Check12
inline constexpr ControlName appVersion{"appVersion"};                      // Text16
inline constexpr ControlName rollEffect{"rollEffect"};                      // Check6
inline constexpr ControlName installPath{"installPath"};                    // Combo5
inline constexpr ControlName minWindowsVersion{"minWindowsVersion"};        // Combo4
inline constexpr ControlName authorFolder{"authorFolder"};                  // Check20
inline constexpr ControlName instantInstall{"instantInstall"};              // Check21
inline constexpr ControlName licenseTitle{"licenseTitle"};                  // Text22
inline constexpr ControlName licenseButtonCaption{"licenseButtonCaption"};  // Text23
inline constexpr ControlName Option1{"Option1"};    // uninstallDefault: "delete all settings files"
inline constexpr ControlName Option2{"Option2"};    // "delete registry settings only"
inline constexpr ControlName Option3{"Option3"};    // "None"
inline constexpr ControlName cleanAll{"cleanAll"};  // Check24
inline constexpr ControlName anyFile{"anyFile"};    // Text27
inline constexpr ControlName lockInstallPath{"lockInstallPath"};          // Check27
inline constexpr ControlName desktopChecked{"desktopChecked"};            // Check28
inline constexpr ControlName startMenuChecked{"startMenuChecked"};        // Check29
inline constexpr ControlName startupArguments{"startupArguments"};        // Text26
inline constexpr ControlName startupAllUsers{"startupAllUsers"};          // Check30
inline constexpr ControlName supportLink{"supportLink"};                  // Text14
inline constexpr ControlName helpLink{"helpLink"};                        // Text28
inline constexpr ControlName updateInfoLink{"updateInfoLink"};            // Text29
inline constexpr ControlName finalPackageName{"finalPackageName"};        // Text8
inline constexpr ControlName shortcutArguments{"shortcutArguments"};      // Text31
inline constexpr ControlName startupRequired{"startupRequired"};          // Check33
inline constexpr ControlName appIconOnRootFolder{"appIconOnRootFolder"};  // Check19
inline constexpr ControlName noUninstaller{"noUninstaller"};              // Check22
inline constexpr ControlName editionName{"editionName"};                  // Text33
inline constexpr ControlName showEditionName{"showEditionName"};          // Check35
inline constexpr ControlName justRunMode{"justRunMode"};                  // Check39
inline constexpr ControlName Option4{"Option4"};  // updateInstallMode: "Standard install"
inline constexpr ControlName Option5{"Option5"};  // "Instant install"
inline constexpr ControlName updateIgnoreLicense{"updateIgnoreLicense"};  // Check36
inline constexpr ControlName updateRunApp{"updateRunApp"};                // Check38
inline constexpr ControlName updateSilent{"updateSilent"};                // Check37
inline constexpr ControlName createRestorePoint{"createRestorePoint"};    // Check41

// Fields held in files of their own, or in none.
inline constexpr ControlName introText{"introText"};                          // Text11
inline constexpr ControlName tipsText{"tipsText"};                            // Text12
inline constexpr ControlName uninstallIntroText{"uninstallIntroText"};        // Text17
inline constexpr ControlName uninstallEndText{"uninstallEndText"};            // Text18
inline constexpr ControlName resumedLicenseEnabled{"resumedLicenseEnabled"};  // Check1
inline constexpr ControlName resumedLicenseText{"resumedLicenseText"};        // Text19
inline constexpr ControlName fullLicenseFile{"fullLicenseFile"};              // Text5
inline constexpr ControlName registryLocations{"registryLocations"};          // List3
inline constexpr ControlName appDataLocations{"appDataLocations"};            // List4
inline constexpr ControlName dependencies{"dependencies"};                    // List1
inline constexpr ControlName fonts{"fonts"};                                  // List2
inline constexpr ControlName files{"files"};                                  // List6
inline constexpr ControlName folders{"folders"};                              // List7
inline constexpr ControlName workingFolder{"workingFolder"};                  // Text2

// Controls without a field of their own.
inline constexpr ControlName Check23{"Check23"};  // master of the main executable's group
inline constexpr ControlName Check15{"Check15"};  // companions of the three link boxes
inline constexpr ControlName Check31{"Check31"};
inline constexpr ControlName Check32{"Check32"};
inline constexpr ControlName Text10{"Text10"};      // the licence file's name, or "<>"
inline constexpr ControlName Command3{"Command3"};  // removes from registryLocations
inline constexpr ControlName Command4{"Command4"};  // removes from dependencies
inline constexpr ControlName Command8{"Command8"};  // licence buttons
inline constexpr ControlName Command41{"Command41"};
inline constexpr ControlName Command12{"Command12"};  // removes from fonts
inline constexpr ControlName Command15{"Command15"};  // chooses the logo
inline constexpr ControlName Command19{"Command19"};  // removes from appDataLocations
inline constexpr ControlName Command35{"Command35"};  // opens the packages manager
inline constexpr ControlName Command38{"Command38"};  // removes the any-file
inline constexpr ControlName Command40{"Command40"};  // removes the logo
inline constexpr ControlName Command42{"Command42"};  // down and up in registryLocations
inline constexpr ControlName Command43{"Command43"};
inline constexpr ControlName Command47{"Command47"};  // down and up in appDataLocations
inline constexpr ControlName Command48{"Command48"};
inline constexpr ControlName aicAlphaImage3{"aicAlphaImage3"};  // the installer's background
inline constexpr ControlName logo{"logo"};
inline constexpr ControlName logo2{"logo2"};
constexpr ControlName noway(int index) {
    return {"noway", index};
}

}  // namespace orvanta::ctrl
