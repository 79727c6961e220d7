// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/files/system_clock.h"

namespace lumen {

QDateTime SystemClock::now() const
{
    return QDateTime::currentDateTime();
}

} // namespace lumen
