#pragma once
// A control's way to be told of another object's events before and after that object handles
// them, with the right to consume them: an event filter with a table of events for each side.
// Every failure is shown through the dialogs service as "Error in <control>.<routine>: <text>".

#include <QObject>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "controls/rules/MessageTable.h"
#include "core/Dialogs.h"

class QEvent;

namespace orvanta {

enum class MessageWhen { Before = 1, After = 2, BeforeAndAfter = 3 };

// bBefore: called before the original handling. Setting bHandled there consumes the event, and
// lReturn is then what the event handling returns; after the original, lReturn holds its result.
using SubclassCallback = std::function<void(bool bBefore, bool& bHandled, bool& lReturn, QObject* hWnd,
                                            QEvent* uMsg, qintptr lParamUser)>;

class cSubclass : public QObject {
public:
    cSubclass(Dialogs& dialogs, std::string controlName);
    ~cSubclass() override;

    bool sc_Subclass(QObject* hWnd, qintptr lParamUser, SubclassCallback callback);
    bool sc_UnSubclass(QObject* hWnd);
    void sc_Terminate();
    void sc_AddMsg(QObject* hWnd, int uMsg, MessageWhen when = MessageWhen::Before);
    void sc_DelMsg(QObject* hWnd, int uMsg, MessageWhen when = MessageWhen::Before);
    // The object's own handling of an event, past every table.
    bool sc_CallOrigWndProc(QObject* hWnd, QEvent* uMsg);

    bool isSubclassed(const QObject* hWnd) const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Record;
    std::shared_ptr<Record> zMap_hWnd(const char* routine, const QObject* hWnd);
    void zError(const char* routine, const std::string& text);
    void forget(QObject* hWnd);
    bool deliver(const std::shared_ptr<Record>& record, QObject* watched, QEvent* event);

    Dialogs& dialogs_;
    std::string controlName_;
    std::vector<std::shared_ptr<Record>> records_;
};

}  // namespace orvanta
