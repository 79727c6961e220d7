// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "platform/result.h"

#include <QString>

namespace lumen {

/// Keeps a second process off the same program folder. The system itself holds the lock for this
/// process and frees it with it, however it ends: what stands in the file, and a file that is left
/// over, means nothing.
class InstanceLock
{
public:
    explicit InstanceLock(const QString& nativeProgramFolder);
    ~InstanceLock();
    InstanceLock(const InstanceLock&) = delete;
    InstanceLock& operator=(const InstanceLock&) = delete;

    /// InUse when another process has the folder, NoAccess when no lock can be made there.
    Result<Done> acquire();

private:
    QString m_file;
    int m_descriptor = -1;
};

} // namespace lumen
