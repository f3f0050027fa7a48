#include "controls/cSubclass.h"

#include <QEvent>
#include <QPointer>
#include <QThread>
#include <algorithm>

namespace orvanta {

struct cSubclass::Record {
    QObject* hWnd = nullptr;
    qintptr lParamUser = 0;
    SubclassCallback callback;
    MessageTable before;
    MessageTable after;
};

cSubclass::cSubclass(Dialogs& dialogs, std::string controlName)
    : dialogs_(dialogs), controlName_(std::move(controlName)) {}

cSubclass::~cSubclass() {
    sc_Terminate();
}

void cSubclass::zError(const char* routine, const std::string& text) {
    dialogs_.messageBox({"Error in " + controlName_ + "." + routine + ": " + text, MessageButtons::Ok,
                         MessageIcon::Exclamation, ""});
}

std::shared_ptr<cSubclass::Record> cSubclass::zMap_hWnd(const char* routine, const QObject* hWnd) {
    if (records_.empty()) {
        zError(routine, "Subclassing hasn't been started");
        return nullptr;
    }
    for (const auto& record : records_)
        if (record->hWnd == hWnd) return record;
    zError("zMap_hWnd", "Window handle isn't subclassed");
    return nullptr;
}

bool cSubclass::isSubclassed(const QObject* hWnd) const {
    return std::any_of(records_.begin(), records_.end(),
                       [&](const auto& record) { return record->hWnd == hWnd; });
}

bool cSubclass::sc_Subclass(QObject* hWnd, qintptr lParamUser, SubclassCallback callback) {
    if (hWnd == nullptr) {
        zError("sc_Subclass", "Invalid window handle");
        return false;
    }
    // An object of another thread is out of reach, as a window of another process is.
    if (hWnd->thread() != QThread::currentThread()) {
        zError("sc_Subclass", "Window handle belongs to another process");
        return false;
    }
    if (!callback) {
        zError("sc_Subclass", "Callback method not found");
        return false;
    }
    if (isSubclassed(hWnd)) {
        zError("sc_Subclass", "Window handle is already subclassed");
        return false;
    }
    auto record = std::make_shared<Record>();
    record->hWnd = hWnd;
    record->lParamUser = lParamUser;
    record->callback = std::move(callback);
    records_.push_back(record);
    hWnd->installEventFilter(this);
    // A window that goes without being unsubclassed takes its record with it.
    connect(hWnd, &QObject::destroyed, this, [this](QObject* gone) { forget(gone); });
    return true;
}

void cSubclass::forget(QObject* hWnd) {
    std::erase_if(records_, [&](const auto& record) { return record->hWnd == hWnd; });
}

bool cSubclass::sc_UnSubclass(QObject* hWnd) {
    if (records_.empty()) {
        zError("sc_UnSubclass", "Subclassing hasn't been started");
        return false;
    }
    if (!zMap_hWnd("sc_UnSubclass", hWnd)) return false;
    hWnd->removeEventFilter(this);
    disconnect(hWnd, &QObject::destroyed, this, nullptr);
    forget(hWnd);
    return true;
}

void cSubclass::sc_Terminate() {
    while (!records_.empty()) sc_UnSubclass(records_.back()->hWnd);
}

void cSubclass::sc_AddMsg(QObject* hWnd, int uMsg, MessageWhen when) {
    const auto record = zMap_hWnd("zAddMsg", hWnd);
    if (!record) return;
    const auto add = [&](MessageTable& table) {
        if (table.add(uMsg) == MessageTable::Change::Overflow) zError("zAddMsg", kMessageTableOverflowText);
    };
    if (when != MessageWhen::After) add(record->before);
    if (when != MessageWhen::Before) add(record->after);
}

void cSubclass::sc_DelMsg(QObject* hWnd, int uMsg, MessageWhen when) {
    const auto record = zMap_hWnd("zDelMsg", hWnd);
    if (!record) return;
    const auto remove = [&](MessageTable& table) {
        if (table.remove(uMsg) == MessageTable::Change::NotFound)
            zError("zDelMsg", messageNotFoundText(uMsg));
    };
    if (when != MessageWhen::After) remove(record->before);
    if (when != MessageWhen::Before) remove(record->after);
}

bool cSubclass::sc_CallOrigWndProc(QObject* hWnd, QEvent* uMsg) {
    return hWnd != nullptr && uMsg != nullptr && hWnd->event(uMsg);
}

bool cSubclass::eventFilter(QObject* watched, QEvent* event) {
    for (const auto& record : records_)
        if (record->hWnd == watched) return deliver(record, watched, event);
    return false;
}

// Returning true tells Qt the event needs no further handling: it was consumed before the
// original, or the original has already run here so that the after-callback can follow it.
bool cSubclass::deliver(const std::shared_ptr<Record>& record, QObject* watched, QEvent* event) {
    const int message = static_cast<int>(event->type());
    const bool wantBefore = record->before.contains(message);
    const bool wantAfter = record->after.contains(message);
    if (!wantBefore && !wantAfter) return false;
    // A callback may end the subclassing of its own window: the call holds the record (and a copy
    // of the callback) until it returns, however deep the re-entry.
    const std::shared_ptr<Record> keep = record;
    const SubclassCallback callback = record->callback;
    const QPointer<QObject> alive(watched);
    bool handled = false;
    bool result = false;
    if (wantBefore) callback(true, handled, result, watched, event, keep->lParamUser);
    // A callback that ended the subclassing of its window hears nothing more of it.
    if (!handled && wantAfter && alive && isSubclassed(watched)) {
        result = watched->event(event);
        callback(false, handled, result, watched, event, keep->lParamUser);
        handled = true;
    }
    return handled || !alive;
}

}  // namespace orvanta
