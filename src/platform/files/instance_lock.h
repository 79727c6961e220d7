// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "platform/result.h"

#include <QLockFile>
#include <QString>

namespace lumen {

/// Keeps a second process off the same program folder; freed with the object, and by a process that
/// has died.
class InstanceLock
{
public:
    explicit InstanceLock(const QString& nativeProgramFolder);

    /// InUse when another process has the folder, NoAccess when the folder can't be written to.
    Result<Done> acquire();

private:
    QLockFile m_file;
};

} // namespace lumen
