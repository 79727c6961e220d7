// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/files/instance_lock.h"

#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

constexpr mode_t kLockMode = 0666; // less what the user's umask takes away

} // namespace

InstanceLock::InstanceLock(const QString& nativeProgramFolder)
    : m_file(nativeProgramFolder + u"/.lumenscript.lock"_s)
{
}

InstanceLock::~InstanceLock()
{
    // The file stays: removing it would take the name from under a process that waits to lock it.
    if (m_descriptor >= 0)
        ::close(m_descriptor);
}

Result<Done> InstanceLock::acquire()
{
    const QByteArray name = QFile::encodeName(m_file);
    // O_CLOEXEC: a program that this one has started must not keep the lock.
    m_descriptor = ::open(name.constData(), O_RDWR | O_CREAT | O_CLOEXEC, kLockMode);
    if (m_descriptor < 0 && errno == EACCES)
        m_descriptor = ::open(name.constData(), O_RDONLY | O_CLOEXEC); // another user's file
    if (m_descriptor < 0)
        return Failure{FailureKind::NoAccess, m_file + u": "_s + qt_error_string(errno)};
    if (::flock(m_descriptor, LOCK_EX | LOCK_NB) == 0)
        return Done{};
    const int error = errno;
    ::close(m_descriptor);
    m_descriptor = -1;
    return Failure{error == EWOULDBLOCK ? FailureKind::InUse : FailureKind::NoAccess, m_file};
}

} // namespace lumen
