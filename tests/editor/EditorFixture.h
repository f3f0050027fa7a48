#pragma once
// An editor window over a sandbox: its own host, documents folder and registry, scripted dialogs,
// and hooks that count what the window asked of the rest of the program. The open project is
// "Demo" at the workspace's root working set.

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QFocusEvent>
#include <QWidget>
#include <memory>
#include <string>

#include "core/RegistryAPI.h"
#include "core/vars.h"
#include "editor/mainfrm.h"
#include "image/widget/cCrossComm.h"
#include "support/Sandbox.h"
#include "support/ScriptedDialogs.h"

namespace orvanta::testing {

class EditorFixture : public ::testing::Test {
protected:
    void SetUp() override {
        vars::reset();
        vars::workspaceFolder = sandbox.documentsFolder() + "\\Orvanta";
        vars::settingsRootKey = "HKCU\\Software\\Orvanta";
        cCrossComm::instance().setHost(&sandbox.host());
        sandbox.makeFolder(projectRelative("files"));
        window = std::make_unique<mainfrm>(context());
        setText("Text1", "Demo");
        setText("Text2", projectRoot());
    }
    void TearDown() override { cCrossComm::instance().setHost(nullptr); }

    mainfrmContext context() {
        mainfrmContext hooks(sandbox.host(), dialogs);
        hooks.project_saver = [this] { ++saves; };
        hooks.showStart = [this] { ++starts; };
        hooks.unloadStart = [this] { ++unloads; };
        hooks.showInstallPreview = [this] { ++previews; };
        return hooks;
    }

    std::string projectRoot() { return vars::workspaceFolder + "\\myinstallers\\Demo"; }
    static std::string projectRelative(const std::string& below) {
        return "Documents\\Orvanta\\myinstallers\\Demo\\" + below;
    }

    template <typename T>
    T& get(const char* name) {
        T* control = window->findChild<T*>(QString::fromLatin1(name));
        if (control == nullptr) throw std::runtime_error(std::string("no control ") + name);
        return *control;
    }
    void setText(const char* name, const std::string& text);
    std::string text(const char* name);
    void check(const char* name, bool on);
    bool checked(const char* name);
    bool enabled(const char* name) { return get<QWidget>(name).isEnabled(); }
    void focus(const char* name, bool in) {
        QFocusEvent event(in ? QEvent::FocusIn : QEvent::FocusOut, Qt::MouseFocusReason);
        QCoreApplication::sendEvent(&get<QWidget>(name), &event);
    }
    void setSaveAlways(int value) {
        RegistryAPI registry(sandbox.host());
        registry.createMissingKeys = true;
        registry.writeSettingNumber(vars::settingsRootKey + "\\Settings", "saveAlways", value);
    }

    Sandbox sandbox;
    ScriptedDialogs dialogs;
    std::unique_ptr<mainfrm> window;
    int saves = 0;
    int starts = 0;
    int unloads = 0;
    int previews = 0;
};

}  // namespace orvanta::testing
