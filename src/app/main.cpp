// The program: one host, one dialogs service and the message pump, then the entry routine, which
// shows the project index or loads the project of a marker given on the command line.
#include <QApplication>
#include <QMessageBox>

#include "app/ApplicationWindows.h"
#include "controls/QtDialogs.h"
#include "controls/QtText.h"
#include "core/RuntimeError.h"
#include "core/StartBitch.h"
#include "image/widget/cCrossComm.h"

namespace {

// A failure that no routine traps ends the program with the run-time error's box.
void endWithError(const QString& text) {
    QMessageBox::critical(nullptr, QStringLiteral("Orvanta"), text);
    std::exit(1);
}

class Application : public QApplication {
public:
    using QApplication::QApplication;
    bool notify(QObject* receiver, QEvent* event) override {
        try {
            return QApplication::notify(receiver, event);
        } catch (const orvanta::RuntimeError& error) {
            endWithError(QStringLiteral("Run-time error '%1':\n\n%2")
                             .arg(error.number())
                             .arg(orvanta::toQString(error.description())));
        } catch (const std::exception& error) {
            endWithError(QString::fromLocal8Bit(error.what()));
        }
        return false;
    }
};

}  // namespace

int main(int argc, char** argv) {
    using namespace orvanta;
    Application application(argc, argv);
    application.setApplicationName(QStringLiteral("Orvanta"));
    const std::unique_ptr<Host> host = createHost();
    host->setMessagePump([] { QApplication::processEvents(); });
    cCrossComm::instance().setHost(host.get());
    QtDialogs dialogs(*host);
    ApplicationWindows windows(*host, dialogs);
    try {
        const MainOutcome outcome = Main(*host, dialogs, windows.handOver());
        if (outcome == MainOutcome::SupportFileMissing) return 1;
    } catch (const RuntimeError& error) {
        endWithError(QStringLiteral("Run-time error '%1':\n\n%2")
                         .arg(error.number())
                         .arg(toQString(error.description())));
    }
    if (!windows.anyVisible()) return 0;
    application.setQuitOnLastWindowClosed(true);
    return QApplication::exec();
}
