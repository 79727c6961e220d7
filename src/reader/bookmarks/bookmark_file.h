// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "platform/result.h"

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QStringList>

namespace lumen {

class FileSystem;

/// The file of bookmarks, bmk.bmf: one short reference a line in list order, code page 949, CR LF,
/// no header.
class BookmarkFile
{
public:
    /// `path` is the program's path of the file.
    BookmarkFile(FileSystem& files, QString path);

    /// The lines of the file; an empty list when there is none. A file that is there and cannot be
    /// read is a failure.
    Result<QStringList> load();
    /// Writes the file anew, atomically. Refused while a file that could not be read stands there:
    /// its bookmarks would be lost.
    Result<Done> save(const QStringList& references);

private:
    QByteArray lineOf(const QString& reference) const;

    FileSystem& m_files;
    QString m_path;
    bool m_unreadable = false;
    // Lines that code page 949 cannot give back as they were, by the text that they are shown as.
    QHash<QString, QByteArray> m_foreignLines;
};

} // namespace lumen
