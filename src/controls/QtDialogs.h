#pragma once
// The dialogs service of the running program, in Qt dialogs. It shows what it is asked; which
// form a message takes is the caller's choice.

#include <QPointer>
#include <QWidget>

#include "core/Dialogs.h"
#include "platform/Host.h"

namespace orvanta {

class QtDialogs : public Dialogs {
public:
    explicit QtDialogs(Host& host) : host_(host) {}

    // The window the dialogs open over; none makes them application-modal.
    void setOwner(QWidget* owner) { owner_ = owner; }

    DialogAnswer messageBox(const MessageBoxRequest& request) override;
    DialogAnswer taskDialog(const TaskDialogRequest& request) override;
    TaskDialogExAnswer taskDialogEx(const TaskDialogExRequest& request) override;
    std::string inputBox(const InputBoxRequest& request) override;
    std::string openFile(const OpenFileRequest& request) override;
    FolderBrowserAnswer browseForFolder(const FolderBrowserRequest& request) override;

private:
    Host& host_;
    QPointer<QWidget> owner_;
};

}  // namespace orvanta
