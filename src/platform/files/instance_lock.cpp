// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/files/instance_lock.h"

using namespace Qt::StringLiterals;

namespace lumen {

InstanceLock::InstanceLock(const QString& nativeProgramFolder)
    : m_file(nativeProgramFolder + u"/.lumenscript.lock"_s)
{
    // A lock is never too old: only one whose process is gone is taken over.
    m_file.setStaleLockTime(0);
}

Result<Done> InstanceLock::acquire()
{
    if (m_file.tryLock(0))
        return Done{};
    const bool taken = m_file.error() == QLockFile::LockFailedError;
    return Failure{taken ? FailureKind::InUse : FailureKind::NoAccess, m_file.fileName()};
}

} // namespace lumen
