// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/files/safe_write.h"

#include "platform/temporary_file.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
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

SafeWrite::SafeWrite(const QString& nativePath) : m_target(targetOf(nativePath))
{
    if (!create())
        fail();
}

SafeWrite::~SafeWrite()
{
    closeFile();
    if (!m_temporary.isEmpty())
        ::unlink(m_temporary.constData());
}

bool SafeWrite::create()
{
    struct stat former
    {
    };
    const bool replaces = ::stat(QFile::encodeName(m_target).constData(), &former) == 0;
    if (replaces && ::access(QFile::encodeName(m_target).constData(), W_OK) != 0)
        return false; // a file that the user has locked is not to be replaced either
    QString path;
    m_descriptor = createTemporary(m_target, O_WRONLY, path);
    if (m_descriptor < 0)
        return false;
    m_temporary = QFile::encodeName(path);
    // A share that knows no modes keeps its own.
    return !replaces || ::fchmod(m_descriptor, former.st_mode & 07777) == 0 || errno == EPERM;
}

void SafeWrite::fail()
{
    if (m_error == 0)
        m_error = errno == 0 ? EIO : errno;
}

void SafeWrite::closeFile()
{
    if (m_descriptor >= 0 && ::close(m_descriptor) != 0)
        fail();
    m_descriptor = -1;
}

void SafeWrite::write(const QByteArray& bytes)
{
    const char* from = bytes.constData();
    qsizetype left = bytes.size();
    while (m_error == 0 && left > 0) {
        const ssize_t written = ::write(m_descriptor, from, static_cast<std::size_t>(left));
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0) {
            fail();
            return;
        }
        from += written;
        left -= written;
    }
}

Result<Done> SafeWrite::commit()
{
    if (m_error == 0 && ::fsync(m_descriptor) != 0)
        fail();
    closeFile();
    if (m_error == 0 &&
        std::rename(m_temporary.constData(), QFile::encodeName(m_target).constData()) != 0)
        fail();
    if (m_error != 0)
        return Failure{kindOf(m_error), m_target + u": "_s + reasonOf(m_error)};
    m_temporary.clear();
    // The new name has to outlive a power cut too; a folder that can't be synced (some network file
    // systems) has the file all the same.
    const QByteArray folder = QFile::encodeName(QFileInfo(m_target).path());
    const int descriptor = ::open(folder.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor >= 0) {
        ::fsync(descriptor);
        ::close(descriptor);
    }
    return Done{};
}

Result<Done> writeSafely(const QString& nativePath, const QByteArray& bytes)
{
    SafeWrite file(nativePath);
    file.write(bytes);
    return file.commit();
}

} // namespace lumen
