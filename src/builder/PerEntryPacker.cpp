#include "builder/PerEntryPacker.h"

#include "builder/BatchFiles.h"
#include "core/commonFunctions.h"
#include "project/EditorControls.h"

namespace orvanta {

namespace {

std::string perEntryBatch(const BuildSetup& setup) {
    return setup.workspaceFolder + "\\packager3.bat";
}

}  // namespace

PerEntryPacker::PerEntryPacker(Host& host, ProjectFields& fields, PackerTimers& timers, int& itemIndex)
    : host_(host), fields_(fields), timers_(timers), itemIndex_(itemIndex) {}

void PerEntryPacker::package_the_files(const BuildSetup& setup,
                                       const std::function<void(const std::string&)>& showCaption) {
    fields_.setListIndex(ctrl::files, itemIndex_);
    const auto items = fields_.listItems(ctrl::files);
    if (itemIndex_ < 0 || static_cast<std::size_t>(itemIndex_) >= items.size()) return;
    const std::string& entry = items[static_cast<std::size_t>(itemIndex_)].text;
    BatchValues values;
    values.workingFolder = fields_.text(ctrl::workingFolder);
    values.workspaceFolder = setup.workspaceFolder;
    values.archiverFolder = setup.rarFolder;
    values.compressionLevel = setup.compressionLevel;
    host_.writeFileAtomic(perEntryBatch(setup), batchFileText(perEntryBatchLines(values, entry)));
    if (showCaption) showCaption(entry);
    host_.startProcess(perEntryBatch(setup), 0);
    timers_.setTimer3Enabled(true);
}

// The end of a call shows as its batch file having deleted itself.
void PerEntryPacker::Timer3_Timer(const BuildSetup& setup,
                                  const std::function<void(const std::string&)>& showCaption) {
    if (fileExists(host_, perEntryBatch(setup)) == kTrue) return;
    timers_.setTimer3Enabled(false);
    ++itemIndex_;
    if (static_cast<std::size_t>(itemIndex_) != fields_.listCount(ctrl::files))
        package_the_files(setup, showCaption);
    else
        timers_.setTimer2Enabled(true);
}

}  // namespace orvanta
