// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "forms/services.h"
#include "jet/error.h"

#include <concepts>

class QWidget;

namespace lumen {

/// Takes back what the failed handler has written and shows the error's text.
void handleEngineError(Services& services, QWidget* parent, const JetError& error);

/// Runs an event handler that touches a database. A JetError ends the handler: WaitPointer and
/// RedrawHold put pointer and painting back as it leaves, the engine's implicit transaction is
/// rolled back, and a message titled "Lumenscript" tells the error. False after an error.
template <std::invocable Handler>
bool guarded(Services& services, QWidget* parent, Handler&& handler)
{
    try {
        handler();
        return true;
    } catch (const JetError& error) {
        handleEngineError(services, parent, error);
        return false;
    }
}

} // namespace lumen
