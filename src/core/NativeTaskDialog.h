#pragma once
// The task dialogs of the dialogs service, shown by the platform's own dialog where the host has
// one; elsewhere the service shows one of its own.

#include "core/Dialogs.h"
#include "platform/Host.h"
#include "platform/NativeTaskDialog.h"

namespace orvanta {

NativeTaskDialog planNativeTaskDialog(const TaskDialogExRequest& request);
// False when the host has no such dialog or it could not be shown; the caller then shows its own.
bool showNativeTaskDialog(Host& host, const TaskDialogExRequest& request, TaskDialogExAnswer& answer);

}  // namespace orvanta
