#pragma once
// The progress of a build without windows: a bar redrawn in place on a terminal, one plain line a
// step otherwise (a CI log).

#include "builder/BuildProgress.h"
#include "builder/command/ConsoleOutput.h"

namespace orvanta {

class TerminalProgress : public BuildProgress {
public:
    explicit TerminalProgress(ConsoleOutput& output) : output_(output) {}

    void show() override {}
    int value() const override { return value_; }
    void setValue(int value) override;
    void setCaption(const std::string& caption) override;
    void processPendingEvents() override {}
    // No window waits to be repainted, so there is nothing to pause for.
    void pause(int) override {}
    void hidePackageDialog() override {}
    bool openFolderWhenDone() const override { return false; }
    bool openPackageWhenDone() const override { return false; }
    void close() override;

private:
    void draw();

    ConsoleOutput& output_;
    int value_ = 0;
    std::string caption_;
};

// "[##########..........]  50% caption": the bar of a value from 0 to 100.
std::string progressBar(int value, const std::string& caption);

}  // namespace orvanta
