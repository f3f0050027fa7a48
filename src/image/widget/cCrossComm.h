#pragma once
// What all picture controls of one process share: the one control that owns the mouse, the
// codec session and the host through which they read files.

#include <cstdint>

namespace orvanta {

class Host;

// A picture control as the others see it.
class ICrossComm {
public:
    virtual void ReleaseMouseCapture() = 0;

protected:
    ~ICrossComm() = default;
};

class cCrossComm {
public:
    static cCrossComm& instance();

    ICrossComm* CapturedControl() const { return captured_; }
    void setCapturedControl(ICrossComm* control) { captured_ = control; }
    // A control that goes away must not stay the owner of the mouse.
    void forget(ICrossComm* control) {
        if (captured_ == control) captured_ = nullptr;
    }

    // The first client opens the codec session, the last one closes it.
    void AddRef();
    void RemoveRef();
    std::int32_t clients() const { return clients_; }
    std::uintptr_t gdiToken() const { return gdiToken_; }

    // Set once by the program (and by tests) before a picture is loaded from a file.
    Host* host() const { return host_; }
    void setHost(Host* host) { host_ = host; }

private:
    ICrossComm* captured_ = nullptr;
    std::int32_t clients_ = 0;
    std::uintptr_t gdiToken_ = 0;
    std::uintptr_t nextToken_ = 1;
    Host* host_ = nullptr;
};

}  // namespace orvanta
