// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QStringList>

namespace lumen {

/// The names of the running processes.
class ProcessList
{
public:
    virtual ~ProcessList() = default;
    virtual QStringList names() const = 0;
};

} // namespace lumen
