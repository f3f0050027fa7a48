#pragma once
// The about window: the tool's name and version, and the files shipped beside the program that
// tell its history, its licence and how to use it, opened through the shell.

#include <QDialog>
#include <memory>
#include <string>

#include "core/Dialogs.h"
#include "platform/Host.h"

namespace Ui {
class about;
}

namespace orvanta {

inline constexpr const char* kOrvantaVersion = "1.0.4";
// Below the program's folder.
inline constexpr const char* kChangelogFile = "\\changelog.txt";
inline constexpr const char* kLicenceFile = "\\licence.txt";
inline constexpr const char* kDocumentationPage = "\\docs\\index.html";

class about : public QDialog {
    Q_OBJECT
public:
    about(Host& host, Dialogs& dialogs, QWidget* parent = nullptr);
    ~about() override;

private:
    void openShipped(const char* file);

    Host& host_;
    Dialogs& dialogs_;
    std::unique_ptr<Ui::about> ui_;
};

}  // namespace orvanta
