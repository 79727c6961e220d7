// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/jet/pending_file.h"

#include "platform/jet/jet_error.h"
#include "platform/temporary_file.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <unistd.h>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

JetError writeFailed(const QString& path)
{
    return jetError(ErrorNumber::kWriteFailed, path + u": "_s + qt_error_string(errno));
}

bool syncPath(const QByteArray& path, int flags)
{
    const int descriptor = ::open(path.constData(), flags | O_CLOEXEC);
    if (descriptor < 0)
        return false;
    const bool synced = ::fsync(descriptor) == 0;
    ::close(descriptor);
    return synced;
}

} // namespace

PendingFile::PendingFile(const QString& destination) : m_destination(destination)
{
    const int descriptor = createTemporary(destination, O_RDWR, m_path);
    if (descriptor < 0)
        throw writeFailed(destination);
    ::close(descriptor);
}

PendingFile::~PendingFile()
{
    if (m_done)
        return;
    QFile::remove(m_path);
    QFile::remove(m_path + u"-journal"_s);
}

void PendingFile::takeName(Existing existing)
{
    const QByteArray from = QFile::encodeName(m_path);
    const QByteArray to = QFile::encodeName(m_destination);
    if (!syncPath(from, O_RDWR))
        throw writeFailed(m_destination);
    // Not every file system knows RENAME_NOREPLACE, so the destination is looked up as well.
    if (existing == Existing::Refuse && QFileInfo::exists(m_destination))
        throw jetError(ErrorNumber::kDestinationExists, m_destination);
    if (std::rename(from.constData(), to.constData()) != 0)
        throw writeFailed(m_destination);
    m_done = true;
    // A folder that can't be synced (some network file systems) has the file all the same.
    syncPath(QFile::encodeName(QFileInfo(m_destination).absolutePath()), O_RDONLY | O_DIRECTORY);
}

} // namespace lumen
