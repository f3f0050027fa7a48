#pragma once
// Routines that go on after a failing statement: a run-time failure is dropped, the control
// concerned keeps its value, and the next statement runs. Anything else is a fault of the program
// and goes on to the caller.

#include "core/RuntimeError.h"

namespace orvanta {

template <typename Statement>
void skipOnFailure(Statement&& statement) {
    try {
        statement();
    } catch (const RuntimeError&) {
        // Dropped on purpose: the routine's next statement runs.
    }
}

}  // namespace orvanta
