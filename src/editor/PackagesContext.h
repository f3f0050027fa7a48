#pragma once
// What the packages manager needs of the editor it opens over: one of its fields and two of its
// controls, reached through callbacks so that the manager works with any editor, or none.

#include <functional>
#include <string>

namespace orvanta {

struct PackagesContext {
    // The working set's folder (the editor's Text2), where "packages.cfg" lies.
    std::function<std::string()> workingFolder;
    // Sets the caption of the editor's button that opens the manager (Command35).
    std::function<void(const std::string&)> setManagerCaption;
    // Shows a text on the editor's tip line (tips).
    std::function<void(const std::string&)> showTip;
};

}  // namespace orvanta
