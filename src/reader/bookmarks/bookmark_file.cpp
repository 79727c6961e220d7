// SPDX-License-Identifier: GPL-2.0-or-later
#include "reader/bookmarks/bookmark_file.h"

#include "platform/files/file_system.h"
#include "text/codepage949.h"

namespace lumen {

using namespace Qt::StringLiterals;

BookmarkFile::BookmarkFile(FileSystem& files, QString path)
    : m_files(files), m_path(std::move(path))
{
}

Result<QStringList> BookmarkFile::load()
{
    m_foreignLines.clear();
    m_unreadable = false;
    if (!m_files.FileExists(m_path))
        return QStringList();
    const Result<QByteArray> bytes = m_files.readAll(m_path);
    if (!bytes) {
        m_unreadable = true;
        return bytes.failure();
    }
    QStringList references;
    QList<QByteArray> lines = bytes.value().split('\n');
    if (lines.last().isEmpty())
        lines.removeLast(); // behind the last line's end
    for (QByteArray& line : lines) {
        if (line.endsWith('\r'))
            line.chop(1);
        const QString reference = fromCodePage949(line);
        if (toCodePage949(reference) != line)
            m_foreignLines.insert(reference, line);
        references << reference;
    }
    return references;
}

Result<Done> BookmarkFile::save(const QStringList& references)
{
    if (m_unreadable)
        return Failure{FailureKind::NoAccess, m_path};
    QByteArray bytes;
    for (const QString& reference : references)
        bytes += lineOf(reference) + "\r\n";
    return m_files.writeAll(m_path, bytes);
}

QByteArray BookmarkFile::lineOf(const QString& reference) const
{
    const auto foreign = m_foreignLines.constFind(reference);
    return foreign != m_foreignLines.cend() ? *foreign : toCodePage949(reference);
}

} // namespace lumen
