#pragma once
// Where a build reports to: the progress window in the editor, a terminal in the headless build,
// a recorder in the tests.

#include <string>

namespace orvanta {

class BuildProgress {
public:
    virtual ~BuildProgress() = default;

    // The progress window appears (and the editor is disabled while it stays).
    virtual void show() = 0;
    // The bar's value, read back before every increment.
    virtual int value() const = 0;
    virtual void setValue(int value) = 0;
    virtual void setCaption(const std::string& caption) = 0;
    virtual void processPendingEvents() = 0;
    // A pause during which the window does not respond.
    virtual void pause(int milliseconds) = 0;
    // The package dialog goes out of sight before the first archiver run.
    virtual void hidePackageDialog() = 0;
    // The two choices of the progress window, read at the end of the build.
    virtual bool openFolderWhenDone() const = 0;
    virtual bool openPackageWhenDone() const = 0;
    // The progress window goes (and the editor is enabled again); the last call of every build.
    virtual void close() = 0;
};

}  // namespace orvanta
