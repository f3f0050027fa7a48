#include "image/widget/cCrossComm.h"

namespace orvanta {

cCrossComm& cCrossComm::instance() {
    static cCrossComm shared;
    return shared;
}

// The system codec needs no start-up here; the token only says that a session is open, and each
// session gets a new one so that a stale token is never mistaken for a live one.
void cCrossComm::AddRef() {
    if (clients_++ == 0) gdiToken_ = nextToken_++;
}

void cCrossComm::RemoveRef() {
    if (clients_ == 0) return;
    if (--clients_ == 0) gdiToken_ = 0;
}

}  // namespace orvanta
