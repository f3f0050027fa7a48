#pragma once
// A workspace in a sandbox with one project, "Demo", and an editor in memory pointed at it.

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "core/vars.h"
#include "project/EditorContext.h"
#include "project/EditorControls.h"
#include "project/LineFile.h"
#include "project/MemoryProjectFields.h"
#include "project/PackageTables.h"
#include "project/ProjectLoader.h"
#include "project/ProjectSaver.h"
#include "project/SettingsSets.h"
#include "support/Sandbox.h"
#include "support/ScriptedDialogs.h"

namespace orvanta {

class EditorFixture : public ::testing::Test {
protected:
    void SetUp() override {
        vars::reset();
        vars::workspaceFolder = box.windowsPath("Documents\\Orvanta");
        root = vars::workspaceFolder + "\\myinstallers\\Demo";
        box.makeFolder(rel("files"));
        packageTables = {};
        settingsSets = {};
        fields = freshEditor();
        fields->setText(ctrl::appName, "Demo");
        fields->setText(ctrl::workingFolder, root);
        // Each group written, so that no line of "mainsettings.cfg" moves.
        fields->setValue(ctrl::Option3, 1);
        fields->setValue(ctrl::Option4, 1);
    }
    void TearDown() override { EXPECT_TRUE(fields->unknownNames().empty()); }

    std::unique_ptr<MemoryProjectFields> freshEditor() {
        return std::make_unique<MemoryProjectFields>(&box.host());
    }
    EditorContext context(ProjectFields& editor) {
        return {box.host(), dialogs, editor, [] { return 0.0; }};
    }
    EditorContext context() { return context(*fields); }
    SaveOutcome save(ProjectFields& editor) {
        auto saving = context(editor);
        return project_saver(saving);
    }
    LoadOutcome load(ProjectFields& editor) {
        auto loading = context(editor);
        return loadProject(loading, root);
    }
    SaveOutcome save() { return save(*fields); }
    LoadOutcome load() { return load(*fields); }

    // Sandbox paths below the project root.
    static std::string rel(const std::string& name) {
        return "Documents\\Orvanta\\myinstallers\\Demo\\" + name;
    }
    std::vector<std::string> lines(const std::string& name) {
        return readLines(box.host(), root + "\\" + name, 1000).value_or(std::vector<std::string>{});
    }

    testing::Sandbox box;
    testing::ScriptedDialogs dialogs;
    std::string root;
    std::unique_ptr<MemoryProjectFields> fields;
};

}  // namespace orvanta
