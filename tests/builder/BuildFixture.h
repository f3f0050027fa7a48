#pragma once
// A project "Demo" in a sandbox, the program's delivered files, a recording archiver in place of
// 7-Zip and WinRAR, and a progress sink that writes down what a build shows.

#include <map>
#include <string>
#include <vector>

#include "builder/BuildProgress.h"
#include "builder/BuildSetup.h"
#include "project/EditorFixture.h"

namespace orvanta {

class RecordingProgress : public BuildProgress {
public:
    void show() override { journal.push_back("show"); }
    int value() const override { return value_; }
    void setValue(int value) override { value_ = value; }
    void setCaption(const std::string& caption) override { captions.emplace_back(caption, value_); }
    void processPendingEvents() override {}
    void pause(int milliseconds) override {
        journal.push_back("pause " + std::to_string(milliseconds));
        if (onPause) onPause();
    }
    void hidePackageDialog() override { journal.push_back("hide dialog"); }
    bool openFolderWhenDone() const override { return false; }
    bool openPackageWhenDone() const override { return false; }
    void close() override { journal.push_back("close"); }

    std::vector<std::string> journal;
    std::vector<std::pair<std::string, int>> captions;  // each caption with the value it came at
    std::function<void()> onPause;

private:
    int value_ = 0;
};

class BuildFixture : public EditorFixture {
protected:
    void SetUp() override;

    // The delivered files, each holding its own name, so a test can tell which one went where.
    void deliver();
    // The recording archiver as "7z.exe" and "rar.exe" in one folder.
    void installArchiver();
    BuildSetup setupFor(const std::string& compressor);
    // The calls the archiver got, one line each.
    std::vector<std::string> archiverCalls();
    // A file's bytes by its Windows path; empty when it cannot be read.
    std::string contents(const std::string& path);

    std::string tools;  // the archiver's folder, with trailing backslash
};

}  // namespace orvanta
