#pragma once
// Routines that go on after a failing statement: the failure is dropped, the control concerned
// keeps its value, and the next statement runs.

#include <exception>

namespace orvanta {

template <typename Statement>
void skipOnFailure(Statement&& statement) noexcept {
    try {
        statement();
    } catch (const std::exception&) {
        // Dropped on purpose: the routine's next statement runs.
    }
}

}  // namespace orvanta
