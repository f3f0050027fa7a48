#pragma once
// The packing loop that adds the application files one call at a time and notices the end of
// each call by its batch file deleting itself. Nothing in the editor starts it; it is kept with
// its timers so that the build can reset its index and a later route can use it.

#include <functional>
#include <string>

#include "builder/BuildSetup.h"
#include "platform/Host.h"
#include "project/ProjectFields.h"

namespace orvanta {

// The two timers of the loop: Timer3 (50 ms, watches the batch file) and Timer2 (2000 ms, no action).
class PackerTimers {
public:
    virtual ~PackerTimers() = default;
    virtual void setTimer3Enabled(bool enabled) = 0;
    virtual void setTimer2Enabled(bool enabled) = 0;
};

class PerEntryPacker {
public:
    // `itemIndex` is the editor's packagerItemIndex, which the build resets too.
    PerEntryPacker(Host& host, ProjectFields& fields, PackerTimers& timers, int& itemIndex);

    // Writes and starts "\packager3.bat" for the entry at the index, shows the entry as
    // `caption`'s text through `showCaption`, and enables Timer3.
    void package_the_files(const BuildSetup& setup,
                           const std::function<void(const std::string&)>& showCaption);
    void Timer3_Timer(const BuildSetup& setup, const std::function<void(const std::string&)>& showCaption);

private:
    Host& host_;
    ProjectFields& fields_;
    PackerTimers& timers_;
    int& itemIndex_;
};

}  // namespace orvanta
