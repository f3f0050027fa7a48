#pragma once
// A project "Demo" in a sandboxed workspace, with the packages manager opened over a stand-in
// for the editor that records what the manager tells it.

#include <gtest/gtest.h>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <memory>
#include <string>
#include <vector>

#include "controls/ctlListView.h"
#include "core/vars.h"
#include "editor/packages.h"
#include "support/FailingHost.h"
#include "support/Sandbox.h"
#include "support/ScriptedDialogs.h"

namespace orvanta::testing {

// One package as its seven lines of "packages.cfg".
inline std::string packageBlock(const std::string& name, const std::string& location,
                                const std::string& description = "", const std::string& byDefault = "0",
                                const std::string& required = "0", const std::string& space = "0",
                                const std::string& remove = "0") {
    std::string block;
    for (const std::string* line : {&name, &location, &description, &byDefault, &required, &space, &remove})
        block += *line + "\r\n";
    return block;
}

class PackagesManager : public ::testing::Test {
protected:
    static constexpr const char* kRoot = "Documents\\Orvanta\\myinstallers\\Demo";

    void SetUp() override {
        vars::reset();
        vars::workspaceFolder = box.windowsPath("Documents\\Orvanta");
        box.makeFolder(std::string(kRoot) + "\\packages");
        box.writeFile(std::string(kRoot) + "\\mainsettings.cfg", "Demo\r\n");
        host.answerShell(42);
    }
    void TearDown() override { vars::reset(); }

    void writeList(const std::string& contents) { box.writeFile(working + "\\packages.cfg", contents); }
    std::string readList() { return box.readFile(working + "\\packages.cfg"); }

    packages& open() {
        window = std::make_unique<packages>(host, dialogs, context(), tables);
        window->show();
        return *window;
    }
    PackagesContext context() {
        return {[this] { return box.windowsPath(working); },
                [this](const std::string& text) { captions.push_back(text); },
                [this](const std::string& text) { tips.push_back(text); }};
    }

    template <typename T>
    T& control(const char* name) {
        T* found = window->findChild<T*>(name);
        if (found == nullptr) throw std::runtime_error(std::string("no control ") + name);
        return *found;
    }
    QLineEdit& text(const char* name) { return control<QLineEdit>(name); }
    QCheckBox& check(const char* name) { return control<QCheckBox>(name); }
    QPushButton& button(const char* name) { return control<QPushButton>(name); }
    QComboBox& Combo5() { return control<QComboBox>("Combo5"); }
    ctlListView& List1() { return control<ctlListView>("List1"); }

    // A click of the mouse on a row, which selects it and raises the list's ItemClick.
    void clickRow(int row) {
        QTreeWidget* view = List1().hwnd();
        const QRect place = view->visualItemRect(view->topLevelItem(row));
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, place.center());
    }
    void fillAddedPackage(const char* name, const char* location, const char* description) {
        button("Command2").click();
        text("Text1").setText(name);
        Combo5().setEditText(location);
        text("Text2").setText(description);
    }

    Sandbox box;
    FailingHost host{box.host()};
    ScriptedDialogs dialogs;
    PackageTables tables;
    std::string working = kRoot;  // the working folder, below the sandbox
    std::vector<std::string> captions;
    std::vector<std::string> tips;
    std::unique_ptr<packages> window;
};

}  // namespace orvanta::testing
