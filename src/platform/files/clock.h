// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QDateTime>

namespace lumen {

/// Tells the time; tests set it.
class Clock
{
public:
    virtual ~Clock() = default;
    virtual QDateTime now() const = 0;
};

} // namespace lumen
