// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "platform/files/clock.h"

namespace lumen {

/// The machine's clock, local time.
class SystemClock : public Clock
{
public:
    QDateTime now() const override;
};

} // namespace lumen
