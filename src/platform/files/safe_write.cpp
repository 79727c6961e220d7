// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/files/safe_write.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

QString targetOf(const QString& path)
{
    const QString linked = QFileInfo(path).canonicalFilePath();
    return linked.isEmpty() ? QFileInfo(path).absoluteFilePath() : linked;
}

QString reasonOf(int error)
{
    switch (error) {
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
        return u"디스크에 빈 곳이 없습니다."_s;
    case EROFS:
        return u"읽기만 할 수 있는 디스크입니다."_s;
    case EACCES:
    case EPERM:
        return u"쓸 권한이 없습니다."_s;
    case ENOENT:
    case ENOTDIR:
        return u"폴더가 없습니다."_s;
    default:
        return qt_error_string(error);
    }
}

FailureKind kindOf(int error)
{
    const bool refused =
        error == EACCES || error == EPERM || error == EROFS || error == ENOENT || error == ENOTDIR;
    return refused ? FailureKind::NoAccess : FailureKind::System;
}

} // namespace

SafeWrite::SafeWrite(const QString& nativePath) : m_target(targetOf(nativePath)), m_file(m_target)
{
    if (m_file.error() == 0)
        followFormer();
}

/// Gives the new file the modes of the one that it replaces.
void SafeWrite::followFormer()
{
    struct stat former
    {
    };
    const QByteArray target = QFile::encodeName(m_target);
    if (::stat(target.constData(), &former) != 0)
        return;
    // A file that the user has locked is not to be replaced either. A share that knows no modes
    // keeps its own.
    if (::access(target.constData(), W_OK) != 0 ||
        (::fchmod(m_file.descriptor(), former.st_mode & 07777) != 0 && errno != EPERM))
        m_file.fail();
}

void SafeWrite::write(const QByteArray& bytes)
{
    const char* from = bytes.constData();
    qsizetype left = bytes.size();
    while (m_file.error() == 0 && left > 0) {
        const ssize_t written = ::write(m_file.descriptor(), from, static_cast<std::size_t>(left));
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0) {
            m_file.fail();
            return;
        }
        from += written;
        left -= written;
    }
}

Result<Done> SafeWrite::commit()
{
    if (!m_file.takeName())
        return Failure{kindOf(m_file.error()), m_target + u": "_s + reasonOf(m_file.error())};
    return Done{};
}

Result<Done> writeSafely(const QString& nativePath, const QByteArray& bytes)
{
    SafeWrite file(nativePath);
    file.write(bytes);
    return file.commit();
}

} // namespace lumen
