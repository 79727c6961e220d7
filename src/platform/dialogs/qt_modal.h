// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "platform/dialogs/modal.h"

namespace lumen {

/// Runs dialogs in an event loop of their own.
class QtModal : public Modal
{
public:
    int run(QDialog& dialog) override;
    void letEventsRun() override;
};

} // namespace lumen
